// The substitution page of the control dialog driven through its real widgets, against the
// in-process demo server.

#include <string>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>

#include "alarms/alarms.h"
#include "panel_sites.h"
#include "substitution_site.h"
#include "support/control_dialog_fixture.h"
#include "support/qt_list.h"

namespace trovane::dialog {
namespace {

// Rows of the demo object's substitutable signals, in server order.
constexpr int kBreakerTripRow = 1;  // ABC:11, binary
constexpr int kCurrentRow = 5;      // ABC:15, analog 0..1000
constexpr int kEarthingRow = 6;     // ABC:16, double binary

class SubstitutionDialogTest : public testing::ControlDialogTest {
  protected:
    void SetUp() override { Open({}, kSubstitutionPage); }

    QTreeView* List() const { return Widget<QTreeView>("Substitute", "ListView1"); }
    QLineEdit* ValueBox() const { return Widget<QLineEdit>("Substitute", "txt_Value"); }
    int VisibleStates() const {
        int count = 0;
        for (int16_t index = 0; index < 4; ++index)
            count += Widget<QRadioButton>("Substitute", "opt_Value", index)->isVisible();
        return count;
    }
    Variant Server(int32_t index, const std::string& attribute) {
        return Ask("#return ABC:P" + attribute + std::to_string(index));
    }
    int32_t AlarmIcon(const std::string& identity) const {
        Alarms& alarms = *host->Panels().FindAs<Alarms>(kAlarmSite);
        for (size_t i = 0; i < alarms.RowIdentities().size(); ++i)
            if (alarms.RowIdentities()[i] == identity)
                return alarms.ListView1.Item(static_cast<int32_t>(i + 1)).SmallIcon();
        return 0;
    }
};

TEST_F(SubstitutionDialogTest, NavigationKeysShowEachSignalsOwnEntry) {
    QTreeView* list = List();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(trovane::testing::ShownRows(*list).size(), 10u);
    EXPECT_EQ(trovane::testing::HeaderText(*list, 2), "Substituted");
    ClickRow("Substitute", kBreakerTripRow);
    EXPECT_EQ(VisibleStates(), 2);
    EXPECT_FALSE(ValueBox()->isVisible());
    for (int step = kBreakerTripRow; step < kEarthingRow; ++step) QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(VisibleStates(), 4) << "the earthing switch";
    QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(VisibleStates(), 0);
    EXPECT_TRUE(ValueBox()->isVisible()) << "the current";
    EXPECT_EQ(ValueBox()->text(), "312.5");
}

TEST_F(SubstitutionDialogTest, TypedValueIsFilteredPastedNonNumberRollsBackAndEnterSubstitutes) {
    ClickRow("Substitute", kCurrentRow);
    ClickBox(Widget("Substitute", "Chk_Enabled"));
    QLineEdit* box = ValueBox();
    ASSERT_TRUE(box->isEnabled());
    ClickBox(box);  // selects the whole value
    QTest::keyClicks(box, "x1-2a.5");
    EXPECT_EQ(box->text(), "12.5") << "the letters and the minus inside the number never appear";
    box->selectAll();
    QApplication::clipboard()->setText("1.2.3");
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box->text(), "12.5");
    QTest::keyClick(box, Qt::Key_Return);

    EXPECT_EQ(Server(15, "OV"), Variant(12.5));
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{1}));
    EXPECT_FALSE(box->isEnabled());
    window->Settle();
    EXPECT_EQ(AlarmIcon("ABC:15"), 9) << "the alarm list shows the substitution";
}

}  // namespace
}  // namespace trovane::dialog
