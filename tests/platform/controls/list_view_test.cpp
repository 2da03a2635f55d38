#include "platform/controls/list_view.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;
using C = ListViewChange;

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

// The operator's row click selects one row only and raises ItemClick then Click; code raises none.
TEST_F(ListViewTest, ClickRaisesItemClickThenClickButSelectingByCodeRaisesNone) {
    std::vector<std::string> order;
    list.onItemClick.Connect([&](ListItem&) { order.push_back("ItemClick"); });
    list.onClick.Connect([&] { order.push_back("Click"); });
    list.SelectItem(&list.Item(4));
    EXPECT_TRUE(order.empty());
    EXPECT_EQ(changes.back(), std::make_pair(C::SelectionChanged, 4));
    list.ClickItem(3);
    EXPECT_FALSE(list.Item(4).Selected());
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
    std::vector<int32_t> seen;  // at KeyDown, at KeyUp
    list.onKeyDown.Connect([&](int16_t&, int16_t) { seen.push_back(Selected()); });
    list.onKeyUp.Connect([&](int16_t&, int16_t) { seen.push_back(Selected()); });
    list.PressKey(40);
    EXPECT_EQ(seen, (std::vector<int32_t>{12, 13}));
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
    EXPECT_EQ(list.FindItem("K7"), &list.Item(7));
    EXPECT_EQ(list.FindItem(""), nullptr);
    for (int32_t at : {0, 28}) EXPECT_EQ(ErrorNumberOf([&] { list.Item(at); }), 35600) << at;
    list.SelectItem(&list.Item(3));
    list.RemoveItem(3);  // renumbers and drops the selection
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(list.Item(3).Key(), "K4");
    EXPECT_EQ(list.Item(3).Index(), 3);
    EXPECT_EQ(list.FindItem("K3"), nullptr);  // a removed key is free again
    EXPECT_EQ(list.AddItem("again", "K3").Index(), 27);
    EXPECT_EQ(list.FindItem("K3"), &list.Item(27));
    list.ClearItems();
    EXPECT_EQ(list.FindItem("K4"), nullptr);
    list.PressKey(40);  // nothing to select
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(list.AddItem("fresh", "K4").Index(), 1);
}

// A rebuilt list reuses the rows of the last clear; a new row carries nothing of the old one.
TEST_F(ListViewTest, RowsAddedAfterAClearStartBlank) {
    ListItem& old = list.Item(1);
    old.SetTag("True");
    old.SetGhosted(true);
    old.SetSubItem(2, "Persisting");
    list.SelectItem(&old);
    list.ClearItems();
    ListItem& fresh = list.AddItem("new", "", 3);
    EXPECT_EQ(fresh.Text(), "new");
    EXPECT_EQ(fresh.Key(), "");
    EXPECT_EQ(fresh.SmallIcon(), 3);
    EXPECT_EQ(fresh.Tag(), "");
    EXPECT_FALSE(fresh.Ghosted());
    EXPECT_FALSE(fresh.Selected());
    EXPECT_EQ(fresh.SubItem(2), "");
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(list.FindItem("K1"), nullptr);
}

// Rows, columns and images report only real changes; images keep fixed one-based positions.
TEST_F(ListViewTest, RowsColumnsAndImagesReportOnlyRealChanges) {
    ListItem& row = list.Item(2);
    changes.clear();
    row.SetGhosted(true);
    row.SetGhosted(true);
    row.SetSubItem(2, "Alarm");
    row.SetSubItem(5, "");  // an unset sub-item already reads ""
    EXPECT_EQ(row.SubItem(1), "");
    EXPECT_THROW(row.SubItem(0), Error);
    list.AddColumn("");
    list.AddColumn("Signal", 2000);
    list.SetColumnWidth(1, 22);
    list.SetColumnWidth(1, 22);
    EXPECT_THROW(list.Column(3), Error);
    list.ClearColumns();
    ImageList& icons = list.SmallIcons();
    EXPECT_EQ(icons.Add("aa", Picture{"AlarmLedRed.ico", {1, 2}}), 1);
    EXPECT_EQ(icons.Add("bb", Picture{"fallback", {}}), 2);
    EXPECT_EQ(icons.PositionOf("bb"), 2);
    EXPECT_EQ(icons.PositionOf("zz"), 0);
    EXPECT_THROW(icons.Add("aa", Picture{}), Error);
    EXPECT_THROW(icons.Item(3), Error);
    EXPECT_EQ(changes, (std::vector<std::pair<C, int32_t>>{{C::RowChanged, 2},
                                                           {C::RowChanged, 2},
                                                           {C::ColumnAdded, 1},
                                                           {C::ColumnAdded, 2},
                                                           {C::ColumnChanged, 1},
                                                           {C::ColumnsCleared, 0},
                                                           {C::ImagesChanged, 0},
                                                           {C::ImagesChanged, 0}}));
}

}  // namespace
}  // namespace trovane
