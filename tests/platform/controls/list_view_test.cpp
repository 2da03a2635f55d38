#include "platform/controls/list_view.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

class ListViewTest : public ::testing::Test {
  protected:
    ListViewTest() {
        for (int i = 1; i <= 25; ++i) list.AddItem("row " + std::to_string(i), "K" + std::to_string(i));
        list.onListChanged.Connect(
            [this](ListViewChange change, int32_t at) { changes.emplace_back(change, at); });
    }
    int32_t Selected() const { return list.SelectedItem() ? list.SelectedItem()->Index() : 0; }

    ListView list{"ListView1"};
    std::vector<std::pair<ListViewChange, int32_t>> changes;
};

TEST_F(ListViewTest, ClickRaisesItemClickThenClickButSelectingByCodeRaisesNone) {
    std::vector<std::string> order;
    list.onItemClick.Connect([&](ListItem&) { order.push_back("ItemClick"); });
    list.onClick.Connect([&] { order.push_back("Click"); });
    list.SelectItem(&list.Item(4));
    EXPECT_TRUE(order.empty());
    EXPECT_EQ(changes.back(), std::make_pair(ListViewChange::SelectionChanged, 4));
    list.ClickItem(3);
    EXPECT_TRUE(list.Item(3).Selected());
    EXPECT_FALSE(list.Item(4).Selected());  // only one row is selected
    EXPECT_EQ(order, (std::vector<std::string>{"ItemClick", "Click"}));
    list.Item(3).SetSelected(false);
    EXPECT_EQ(list.SelectedItem(), nullptr);
}

TEST_F(ListViewTest, NavigationKeysMoveTheSelectionBetweenKeyDownAndKeyUp) {
    list.PressKey(65);  // not a navigation key
    EXPECT_EQ(list.SelectedItem(), nullptr);
    list.PressKey(40);  // navigation starts at the first row
    EXPECT_EQ(Selected(), 1);
    list.SelectItem(&list.Item(12));
    int32_t atKeyDown = 0;
    int32_t atKeyUp = 0;
    list.onKeyDown.Connect([&](int16_t&, int16_t) { atKeyDown = Selected(); });
    list.onKeyUp.Connect([&](int16_t&, int16_t) { atKeyUp = Selected(); });
    list.PressKey(40);
    EXPECT_EQ(atKeyDown, 12);
    EXPECT_EQ(atKeyUp, 13);
    const std::pair<int16_t, int32_t> steps[] = {{38, 12}, {34, 22}, {34, 25}, {33, 15},
                                                 {36, 1},  {38, 1},  {35, 25}};
    for (const auto& [key, expected] : steps) {
        list.PressKey(key);
        EXPECT_EQ(Selected(), expected) << key;
    }
}

TEST_F(ListViewTest, KeysAndPositionsAreCheckedAndRemovingRenumbers) {
    EXPECT_EQ(ErrorNumberOf([&] { list.AddItem("again", "K3"); }), 35602);
    list.AddItem("a");
    list.AddItem("b");  // empty keys may repeat
    EXPECT_EQ(list.ItemCount(), 27);
    EXPECT_EQ(list.FindItem("K7"), &list.Item(7));
    EXPECT_EQ(list.FindItem(""), nullptr);
    EXPECT_EQ(ErrorNumberOf([&] { list.Item(0); }), 35600);
    EXPECT_EQ(ErrorNumberOf([&] { list.Item(28); }), 35600);
    // Removing renumbers and drops the selection.
    list.SelectItem(&list.Item(3));
    list.RemoveItem(3);
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(list.Item(3).Key(), "K4");
    EXPECT_EQ(list.Item(3).Index(), 3);
    list.ClearItems();
    list.PressKey(40);  // nothing to select
    EXPECT_EQ(list.SelectedItem(), nullptr);
}

TEST_F(ListViewTest, RowChangesAreReportedOnlyWhenSomethingChanged) {
    ListItem& row = list.Item(2);
    changes.clear();
    row.SetGhosted(true);
    row.SetGhosted(true);
    row.SetTag("True");
    row.SetSubItem(2, "Alarm");
    row.SetSubItem(5, "");  // an unset sub-item already reads ""
    EXPECT_EQ(changes.size(), 3u);
    EXPECT_EQ(changes.front(), std::make_pair(ListViewChange::RowChanged, 2));
    EXPECT_EQ(row.SubItem(1), "");
    EXPECT_EQ(row.SubItem(2), "Alarm");
    EXPECT_THROW(row.SubItem(0), Error);
}

TEST(ListViewColumns, ColumnsAndImagesReportOnlyRealChanges) {
    ListView list("ListView1");
    std::vector<ListViewChange> changes;
    list.onListChanged.Connect([&](ListViewChange change, int32_t) { changes.push_back(change); });
    list.AddColumn("");
    list.AddColumn("Signal", 2000);
    list.SetColumnWidth(1, 22);
    list.SetColumnWidth(1, 22);
    list.SetColumnText(2, "State");
    EXPECT_EQ(list.Column(1).width, 22);
    EXPECT_THROW(list.Column(3), Error);
    list.ClearColumns();
    // Images have fixed one-based positions and unique keys.
    ImageList& icons = list.SmallIcons();
    EXPECT_EQ(icons.Add("aa", Picture{"AlarmLedRed.ico", {1, 2}}), 1);
    EXPECT_EQ(icons.Add("bb", Picture{"fallback", {}}), 2);
    EXPECT_EQ(icons.PositionOf("bb"), 2);
    EXPECT_EQ(icons.PositionOf("zz"), 0);
    EXPECT_THROW(icons.Add("aa", Picture{}), Error);
    EXPECT_THROW(icons.Item(3), Error);
    using C = ListViewChange;
    EXPECT_EQ(changes, (std::vector<C>{C::ColumnAdded, C::ColumnAdded, C::ColumnChanged, C::ColumnChanged,
                                       C::ColumnsCleared, C::ImagesChanged, C::ImagesChanged}));
}

}  // namespace
}  // namespace trovane
