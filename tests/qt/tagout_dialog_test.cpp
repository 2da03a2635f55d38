// The tagout page of the control dialog driven through its real widgets, against the in-process
// demo server: the edit dialog's run-time fields in a real tab widget, typed into and clicked, and
// the removal dialog's modal confirmation.

#include <string>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>

#include "support/control_dialog_fixture.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_removal_dialog.h"
#include "tagout_site.h"

namespace trovane::dialog {
namespace {

class TagoutDialogTest : public testing::ControlDialogTest {
  protected:
    void SetUp() override { Open({}, kTagoutPage); }

    Tagout& Panel() const { return *host->Panels().FindAs<Tagout>(kTagoutSite); }
    template <typename W = QWidget>
    W* PanelWidget(const char* name) const {
        return Widget<W>("Tagout", name);
    }
    qt::FormView* EditWindow() const { return ViewOfDialog(Panel().EditDialog()); }
    qt::FormView* RemovalWindow() const { return ViewOfDialog(Panel().RemovalDialog()); }
    // The edit dialog's widget of the attribute `name`.
    template <typename W>
    W* Field(const std::string& name) const {
        for (const Control& control : Panel().EditDialog()->Controls())
            if (control.DataField() == name) return qobject_cast<W*>(EditWindow()->WidgetOf(control));
        return nullptr;
    }
    template <typename W>
    W* EditWidget(const char* name, int16_t index = -1) const {
        return qobject_cast<W*>(EditWindow()->WidgetOf(name, index));
    }
    static void Retype(QLineEdit* box, const char* text) {
        ASSERT_NE(box, nullptr);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, text);
    }
    sim::ObjectTagouts& Server() { return Breaker().tagouts; }
};

TEST_F(TagoutDialogTest, OperatorAddsATagoutOfEveryTypeEditsItAndRemovesItAfterConfirming) {
    auto* list = PanelWidget<QTreeView>("ListView1");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->model()->rowCount(), 1);
    EXPECT_FALSE(PanelWidget("btnEdit")->isEnabled()) << "the demo's tagout is operator1's";

    // Add: the fields in a real tab widget, captions left and values right, in readable columns.
    Click(PanelWidget("btnAdd"));
    window->Settle();
    ASSERT_NE(EditWindow(), nullptr);
    EXPECT_TRUE(EditWindow()->isModal());
    auto* tabs = EditWidget<QTabWidget>("TabStrip1");
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(1), "Details");
    auto* owner = Field<QLineEdit>("OWNER");
    auto* caption = EditWidget<QLabel>("lblAttr", 0);
    ASSERT_NE(owner, nullptr);
    EXPECT_EQ(owner->text(), "operator");
    EXPECT_EQ(caption->text(), "Owner");
    EXPECT_LT(caption->geometry().right(), owner->geometry().left());
    EXPECT_GE(owner->width(), 150);
    EXPECT_EQ(Field<QLineEdit>("TAG_TEXT")->width(), owner->width());
    EXPECT_TRUE(Field<QLineEdit>("DATE")->isReadOnly());
    EXPECT_TRUE(owner->isVisible());
    EXPECT_FALSE(Field<QPlainTextEdit>("COMMENT")->isVisible()) << "on the second tab";

    Retype(Field<QLineEdit>("TAG_TEXT"), "Feeder 2 earthed");
    auto* priority = Field<QComboBox>("PRIORITY");
    priority->setFocus();
    QTest::keyClick(priority, Qt::Key_Down);  // Medium -> High
    Click(tabs->tabBar());                    // no effect: the middle of the bar is past the tabs
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
    window->Settle();
    ASSERT_TRUE(Field<QPlainTextEdit>("COMMENT")->isVisible());
    EXPECT_FALSE(owner->isVisible());
    Field<QPlainTextEdit>("COMMENT")->setFocus();
    QTest::keyClicks(Field<QPlainTextEdit>("COMMENT"), "Don't \"close\"");
    ClickBox(Field<QCheckBox>("AM_LOCAL01"));
    Click(EditWidget<QPushButton>("btnOK"));
    window->Settle();
    EXPECT_EQ(EditWindow(), nullptr);
    ASSERT_EQ(Server().active.size(), 2u);
    const sim::Tagout added = Server().active[1];
    EXPECT_EQ(added.values.at("OWNER"), "operator");
    EXPECT_EQ(added.values.at("PRIORITY"), "High");
    EXPECT_EQ(added.values.at("TAG_TEXT"), "Feeder 2 earthed");
    EXPECT_EQ(added.values.at("TAG_REPR"), "Hold");
    EXPECT_EQ(added.values.at("COMMENT"), "Don't \"close\"");
    EXPECT_EQ(added.values.at("AM_LOCAL01"), "X");
    EXPECT_FALSE(added.values.at("DATE").empty());
    EXPECT_EQ(list->model()->rowCount(), 2);
    EXPECT_TRUE(PanelWidget("btnEdit")->isEnabled());

    // Edit one attribute: the server changes in that one only.
    Click(PanelWidget("btnEdit"));
    window->Settle();
    ASSERT_NE(EditWindow(), nullptr);
    Retype(Field<QLineEdit>("TAG_TEXT"), "Feeder 2 free");
    Click(EditWidget<QPushButton>("btnOK"));
    window->Settle();
    EXPECT_EQ(EditWindow(), nullptr);
    sim::Tagout edited = Server().active[1];
    EXPECT_EQ(edited.values.at("TAG_TEXT"), "Feeder 2 free");
    edited.values["TAG_TEXT"] = added.values.at("TAG_TEXT");
    edited.values["DATE"] = added.values.at("DATE");
    edited.values["TIME"] = added.values.at("TIME");
    EXPECT_EQ(edited.values, added.values);

    // Someone else's tagout cannot be edited; one's own is removed after the modal confirmation.
    ClickRow("Tagout", 0);
    EXPECT_FALSE(PanelWidget("btnEdit")->isEnabled());
    ClickRow("Tagout", 1);
    Click(PanelWidget("btnRemove"));
    window->Settle();
    ASSERT_NE(RemovalWindow(), nullptr);
    EXPECT_TRUE(RemovalWindow()->isModal());
    auto* question = qobject_cast<QLabel*>(RemovalWindow()->WidgetOf("lblText"));
    EXPECT_EQ(question->text(), "Are you sure you want to remove the selected Tagout?");
    Click(RemovalWindow()->WidgetOf("btnOK"));
    window->Settle();
    EXPECT_EQ(RemovalWindow(), nullptr);
    ASSERT_EQ(Server().active.size(), 1u);
    EXPECT_EQ(Server().active[0].key, "ID1511202603344512");
    EXPECT_EQ(list->model()->rowCount(), 1);
}

}  // namespace
}  // namespace trovane::dialog
