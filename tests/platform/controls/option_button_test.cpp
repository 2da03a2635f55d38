#include "platform/controls/option_button.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/form.h"
#include "platform/controls/frame.h"

namespace trovane {
namespace {

// Four state buttons of a control array and a separate "no state" button, as a substitution panel
// has them, plus a group in a frame of its own.
class OptionButtonTest : public ::testing::Test {
  protected:
    OptionButtonTest() {
        for (int16_t i = 0; i < 4; ++i) Watch(form.Add<OptionButton>("opt_Value", i));
        Watch(form.Add<OptionButton>("Opt_NA"));
        Frame& frame = form.Add<Frame>("Frame1");
        for (const char* name : {"Opt_NCC", "Opt_Station"}) {
            OptionButton& button = form.Add<OptionButton>(name);
            button.SetContainer(&frame);
            Watch(button);
        }
    }
    void Watch(OptionButton& button) {
        const std::string label = button.Name() + (button.Index() >= 0 ? std::to_string(button.Index()) : "");
        button.onClick.Connect([this, label] { clicks.push_back(label); });
    }
    OptionButton& State(int16_t i) { return form.Get<OptionButton>("opt_Value", i); }
    OptionButton& Named(const char* name) { return form.Get<OptionButton>(name); }

    Form form{"frmSubstitute"};
    std::vector<std::string> clicks;
};

TEST_F(OptionButtonTest, SelectingOneClearsItsSiblingsAndClicksOnlyIt) {
    State(1).SetValue(true);
    clicks.clear();
    State(3).SetValue(true);
    EXPECT_FALSE(State(1).Value());
    EXPECT_TRUE(State(3).Value());
    EXPECT_EQ(clicks, (std::vector<std::string>{"opt_Value3"}));
}

TEST_F(OptionButtonTest, ButtonOutsideTheArrayButInTheSameContainerIsASibling) {
    State(2).SetValue(true);
    Named("Opt_NA").SetValue(true);
    EXPECT_FALSE(State(2).Value());
}

TEST_F(OptionButtonTest, ButtonsInAnotherContainerAreNotTouched) {
    Named("Opt_NCC").SetValue(true);
    State(0).SetValue(true);
    EXPECT_TRUE(Named("Opt_NCC").Value());
    Named("Opt_Station").SetValue(true);
    EXPECT_FALSE(Named("Opt_NCC").Value());
    EXPECT_TRUE(State(0).Value());
}

TEST_F(OptionButtonTest, DeselectedSiblingReportsItsChange) {
    State(0).SetValue(true);
    std::vector<ControlProperty> changes;
    State(0).onChanged.Connect([&](ControlProperty p) { changes.push_back(p); });
    State(1).SetValue(true);
    EXPECT_EQ(changes, (std::vector<ControlProperty>{ControlProperty::Value}));
}

TEST_F(OptionButtonTest, ClickHandlerSeesTheGroupAlreadySettled) {
    State(0).SetValue(true);
    bool previousStillSet = true;
    State(2).onClick.Connect([&] { previousStillSet = State(0).Value(); });
    State(2).SetValue(true);
    EXPECT_FALSE(previousStillSet);
}

TEST_F(OptionButtonTest, SettingTheSameValueByCodeRaisesNothing) {
    State(1).SetValue(true);
    clicks.clear();
    State(1).SetValue(true);
    State(2).SetValue(false);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(OptionButtonTest, OperatorClickSelectsAndClicksAgainOnTheSelectedButton) {
    State(1).Click();
    State(1).Click();
    EXPECT_TRUE(State(1).Value());
    EXPECT_EQ(clicks, (std::vector<std::string>{"opt_Value1", "opt_Value1"}));
}

TEST_F(OptionButtonTest, ClearingByCodeLeavesNoSelection) {
    State(1).SetValue(true);
    State(1).SetValue(false);
    for (int16_t i = 0; i < 4; ++i) EXPECT_FALSE(State(i).Value());
}

TEST_F(OptionButtonTest, DisabledButtonIgnoresOperatorClick) {
    State(1).SetEnabled(false);
    State(1).Click();
    EXPECT_FALSE(State(1).Value());
    EXPECT_TRUE(clicks.empty());
}

}  // namespace
}  // namespace trovane
