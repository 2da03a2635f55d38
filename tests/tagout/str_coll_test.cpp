// cStrColl: the growth boundary at 30 slots with the strict item get, the forgiving item let, Find
// and Display.

#include <gtest/gtest.h>

#include "support/error_number.h"
#include "support/fake_message_box.h"
#include "tagout/str_coll.h"

namespace trovane::testing {
namespace {

TEST(StrCollTest, ThirtiethItemIsHiddenFromItemAndFindButNotStrArrayUntilTheThirtyFirstAddGrows) {
    cStrColl list;
    list.SetCollName("ID1");
    for (int n = 1; n <= 30; ++n) list.Add("v" + std::to_string(n));
    EXPECT_EQ(list.Size(), 30);
    EXPECT_EQ(list.Item(29), "v29");
    EXPECT_EQ(list.Item(30), "");
    EXPECT_EQ(list.Find("v30"), -1);
    EXPECT_EQ(list.Find(""), 30) << "an empty probe matches the hidden slot";
    EXPECT_EQ(list.StrArray().AsArray().At(30), Variant("v30"));
    list.Add("v31");
    EXPECT_EQ(list.Size(), 60);
    EXPECT_EQ(list.Item(30), "v30");
    EXPECT_EQ(list.Find("v30"), 30);
    list.Clear();
    EXPECT_EQ(list.Size(), 30);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.CollName(), "ID1");
}

TEST(StrCollTest, ItemLetIgnoresTheTopSlotJumpsTheCountAndIndexesBelowOneRaise) {
    auto box = std::make_shared<FakeMessageBox>();
    cStrColl list(box);
    list.SetItem(10, "ten");
    list.SetItem(30, "top");
    EXPECT_EQ(list.Count(), 10);
    EXPECT_EQ(list.StrArray().AsArray().At(30), Variant(""));
    list.AddNew("ten");
    list.AddNew("Ten");
    EXPECT_EQ(list.Count(), 11);
    EXPECT_EQ(ErrorNumberOf([&] { list.Item(0); }), 9);
    EXPECT_EQ(ErrorNumberOf([&] { list.SetItem(-1, "x"); }), 9);
    list.Clear();
    list.Add("OWNER");
    list.Add("PRIORITY");
    list.Display("Changed");
    ASSERT_EQ(box->shown.size(), 1u);
    EXPECT_EQ(box->shown[0].text, "OWNER\r\nPRIORITY\r\n");
    EXPECT_EQ(box->shown[0].title, "Changed");
    EXPECT_EQ(box->shown[0].icon, MessageIcon::Information);
}

}  // namespace
}  // namespace trovane::testing
