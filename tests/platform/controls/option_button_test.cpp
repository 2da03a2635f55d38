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
        for (int16_t i = 0; i < 4; ++i) form.Add<OptionButton>("opt_Value", i);
        form.Add<OptionButton>("Opt_NA");
        Frame& frame = form.Add<Frame>("Frame1");
        for (const char* name : {"Opt_NCC", "Opt_Station"}) form.Add<OptionButton>(name).SetContainer(&frame);
        for (Control& control : form.Controls())
            control.onClick.Connect([this, &control] {
                clicks.push_back(control.Name() +
                                 (control.Index() >= 0 ? std::to_string(control.Index()) : ""));
            });
    }
    OptionButton& State(int16_t i) { return form.Get<OptionButton>("opt_Value", i); }
    OptionButton& Named(const char* name) { return form.Get<OptionButton>(name); }

    Form form{"frmSubstitute"};
    std::vector<std::string> clicks;
};

TEST_F(OptionButtonTest, SelectingOneClearsItsSiblingsInTheSameContainerOnly) {
    Named("Opt_NCC").SetValue(true);
    State(1).SetValue(true);
    std::vector<ControlProperty> changes;
    State(1).onChanged.Connect([&](ControlProperty p) { changes.push_back(p); });
    bool previousStillSet = true;  // the Click handler sees the group already settled
    State(3).onClick.Connect([&] { previousStillSet = State(1).Value(); });
    clicks.clear();
    State(3).SetValue(true);
    EXPECT_FALSE(State(1).Value());
    EXPECT_FALSE(previousStillSet);
    EXPECT_EQ(changes, (std::vector<ControlProperty>{ControlProperty::Value}));
    EXPECT_EQ(clicks, (std::vector<std::string>{"opt_Value3"}));
    Named("Opt_NA").SetValue(true);  // outside the array, same container
    EXPECT_FALSE(State(3).Value());
    EXPECT_TRUE(Named("Opt_NCC").Value());  // another container is not touched
    Named("Opt_Station").SetValue(true);
    EXPECT_FALSE(Named("Opt_NCC").Value());
    EXPECT_TRUE(Named("Opt_NA").Value());
}

// Code that changes nothing raises nothing and clearing leaves no selection; the operator's click
// on the selected button clicks again, on a disabled one does nothing.
TEST_F(OptionButtonTest, OnlyRealChangesAndEnabledOperatorClicksRaiseClick) {
    State(1).SetValue(true);
    State(1).SetValue(true);
    State(2).SetValue(false);
    State(2).SetEnabled(false);
    State(2).Click();
    State(1).Click();
    EXPECT_TRUE(State(1).Value());
    EXPECT_EQ(clicks, (std::vector<std::string>{"opt_Value1", "opt_Value1"}));
    State(1).SetValue(false);
    for (int16_t i = 0; i < 4; ++i) EXPECT_FALSE(State(i).Value());
}

}  // namespace
}  // namespace trovane
