// The controls with one rule each worth checking: the button, timer, tab strip and combo box.
#include <gtest/gtest.h>

#include "platform/controls/combo_box.h"
#include "platform/controls/command_button.h"
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

}  // namespace
}  // namespace trovane
