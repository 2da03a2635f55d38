#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTest>
#include <QTreeWidget>

#include "platform/controls/list_view.h"
#include "qt/form_view.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

Picture RedSquare() {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return Picture{"red.png", std::vector<uint8_t>(bytes.begin(), bytes.end())};
}

class ListViewBindingTest : public ::testing::Test {
  protected:
    ListViewBindingTest() {
        trovane::testing::TestApplication();
        form->Move(0, 0, 6000, 3000);
        list.Move(0, 0, 6000, 3000);
        list.AddColumn("", 330);
        list.AddColumn("Object text", 1500);
        list.AddColumn("Alarm state", 1500);
        list.SmallIcons().Add("aa", RedSquare());
        for (const char* text : {"Breaker trip", "Gas pressure low", "Spring not charged"}) {
            ListItem& row = list.AddItem("", "", 1);
            row.SetSubItem(1, text);
            row.SetSubItem(2, "Persisting");
        }
        view = std::make_unique<FormView>(form, TwipsScale{15, 15});
        view->show();
        tree = qobject_cast<QTreeWidget*>(view->WidgetOf("ListView1"));
    }

    QPoint CentreOfRow(int row) const { return tree->visualItemRect(tree->topLevelItem(row)).center(); }

    std::shared_ptr<Form> form = std::make_shared<Form>("Alarms");
    ListView& list = form->Add<ListView>("ListView1");
    std::unique_ptr<FormView> view;
    QTreeWidget* tree = nullptr;
};

TEST_F(ListViewBindingTest, ColumnsRowsIconsGhostingAndRebuildsFollowTheModel) {
    ASSERT_NE(tree, nullptr);
    ASSERT_EQ(tree->columnCount(), 3);
    EXPECT_EQ(tree->headerItem()->text(1), "Object text");
    EXPECT_EQ(tree->columnWidth(1), 100);
    ASSERT_EQ(tree->topLevelItemCount(), 3);
    EXPECT_EQ(tree->topLevelItem(1)->text(1), "Gas pressure low");
    EXPECT_FALSE(tree->topLevelItem(0)->icon(0).isNull());
    list.Item(2).SetGhosted(true);
    const QColor grey = tree->palette().color(QPalette::Disabled, QPalette::Text);
    EXPECT_EQ(tree->topLevelItem(1)->foreground(1).color(), grey);
    EXPECT_NE(tree->topLevelItem(0)->foreground(1).color(), grey);
    list.Item(1).SetSubItem(2, "Acknowledged");
    EXPECT_EQ(tree->topLevelItem(0)->text(2), "Acknowledged");
    list.ClearItems();
    list.AddItem("x");
    EXPECT_EQ(tree->topLevelItemCount(), 1);
}

// A row click selects in the model with ItemClick and Click; the program's selection is shown
// without events; a disabled list ignores clicks.
TEST_F(ListViewBindingTest, ClickOnARowSelectsItInTheModelAndCodeSelectsSilently) {
    std::vector<std::string> events;
    list.onItemClick.Connect([&](ListItem& row) { events.push_back("item " + std::to_string(row.Index())); });
    list.onClick.Connect([&] { events.push_back("click"); });
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, CentreOfRow(1));
    EXPECT_EQ(list.SelectedItem(), &list.Item(2));
    EXPECT_TRUE(tree->topLevelItem(1)->isSelected());
    list.SelectItem(&list.Item(3));
    EXPECT_TRUE(tree->topLevelItem(2)->isSelected());
    list.SelectItem(nullptr);
    EXPECT_TRUE(tree->selectedItems().isEmpty());
    list.SetEnabled(false);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, CentreOfRow(0));
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(events, (std::vector<std::string>{"item 2", "click"}));
}

TEST_F(ListViewBindingTest, NavigationKeysMoveTheModelsSelection) {
    list.SelectItem(&list.Item(1));
    EXPECT_TRUE(tree->topLevelItem(0)->isSelected());
    int16_t keyUp = 0;
    list.onKeyUp.Connect([&](int16_t& key, int16_t) { keyUp = key; });
    QTest::keyClick(tree, Qt::Key_Down);
    EXPECT_EQ(keyUp, 40);
    EXPECT_EQ(list.SelectedItem()->Index(), 2);
    EXPECT_TRUE(tree->topLevelItem(1)->isSelected());
    EXPECT_FALSE(tree->topLevelItem(0)->isSelected());
    QTest::keyClick(tree, Qt::Key_End);
    EXPECT_EQ(list.SelectedItem()->Index(), 3);
}

}  // namespace
}  // namespace trovane::qt
