// The controls with one rule each worth checking: the button, timer, tab strip and combo box, and
// the order of the events of a mouse click on each kind the operator presses.
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

TEST(SimpleControls, DisabledButtonDoesNotClickAndTimerTicksOnlyWhileEnabledWithAnInterval) {
    CommandButton button("btnAck");
    Timer timer("Timer1");
    int clicks = 0;
    int ticks = 0;
    button.onClick.Connect([&] { ++clicks; });
    timer.onTimer.Connect([&] { ++ticks; });
    button.Click();
    button.SetEnabled(false);
    button.Click();
    timer.Tick();
    timer.SetInterval(1000);
    timer.Tick();
    timer.SetEnabled(false);
    timer.Tick();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(ErrorNumberOf([&] { timer.SetFontCharset(0); }), 438);
}

TEST(SimpleControls, FirstTabIsSelectedSilentlyAndLaterSelectionsClick) {
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

TEST(SimpleControls, ComboSelectionSetsTheTextRaisesClickAndFollowsInsertions) {
    ComboBox combo("Cmb_Quality");
    int clicks = 0;
    int textChanges = 0;
    combo.onClick.Connect([&] { ++clicks; });
    combo.onChange.Connect([&] { ++textChanges; });
    for (const char* item : {"Good", "Questionable", "Bad"}) combo.AddItem(item);
    combo.SetListIndex(1);
    combo.SetListIndex(1);
    EXPECT_EQ(combo.Text(), "Questionable");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(textChanges, 0);
    EXPECT_EQ(ErrorNumberOf([&] { combo.SetListIndex(3); }), 380);
    EXPECT_EQ(combo.List(7), "");
    combo.AddItem("first", 0);  // inserting before the selection keeps the selected entry
    EXPECT_EQ(combo.ListIndex(), 2);
    combo.RemoveItem(2);
    EXPECT_EQ(combo.ListIndex(), -1);
}

TEST(SimpleControls, DropDownListTextMustNameAnEntry) {
    ComboBox combo("cboAttr");
    combo.SetListStyle(ComboBox::Style::DropDownList);
    combo.AddItem("Open");
    combo.AddItem("Closed");
    combo.SetText("Closed");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(ErrorNumberOf([&] { combo.SetText("Ajar"); }), 383);
    EXPECT_EQ(combo.Text(), "Closed");
}

TEST(SimpleControls, ComboTextEditedByTheOperatorRaisesChangeUnlessDisabledOrAList) {
    ComboBox combo("cboAttr");
    std::vector<std::string> changes;
    combo.onChange.Connect([&] { changes.push_back(combo.Text()); });
    combo.EditText("Prüfung");
    combo.SetEnabled(false);
    combo.EditText("ignored");
    combo.SetEnabled(true);
    combo.SetListStyle(ComboBox::Style::DropDownList);
    combo.EditText("no free text");
    EXPECT_EQ(changes, (std::vector<std::string>{"Prüfung"}));
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
        {&form.Add<CommandButton>("btnOK"), 1, {"down 1", "up 1", "click"}},
        {&form.Add<CheckBox>("Check1"), 1, {"down 1", "up 1", "click"}},
        {&form.Add<OptionButton>("Option1"), 1, {"down 1", "click", "up 1"}},
        {&form.Add<OptionButton>("Option2"), 2, {"down 2", "up 2"}},
        {&form.Add<CheckBox>("Check2"), 2, {"down 2", "up 2"}},
    };
    for (const auto& c : cases) {
        std::vector<std::string> events;
        Control& control = *c.control;
        control.onMouseDown.Connect([&](int16_t button, int16_t, float, float) {
            events.push_back("down " + std::to_string(button));
        });
        control.onMouseUp.Connect(
            [&](int16_t button, int16_t, float, float) { events.push_back("up " + std::to_string(button)); });
        control.onClick.Connect([&] { events.push_back("click"); });
        control.ClickWithMouse(c.button, 0, 30, 45);
        EXPECT_EQ(events, c.events) << control.Name();
        events.clear();
        control.Click();
        EXPECT_EQ(events, (std::vector<std::string>{"click"})) << control.Name();
        control.onMouseDown.DisconnectAll();
        control.onMouseUp.DisconnectAll();
        control.onClick.DisconnectAll();
    }
    EXPECT_EQ(form.Get<CheckBox>("Check1").Value(), CheckBox::Unchecked) << "toggled twice";
    EXPECT_EQ(form.Get<CheckBox>("Check2").Value(), CheckBox::Checked) << "the right button does not toggle";
    EXPECT_TRUE(form.Get<OptionButton>("Option2").Value());
}

}  // namespace
}  // namespace trovane
