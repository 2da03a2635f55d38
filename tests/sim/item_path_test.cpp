#include "sim/item_path.h"

#include <gtest/gtest.h>

namespace trovane::sim {
namespace {

// The common paths are parsed through every subscription test; here the cases those do not reach.
TEST(ItemPathTest, NamesAreUpperCasedApplicationsMayHaveSeveralDigitsAndMalformedPathsAreRefused) {
    const auto counter = ParseItemPath("\\\\APL\\12\\P\\abc\\10:co");
    ASSERT_TRUE(counter);
    EXPECT_EQ(counter->application, 12);
    EXPECT_EQ(counter->key, (ItemKey{"ABC", 10, "CO"}));
    for (const char* path : {"", "\\\\APL\\", "\\\\APL\\x:AT", "\\APL\\1:AT", "\\\\APL\\1\\P\\ABC",
                             "\\\\APL\\1\\P\\:GC", "\\\\APL\\1\\P\\ABC\\:GC", "\\\\APL\\1\\P\\ABC\\1x:GC",
                             "\\\\APL\\1:", "\\\\APL\\1\\P\\A B:GC", "\\\\APL\\99999999999:AT"})
        EXPECT_FALSE(ParseItemPath(path)) << path;
}

}  // namespace
}  // namespace trovane::sim
