// The button, timer, tab strip and combo box, and the order of a mouse click's events per kind.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/option_button.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/timer.h"
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

}  // namespace
}  // namespace trovane
