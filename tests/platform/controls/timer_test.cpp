#include "platform/controls/timer.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

TEST(TimerTest, TickRaisesTimerOnlyWhileEnabledWithAnInterval) {
    Timer timer("Timer1");
    int ticks = 0;
    timer.onTimer.Connect([&] { ++ticks; });
    timer.Tick();
    timer.SetInterval(1000);
    timer.Tick();
    timer.SetEnabled(false);
    timer.Tick();
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(ErrorNumberOf([&] { timer.SetFontCharset(0); }), 438);
}

}  // namespace
}  // namespace trovane
