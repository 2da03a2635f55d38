#include "platform/controls/command_button.h"

#include <gtest/gtest.h>

namespace trovane {
namespace {

TEST(CommandButtonTest, DisabledButtonDoesNotClick) {
    CommandButton button("btnAck");
    int clicks = 0;
    button.onClick.Connect([&] { ++clicks; });
    button.Click();
    button.SetEnabled(false);
    button.Click();
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace trovane
