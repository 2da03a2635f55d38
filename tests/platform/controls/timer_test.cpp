#include "platform/controls/timer.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/error.h"

namespace trovane {
namespace {

int32_t ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

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
