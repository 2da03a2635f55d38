#include "sim/item_path.h"

#include <gtest/gtest.h>

namespace trovane::sim {
namespace {

TEST(ItemPathTest, ObjectApplicationAndIndexedPathsParse) {
    const auto comment = ParseItemPath("\\\\APL\\1\\P\\abc:gc");
    ASSERT_TRUE(comment);
    EXPECT_EQ(comment->application, 1);
    EXPECT_EQ(comment->key, (ItemKey{"ABC", std::nullopt, "GC"}));

    const auto counter = ParseItemPath("\\\\APL\\12\\P\\ABC\\10:CO");
    ASSERT_TRUE(counter);
    EXPECT_EQ(counter->application, 12);
    EXPECT_EQ(counter->key, (ItemKey{"ABC", 10, "CO"}));

    const auto alarms = ParseItemPath("\\\\APL\\1:AT");
    ASSERT_TRUE(alarms);
    EXPECT_EQ(alarms->key, (ItemKey{"", std::nullopt, "AT"}));
}

TEST(ItemPathTest, MalformedPathsAreRefused) {
    for (const char* path : {"", "\\\\APL\\", "\\\\APL\\x:AT", "\\APL\\1:AT", "\\\\APL\\1\\P\\ABC",
                             "\\\\APL\\1\\P\\:GC", "\\\\APL\\1\\P\\ABC\\:GC", "\\\\APL\\1\\P\\ABC\\1x:GC",
                             "\\\\APL\\1:", "\\\\APL\\1\\P\\A B:GC", "\\\\APL\\99999999999:AT"})
        EXPECT_FALSE(ParseItemPath(path)) << path;
}

}  // namespace
}  // namespace trovane::sim
