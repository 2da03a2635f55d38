#include "platform/controls/combo_box.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

TEST(ComboBoxTest, SelectingAnEntrySetsTheTextAndRaisesClick) {
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
}

TEST(ComboBoxTest, InsertingBeforeTheSelectionKeepsTheSelectedEntry) {
    ComboBox combo("cboAttr");
    combo.AddItem("a");
    combo.AddItem("b");
    combo.SetListIndex(1);
    combo.AddItem("first", 0);
    EXPECT_EQ(combo.ListIndex(), 2);
    combo.RemoveItem(2);
    EXPECT_EQ(combo.ListIndex(), -1);
}

TEST(ComboBoxTest, DropDownListTextMustNameAnEntry) {
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
