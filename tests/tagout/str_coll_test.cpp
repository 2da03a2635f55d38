// cStrColl: the growth boundary at 30 slots, the strict item get, the forgiving item let, Find,
// Clear and Display.

#include <gtest/gtest.h>

#include <memory>

#include "support/error_number.h"
#include "support/fake_message_box.h"
#include "tagout/str_coll.h"

namespace trovane::testing {
namespace {

std::string Value(int n) {
    return "v" + std::to_string(n);
}

TEST(StrCollTest, ThirtiethItemIsHiddenFromItemAndFindUntilTheThirtyFirstAddGrowsTheArray) {
    cStrColl list;
    list.SetCollName("ID1");
    for (int n = 1; n <= 30; ++n) list.Add(Value(n));
    EXPECT_EQ(list.Count(), 30);
    EXPECT_EQ(list.Size(), 30);
    EXPECT_EQ(list.Item(29), "v29");
    EXPECT_EQ(list.Item(30), "");
    EXPECT_EQ(list.Find("v30"), -1);
    EXPECT_EQ(list.Find(""), 30) << "an empty probe matches the hidden slot";
    const Variant copy = list.StrArray();
    EXPECT_EQ(TypeName(copy), "String()");
    EXPECT_EQ(copy.AsArray().LowerBound(), 1);
    EXPECT_EQ(copy.AsArray().At(30), Variant("v30"));

    list.Add(Value(31));
    EXPECT_EQ(list.Size(), 60);
    EXPECT_EQ(list.Item(30), "v30");
    EXPECT_EQ(list.Find("v30"), 30);
    EXPECT_EQ(list.Find("V31"), -1) << "the comparison is exact";
    EXPECT_EQ(list.StrArray().AsArray().Size(), 60u);

    list.Clear();
    EXPECT_EQ(list.Size(), 30);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.Find(""), -1);
    EXPECT_EQ(list.CollName(), "ID1");
}

TEST(StrCollTest, ItemLetIgnoresTheTopSlotJumpsTheCountAndIndexesBelowOneRaise) {
    cStrColl list;
    list.SetItem(10, "ten");
    EXPECT_EQ(list.Count(), 10);
    EXPECT_EQ(list.Item(5), "");
    EXPECT_EQ(list.Find("ten"), 10);
    list.SetItem(30, "top");
    list.SetItem(31, "beyond");
    EXPECT_EQ(list.Count(), 10);
    EXPECT_EQ(list.StrArray().AsArray().At(30), Variant(""));
    list.AddNew("ten");
    EXPECT_EQ(list.Count(), 10);
    list.AddNew("eleven");
    EXPECT_EQ(list.Item(11), "eleven");
    EXPECT_EQ(list.Item(40), "") << "a get beyond Size answers empty";
    for (int16_t index : {0, -1}) EXPECT_EQ(ErrorNumberOf([&] { list.Item(index); }), 9) << index;
    EXPECT_EQ(ErrorNumberOf([&] { list.SetItem(0, "x"); }), 9);
    EXPECT_EQ(cStrColl().Find("x"), -1);
}

TEST(StrCollTest, CountOverflowsInsteadOfWrapping) {
    cStrColl list;
    for (int n = 0; n < 32767; ++n) list.Add("x");
    EXPECT_EQ(ErrorNumberOf([&] { list.Add("y"); }), 6);
    EXPECT_EQ(list.Count(), 32767);
}

TEST(StrCollTest, DisplayShowsEveryItemOnItsOwnLineInAnInformationBox) {
    auto box = std::make_shared<FakeMessageBox>();
    cStrColl list(box);
    list.Add("OWNER");
    list.Add("");
    list.Add("PRIORITY");
    list.Display("Changed");
    ASSERT_EQ(box->shown.size(), 1u);
    EXPECT_EQ(box->shown[0].text, "OWNER\r\n\r\nPRIORITY\r\n");
    EXPECT_EQ(box->shown[0].title, "Changed");
    EXPECT_EQ(box->shown[0].icon, MessageIcon::Information);
}

}  // namespace
}  // namespace trovane::testing
