#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTest>
#include <QTreeView>

#include "platform/controls/list_view.h"
#include "qt/form_view.h"
#include "support/qt_application.h"
#include "support/qt_list.h"

namespace trovane::qt {
namespace {

using trovane::testing::ModelRows;
using trovane::testing::ShownRows;

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
        tree = qobject_cast<QTreeView*>(view->WidgetOf("ListView1"));
    }

    QPoint CentreOfRow(int row) const { return trovane::testing::CentreOfRow(*tree, row); }
    bool RowSelected(int row) const { return tree->selectionModel()->isRowSelected(row); }

    std::shared_ptr<Form> form = std::make_shared<Form>("Alarms");
    ListView& list = form->Add<ListView>("ListView1");
    std::unique_ptr<FormView> view;
    QTreeView* tree = nullptr;
};

// After every kind of change the view shows exactly the list's rows: texts, icons, ghosting and
// the selection, including rows added in a burst and a selection made on a row just added.
TEST_F(ListViewBindingTest, ViewShowsExactlyTheListsRowsAfterEveryChange) {
    ASSERT_NE(tree, nullptr);
    ASSERT_EQ(tree->model()->columnCount(), 3);
    EXPECT_EQ(trovane::testing::HeaderText(*tree, 1), "Object text");
    EXPECT_EQ(tree->columnWidth(1), 100);
    const auto expectSame = [&](const char* step) { EXPECT_EQ(ShownRows(*tree), ModelRows(list)) << step; };
    expectSame("start");
    list.Item(2).SetGhosted(true);
    list.Item(1).SetSubItem(2, "Acknowledged");
    expectSame("changes");
    list.RemoveItem(1);
    expectSame("remove");
    for (int i = 0; i < 50; ++i)
        list.AddItem("", "K" + std::to_string(i), i % 2).SetSubItem(1, std::to_string(i));
    list.SelectItem(&list.Item(40));  // before the view has heard of the burst
    list.RemoveItem(3);               // a row added in the burst, not yet announced
    expectSame("burst");
    list.ClearItems();
    list.AddItem("x");
    list.SetColumnText(2, "Signal");
    expectSame("clear");
    EXPECT_EQ(trovane::testing::HeaderText(*tree, 1), "Signal");
    EXPECT_EQ(tree->columnWidth(1), 100);  // a clear keeps the widths
}

// A row click selects in the model with ItemClick and Click; the program's selection is shown
// without events; a disabled list ignores clicks.
TEST_F(ListViewBindingTest, ClickOnARowSelectsItInTheModelAndCodeSelectsSilently) {
    std::vector<std::string> events;
    list.onItemClick.Connect([&](ListItem& row) { events.push_back("item " + std::to_string(row.Index())); });
    list.onClick.Connect([&] { events.push_back("click"); });
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, CentreOfRow(1));
    EXPECT_EQ(list.SelectedItem(), &list.Item(2));
    EXPECT_TRUE(RowSelected(1));
    list.SelectItem(&list.Item(3));
    EXPECT_TRUE(RowSelected(2));
    list.SelectItem(nullptr);
    EXPECT_FALSE(tree->selectionModel()->hasSelection());
    list.SetEnabled(false);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, CentreOfRow(0));
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(events, (std::vector<std::string>{"item 2", "click"}));
}

TEST_F(ListViewBindingTest, NavigationKeysMoveTheModelsSelection) {
    list.SelectItem(&list.Item(1));
    EXPECT_TRUE(RowSelected(0));
    int16_t keyUp = 0;
    list.onKeyUp.Connect([&](int16_t& key, int16_t) { keyUp = key; });
    QTest::keyClick(tree, Qt::Key_Down);
    EXPECT_EQ(keyUp, 40);
    EXPECT_EQ(list.SelectedItem()->Index(), 2);
    EXPECT_TRUE(RowSelected(1));
    EXPECT_FALSE(RowSelected(0));
    QTest::keyClick(tree, Qt::Key_End);
    EXPECT_EQ(list.SelectedItem()->Index(), 3);
}

}  // namespace
}  // namespace trovane::qt
