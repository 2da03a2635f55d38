#include "platform/controls/list_view.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/error.h"

namespace trovane {
namespace {

class ListViewTest : public ::testing::Test {
  protected:
    ListViewTest() {
        for (int i = 1; i <= 25; ++i) list.AddItem("row " + std::to_string(i), "K" + std::to_string(i));
        list.onItemClick.Connect([this](ListItem& item) { itemClicks.push_back(item.Index()); });
        list.onListChanged.Connect(
            [this](ListViewChange change, int32_t at) { changes.emplace_back(change, at); });
    }
    int32_t Selected() const { return list.SelectedItem() ? list.SelectedItem()->Index() : 0; }

    ListView list{"ListView1"};
    std::vector<int32_t> itemClicks;
    std::vector<std::pair<ListViewChange, int32_t>> changes;
};

TEST_F(ListViewTest, ClickingARowSelectsItAndRaisesItemClickThenClick) {
    std::vector<std::string> order;
    list.onItemClick.Connect([&](ListItem&) { order.push_back("ItemClick"); });
    list.onClick.Connect([&] { order.push_back("Click"); });
    list.ClickItem(3);
    EXPECT_EQ(Selected(), 3);
    EXPECT_TRUE(list.Item(3).Selected());
    EXPECT_EQ(order, (std::vector<std::string>{"ItemClick", "Click"}));
}

TEST_F(ListViewTest, OnlyOneRowIsSelected) {
    list.Item(2).SetSelected(true);
    list.SelectItem(&list.Item(5));
    EXPECT_FALSE(list.Item(2).Selected());
    EXPECT_EQ(Selected(), 5);
    list.Item(5).SetSelected(false);
    EXPECT_EQ(list.SelectedItem(), nullptr);
}

TEST_F(ListViewTest, SelectingByCodeRaisesNoClick) {
    list.SelectItem(&list.Item(4));
    EXPECT_TRUE(itemClicks.empty());
    EXPECT_EQ(changes.back(), std::make_pair(ListViewChange::SelectionChanged, 4));
}

TEST_F(ListViewTest, NavigationKeysMoveTheSelectionBetweenKeyDownAndKeyUp) {
    list.SelectItem(&list.Item(12));
    int32_t atKeyDown = 0;
    int32_t atKeyUp = 0;
    list.onKeyDown.Connect([&](int16_t&, int16_t) { atKeyDown = Selected(); });
    list.onKeyUp.Connect([&](int16_t&, int16_t) { atKeyUp = Selected(); });
    list.PressKey(40);
    EXPECT_EQ(atKeyDown, 12);
    EXPECT_EQ(atKeyUp, 13);
    list.PressKey(38);
    EXPECT_EQ(Selected(), 12);
    list.PressKey(34);
    EXPECT_EQ(Selected(), 22);
    list.PressKey(34);
    EXPECT_EQ(Selected(), 25);
    list.PressKey(33);
    EXPECT_EQ(Selected(), 15);
    list.PressKey(36);
    EXPECT_EQ(Selected(), 1);
    list.PressKey(38);
    EXPECT_EQ(Selected(), 1);
    list.PressKey(35);
    EXPECT_EQ(Selected(), 25);
}

TEST_F(ListViewTest, OtherKeysLeaveTheSelectionAndNavigationStartsAtTheFirstRow) {
    list.PressKey(65);
    EXPECT_EQ(list.SelectedItem(), nullptr);
    list.PressKey(40);
    EXPECT_EQ(Selected(), 1);
}

TEST_F(ListViewTest, DuplicateKeyIsRejectedButEmptyKeysRepeat) {
    try {
        list.AddItem("again", "K3");
        FAIL() << "expected error 35602";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 35602);
    }
    list.AddItem("a");
    list.AddItem("b");
    EXPECT_EQ(list.ItemCount(), 27);
    EXPECT_EQ(list.FindItem("K7"), &list.Item(7));
    EXPECT_EQ(list.FindItem(""), nullptr);
}

TEST_F(ListViewTest, RowPositionsOutsideTheListRaise35600) {
    for (int32_t bad : {0, 26}) {
        try {
            list.Item(bad);
            FAIL() << bad;
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), 35600);
        }
    }
}

TEST_F(ListViewTest, RemovingRenumbersAndDropsTheSelection) {
    list.SelectItem(&list.Item(3));
    list.RemoveItem(3);
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(list.Item(3).Key(), "K4");
    EXPECT_EQ(list.Item(3).Index(), 3);
    list.ClearItems();
    EXPECT_EQ(list.ItemCount(), 0);
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

TEST(ListViewColumns, ColumnsKeepTextAndWidthAndReportChanges) {
    ListView list("ListView1");
    std::vector<ListViewChange> changes;
    list.onListChanged.Connect([&](ListViewChange change, int32_t) { changes.push_back(change); });
    list.AddColumn("");
    list.AddColumn("Signal", 2000);
    list.SetColumnWidth(1, 22);
    list.SetColumnWidth(1, 22);
    list.SetColumnText(2, "State");
    EXPECT_EQ(list.ColumnCount(), 2);
    EXPECT_EQ(list.Column(1).width, 22);
    EXPECT_EQ(list.Column(2).text, "State");
    EXPECT_THROW(list.Column(3), Error);
    list.ClearColumns();
    EXPECT_EQ(changes,
              (std::vector<ListViewChange>{ListViewChange::ColumnAdded, ListViewChange::ColumnAdded,
                                           ListViewChange::ColumnChanged, ListViewChange::ColumnChanged,
                                           ListViewChange::ColumnsCleared}));
}

TEST(ListViewImages, ImagesHaveFixedOneBasedPositionsAndUniqueKeys) {
    ListView list("ListView1");
    int imageChanges = 0;
    list.onListChanged.Connect(
        [&](ListViewChange change, int32_t) { imageChanges += change == ListViewChange::ImagesChanged; });
    ImageList& icons = list.SmallIcons();
    EXPECT_EQ(icons.Add("aa", Picture{"AlarmLedRed.ico", {1, 2}}), 1);
    EXPECT_EQ(icons.Add("bb", Picture{"fallback", {}}), 2);
    EXPECT_EQ(icons.PositionOf("bb"), 2);
    EXPECT_EQ(icons.PositionOf("zz"), 0);
    EXPECT_EQ(icons.Item(1).name, "AlarmLedRed.ico");
    EXPECT_THROW(icons.Add("aa", Picture{}), Error);
    EXPECT_THROW(icons.Item(3), Error);
    EXPECT_EQ(imageChanges, 2);
}

}  // namespace
}  // namespace trovane
