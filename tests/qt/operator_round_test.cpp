// One operator's round on the breaker's dialog, through the real widgets and tabs, with the
// server's state checked after every step: the steps share one dialog, so a panel that leaves the
// dialog or the server in a bad state for the next one is caught here.

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>

#include "core/conversions.h"
#include "indication/indication_bar.h"
#include "support/control_dialog_fixture.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_removal_dialog.h"
#include "tagout_site.h"

namespace trovane::dialog {
namespace {

constexpr int kBreakerTripAlarmRow = 1;     // ABC:11, persisting and unacknowledged
constexpr int kCurrentSubstitutionRow = 5;  // ABC:15, analog 0..1000

class OperatorRoundTest : public testing::ControlDialogTest {
  protected:
    void SetUp() override { Open(); }

    // The operator clicks the page's tab.
    void ClickTab(const std::string& page) {
        auto* tabs = window->findChild<QTabWidget*>("tabPages");
        ASSERT_NE(tabs, nullptr);
        const auto names = window->PageNames();
        const auto found = std::find(names.begin(), names.end(), page);
        ASSERT_NE(found, names.end()) << page;
        const int tab = static_cast<int>(found - names.begin());
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tab).center());
        window->Settle();
        ASSERT_EQ(tabs->currentIndex(), tab);
    }
    template <typename W = QWidget>
    W* DialogWidget(qt::FormView* dialog, const char* control) const {
        return dialog ? qobject_cast<W*>(dialog->WidgetOf(control)) : nullptr;
    }
    void ClickRow(const char* form, int row) {
        ControlDialogTest::ClickRow(form, row);
        window->Settle();
    }
    // Near the left edge, where a check box or option button has its box; only what the operator
    // can reach.
    void Click(QWidget* widget) {
        ASSERT_NE(widget, nullptr);
        ASSERT_TRUE(widget->isVisible() && widget->isEnabled()) << widget->objectName().toStdString();
        ClickBoxAndSettle(widget);
    }
};

TEST_F(OperatorRoundTest, CommentAcknowledgeBlockTagoutSubstituteMoveAndReset) {
    // The comment, written in the indication bar's dialog.
    Click(Widget("IndicationBar", "btnIndication"));
    const IndicationBar& bar = *host->Panels().FindAs<IndicationBar>(kIndicationSite);
    qt::FormView* comment = ViewOfDialog(bar.CommentDialog());
    ASSERT_NE(comment, nullptr);
    Click(DialogWidget(comment, "btnRemove"));
    auto* text = DialogWidget<QPlainTextEdit>(comment, "txtComment");
    ASSERT_NE(text, nullptr);
    text->setFocus();
    QTest::keyClicks(text, "Round done, Q0 inspected");
    Click(DialogWidget(comment, "btnOK"));
    EXPECT_TRUE(ToString(Ask("#return ABC:PGC")).ends_with("#Round done, Q0 inspected"));

    // The breaker trip, acknowledged on its own.
    ClickTab("alarms");
    ClickRow("Alarms", kBreakerTripAlarmRow);
    Click(Widget("Alarms", "btnAckSelected"));
    EXPECT_EQ(Ask("#return ABC:PAR11"), Variant(int32_t{1}));
    EXPECT_EQ(Ask("#return ABC:PAR12"), Variant(int32_t{0})) << "the other alarm still waits";

    // Then that signal alone blocked for updates.
    ClickRow("Alarms", kBreakerTripAlarmRow);
    Click(Widget("Blocking", "chkBlockSelectedSignal"));
    Click(Widget("Blocking", "Check1"));
    Click(Widget("Blocking", "btnOK"));
    EXPECT_EQ(Ask("#return ABC:PUB11"), Variant(int32_t{1}));
    EXPECT_EQ(Ask("#return ABC:PUB10"), Variant(int32_t{0}));

    // A tagout added, then removed after the confirmation.
    ClickTab("tagout");
    const Tagout& tagout = *host->Panels().FindAs<Tagout>(kTagoutSite);
    Click(Widget("Tagout", "btnAdd"));
    qt::FormView* edit = ViewOfDialog(tagout.EditDialog());
    ASSERT_NE(edit, nullptr);
    Click(DialogWidget(edit, "btnOK"));
    ASSERT_EQ(Breaker().tagouts.active.size(), 2u);
    EXPECT_EQ(Breaker().tagouts.active[1].values.at("OWNER"), "operator");
    ClickRow("Tagout", 1);
    Click(Widget("Tagout", "btnRemove"));
    qt::FormView* removal = ViewOfDialog(tagout.RemovalDialog());
    ASSERT_NE(removal, nullptr);
    Click(DialogWidget(removal, "btnOK"));
    ASSERT_EQ(Breaker().tagouts.active.size(), 1u);
    EXPECT_EQ(Breaker().tagouts.active[0].values.at("OWNER"), "operator1");

    // The phase current substituted with a typed value.
    ClickTab("substitution");
    ClickRow("Substitute", kCurrentSubstitutionRow);
    Click(Widget("Substitute", "Chk_Enabled"));
    auto* value = Widget<QLineEdit>("Substitute", "txt_Value");
    ASSERT_NE(value, nullptr);
    value->setFocus();
    value->selectAll();
    QTest::keyClicks(value, "250");
    QTest::keyClick(value, Qt::Key_Return);
    window->Settle();
    EXPECT_EQ(Ask("#return ABC:POV15"), Variant(250.0));
    EXPECT_EQ(Ask("#return ABC:PSB15"), Variant(int32_t{1}));

    // Control moved to the network control centre, and the operation counter reset.
    ClickTab("operation");
    Click(Widget("OperatorPlace", "Opt_NCC"));
    EXPECT_EQ(Ask("#return ABC:PSL10"), Variant(int32_t{0}));
    Click(Widget("MiscFunctions", "btnOpCntReset"));
    EXPECT_EQ(Ask("#return ABC:PCV10"), Variant(int32_t{0}));

    // Nothing of the round undid an earlier step.
    EXPECT_EQ(Ask("#return ABC:PUB11"), Variant(int32_t{1}));
    EXPECT_EQ(Ask("#return ABC:PAR11"), Variant(int32_t{1}));
    EXPECT_EQ(Ask("#return ABC:PSB15"), Variant(int32_t{1}));
}

}  // namespace
}  // namespace trovane::dialog
