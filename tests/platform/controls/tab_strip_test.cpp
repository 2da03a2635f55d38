#include "platform/controls/tab_strip.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

TEST(TabStripTest, FirstTabIsSelectedSilentlyAndLaterSelectionsClick) {
    TabStrip tabs("TabStrip1");
    int clicks = 0;
    tabs.onClick.Connect([&] { ++clicks; });
    tabs.AddTab("General");
    tabs.AddTab("Details", "D");
    EXPECT_EQ(tabs.SelectedTab(), 1);
    tabs.ClickTab(2);
    tabs.SelectTab(2);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ErrorNumberOf([&] { tabs.SelectTab(3); }), 35600);
    EXPECT_EQ(ErrorNumberOf([&] { tabs.AddTab("x", "D"); }), 35602);
}

}  // namespace
}  // namespace trovane
