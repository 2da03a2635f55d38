// The button, check box, option button, timer, tab strip and combo box, and the order of a mouse
// click's events per kind.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/controls/option_button.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/timer.h"
#include "platform/late_bound.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

// A disabled button ignores the operator; a timer ticks only while enabled with an interval and has
// no font; the first tab is selected silently, later selections click once per real change.
TEST(SimpleControls, ButtonTimerAndTabStripRaiseTheirEventsOnlyWhenTheyShould) {
    CommandButton button("btnAck");
    Timer timer("Timer1");
    TabStrip tabs("TabStrip1");
    int clicks = 0;
    int ticks = 0;
    button.onClick.Connect([&] { ++clicks; });
    timer.onTimer.Connect([&] { ++ticks; });
    tabs.onClick.Connect([&] { clicks += 10; });
    button.Click();
    button.SetEnabled(false);
    button.Click();
    timer.Tick();
    timer.SetInterval(1000);
    timer.Tick();
    timer.SetEnabled(false);
    timer.Tick();
    EXPECT_EQ(ErrorNumberOf([&] { timer.SetFontCharset(0); }), 438);
    tabs.AddTab("General");
    tabs.AddTab("Details", "D");
    EXPECT_EQ(tabs.SelectedTab(), 1);
    tabs.ClickTab(2);
    tabs.SelectTab(2);
    EXPECT_EQ(clicks, 11);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(ErrorNumberOf([&] { tabs.SelectTab(3); }), 35600);
    EXPECT_EQ(ErrorNumberOf([&] { tabs.AddTab("x", "D"); }), 35602);
}

// Selecting an entry sets the text and raises Click, not Change, and follows insertions; the
// operator's text reaches an editable combo, with Change, unless it is disabled; a drop-down list
// takes no free text, and code may only set text that names an entry.
TEST(SimpleControls, ComboSelectionClicksAndOnlyAnEditableComboTakesFreeText) {
    ComboBox combo("cboAttr");
    std::vector<std::string> events;
    combo.onClick.Connect([&] { events.push_back("click " + combo.Text()); });
    combo.onChange.Connect([&] { events.push_back("change " + combo.Text()); });
    combo.EditText("Prüfung");
    combo.SetEnabled(false);
    combo.EditText("ignored");
    combo.SetEnabled(true);
    for (const char* item : {"Good", "Questionable", "Bad"}) combo.AddItem(item);
    combo.SetListIndex(1);
    combo.SetListIndex(1);
    EXPECT_EQ(events, (std::vector<std::string>{"change Prüfung", "click Questionable"}));
    EXPECT_EQ(ErrorNumberOf([&] { combo.SetListIndex(3); }), 380);
    EXPECT_EQ(combo.List(7), "");
    combo.AddItem("first", 0);  // inserting before the selection keeps the selected entry
    EXPECT_EQ(combo.ListIndex(), 2);
    combo.RemoveItem(2);
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.SetListStyle(ComboBox::Style::DropDownList);
    events.clear();
    combo.EditText("no free text");
    EXPECT_TRUE(events.empty());
    combo.SetText("Bad");
    EXPECT_EQ(combo.ListIndex(), 2);
    EXPECT_EQ(ErrorNumberOf([&] { combo.SetText("Ajar"); }), 383);
    EXPECT_EQ(combo.Text(), "Bad");
}

// The classic order: a button and a check box raise Click after MouseUp, an option button before
// it (a panel's MouseUp handler relies on the group being settled); only the left button clicks,
// and the keyboard's click is a plain Click.
TEST(SimpleControls, MouseClickRaisesTheClassicOrderOfEventsForEachKind) {
    Form form("frmTest");
    const struct {
        Control* control;
        int16_t button;
        std::vector<std::string> events;
    } cases[] = {
        {&form.Add<CommandButton>("btnOK"), 1, {"down 1", "up 1", "click", "click"}},
        {&form.Add<CheckBox>("Check1"), 1, {"down 1", "up 1", "click", "click"}},
        {&form.Add<OptionButton>("Option1"), 1, {"down 1", "click", "up 1", "click"}},
        {&form.Add<OptionButton>("Option2"), 2, {"down 2", "up 2", "click"}},
        {&form.Add<CheckBox>("Check2"), 2, {"down 2", "up 2", "click"}},
    };
    std::vector<std::string> events;
    for (const auto& c : cases) {
        Control& control = *c.control;
        control.onMouseDown.Connect(
            [&](int16_t b, int16_t, float, float) { events.push_back("down " + std::to_string(b)); });
        control.onMouseUp.Connect(
            [&](int16_t b, int16_t, float, float) { events.push_back("up " + std::to_string(b)); });
        control.onClick.Connect([&] { events.push_back("click"); });
        events.clear();
        control.ClickWithMouse(c.button, 0, 30, 45);
        control.Click();  // the keyboard's
        EXPECT_EQ(events, c.events) << control.Name();
    }
    EXPECT_EQ(form.Get<CheckBox>("Check1").Value(), CheckBox::Unchecked) << "toggled twice";
    EXPECT_EQ(form.Get<CheckBox>("Check2").Value(), CheckBox::Checked) << "the right button does not toggle";
    EXPECT_TRUE(form.Get<OptionButton>("Option2").Value());
}

// Program code (also late-bound) sets the value even on a disabled box and raises Click after the
// change; the operator's click toggles, grey becoming checked, unless the box or its frame is
// disabled. Values outside 0..2 are refused without a Click.
TEST(CheckBoxTest, SettingAlwaysClicksButTheOperatorNeedsAnEnabledBoxAndFrame) {
    Form form("frmTest");
    CheckBox& box = form.Add<CheckBox>("chkCounterInUse");
    std::vector<int16_t> clicks;  // the value each Click saw
    box.onClick.Connect([&] { clicks.push_back(box.Value()); });
    box.SetValue(CheckBox::Unchecked);  // no change, no Click
    box.Click();
    box.Click();
    box.SetEnabled(false);
    box.Click();
    box.SetValue(CheckBox::Grayed);
    box.SetEnabled(true);
    box.Click();
    Frame& frame = form.Add<Frame>("Frame1");
    box.SetContainer(&frame);
    frame.SetEnabled(false);
    box.Click();
    PutProperty(Variant(box.shared_from_this()), "value", Variant(int16_t{0}));
    for (int16_t bad : {3, -1}) EXPECT_EQ(ErrorNumberOf([&] { box.SetValue(bad); }), 380) << bad;
    EXPECT_EQ(clicks, (std::vector<int16_t>{1, 0, 2, 1, 0}));
}

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
