// The operator place, operation counter, dial-up and update-data panels driven through the real
// widgets of the control dialog, against the in-process demo server.

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "core/conversions.h"
#include "opcounter/misc_functions.h"
#include "support/control_dialog_fixture.h"
#include "support/manual_clock.h"

namespace trovane::dialog {
namespace {

class SmallPanelsDialogTest : public testing::ControlDialogTest {
  protected:
    void Open(const std::string& objectName, int32_t index, const std::string& page) {
        DialogOptions options;
        options.objectName = objectName;
        options.index = index;
        ControlDialogTest::Open(options, page);
    }
    // The server runs on a clock the test moves, from before the dialog asks it anything.
    void BeforeStart(DialogHost& opened) override {
        clock.now = MakeDate(2026, 11, 22, 9, 30, 0);
        opened.Server().Database().SetClock(&clock);
    }

    bool HasPage(const std::string& page) const {
        const auto names = window->PageNames();
        return std::find(names.begin(), names.end(), page) != names.end();
    }

    trovane::testing::ManualClock clock;
};

// The breaker's operation page: NCC chosen with the mouse moves the location on the server and the
// options follow; the counter is reset and given a new limit typed into its box.
TEST_F(SmallPanelsDialogTest, TheBreakerMovesToNccAndItsCounterIsResetAndLimited) {
    Open("ABC", 10, "operation");
    EXPECT_TRUE(HasPage("operation") && !HasPage("communication"));
    auto* station = Widget<QRadioButton>("OperatorPlace", "Opt_Station");
    auto* ncc = Widget<QRadioButton>("OperatorPlace", "Opt_NCC");
    ASSERT_TRUE(station && ncc);
    EXPECT_TRUE(station->isChecked() && ncc->isEnabled());

    ClickBoxAndSettle(ncc);
    EXPECT_EQ(Ask("#return ABC:PSL10"), Variant(0));
    EXPECT_TRUE(ncc->isChecked());
    EXPECT_TRUE(station->isEnabled() && ncc->isEnabled());

    auto* count = Widget<QLabel>("MiscFunctions", "lblOperationCount");
    auto* limit = Widget<QLineEdit>("MiscFunctions", "txtOpCntLimit");
    auto* set = Widget<QPushButton>("MiscFunctions", "btnSetOpcCntLimit");
    ASSERT_TRUE(count && limit && set);
    EXPECT_EQ(count->text(), "998");
    ClickBoxAndSettle(Widget<QPushButton>("MiscFunctions", "btnOpCntReset"));
    EXPECT_EQ(Ask("#return ABC:PCV10"), Variant(0));
    EXPECT_EQ(count->text(), "0");

    limit->setFocus();
    QTest::keyClick(limit, Qt::Key_End);
    for (int i = 0; i < 4; ++i) QTest::keyClick(limit, Qt::Key_Backspace);
    QTest::keyClicks(limit, "1500");
    EXPECT_TRUE(set->isEnabled());
    ClickBoxAndSettle(set);
    EXPECT_EQ(Ask("#return ABC:PCL10"), Variant(1500));
    EXPECT_EQ(limit->text(), "1500");
    EXPECT_FALSE(set->isEnabled());
}

// The bay with a custom local/remote indication: "Local" chosen and set reaches the server, and
// then nothing may be moved from here.
TEST_F(SmallPanelsDialogTest, TheBaySetToLocalThroughItsControlValuesAllowsNoMoreControl) {
    Open("DEF", 2, "operation");
    auto* values = Widget<QComboBox>("OperatorPlace", "cmb_Control_Values");
    auto* set = Widget<QPushButton>("OperatorPlace", "cmd_Set");
    auto* shown = Widget<QLineEdit>("OperatorPlace", "txt_LRValue");
    ASSERT_TRUE(values && set && shown);
    EXPECT_EQ(shown->text(), "Remote");
    EXPECT_FALSE(set->isEnabled());
    values->setFocus();
    QTest::keyClick(values, Qt::Key_Down);  // "Local", after the empty first entry
    ASSERT_EQ(values->currentText(), "Local");
    EXPECT_TRUE(set->isEnabled());

    ClickBoxAndSettle(set);
    EXPECT_EQ(Ask("#return DEF:PLV2"), Variant("Local"));
    EXPECT_EQ(shown->text(), "Local");
    EXPECT_FALSE(values->isEnabled());
    EXPECT_FALSE(Widget<QRadioButton>("OperatorPlace", "Opt_Station")->isEnabled());
    EXPECT_TRUE(Widget<QRadioButton>("OperatorPlace", "Opt_NCC")->isChecked());
}

// The dial-up station: the buttons follow the line through dialling, connected and idle; an update
// asked for disables its button until the server has done it.
TEST_F(SmallPanelsDialogTest, TheStationsButtonsFollowItsLineAndAnUpdateComesBack) {
    Open("RTU", 1, "communication");
    EXPECT_TRUE(HasPage("communication") && !HasPage("operation"));
    auto* dial = Widget<QPushButton>("DialUp", "btn_Dial");
    auto* hangUp = Widget<QPushButton>("DialUp", "btn_HangUp");
    auto* sync = Widget<QPushButton>("DialUp", "btn_Sync");
    auto* settings = Widget<QPushButton>("DialUp", "btn_Settings");
    auto* update = Widget<QPushButton>("UpdateData", "btn_UpdateData");
    ASSERT_TRUE(dial && hangUp && sync && settings && update);
    EXPECT_TRUE(dial->isEnabled() && settings->isEnabled());
    EXPECT_FALSE(hangUp->isEnabled() || sync->isEnabled());

    ClickBoxAndSettle(dial);
    EXPECT_FALSE(dial->isEnabled() || sync->isEnabled());
    EXPECT_TRUE(hangUp->isEnabled());
    clock.now = MakeDate(2026, 11, 22, 9, 30, 3);
    window->Settle();
    EXPECT_TRUE(sync->isEnabled() && hangUp->isEnabled());
    ClickBoxAndSettle(sync);
    EXPECT_EQ(Ask("#return RTU:PSC1"), Variant(1));

    ClickBox(update);
    EXPECT_FALSE(update->isEnabled());
    window->Settle();
    EXPECT_EQ(Ask("#return RTU:PUC1"), Variant(1));
    EXPECT_TRUE(update->isEnabled());

    ClickBoxAndSettle(hangUp);
    EXPECT_EQ(Ask("#return RTU:PLS1"), Variant(0));
    EXPECT_TRUE(dial->isEnabled());
    EXPECT_FALSE(hangUp->isEnabled() || sync->isEnabled());
}

}  // namespace
}  // namespace trovane::dialog
