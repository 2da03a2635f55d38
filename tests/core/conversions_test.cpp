#include <gtest/gtest.h>

#include "core/conversions.h"
#include "core/error.h"

namespace trovane {
namespace {

int ErrorOf(auto&& call) {
    try {
        call();
    } catch (const Error& e) {
        return e.Number();
    }
    return 0;
}

TEST(Conversions, IntegersRoundHalfToEven) {
    EXPECT_EQ(ToInt16(Variant(2.5)), 2);
    EXPECT_EQ(ToInt16(Variant(3.5)), 4);
    EXPECT_EQ(ToInt16(Variant(-2.5)), -2);
    EXPECT_EQ(ToInt32(Variant("12.5")), 12);
}

TEST(Conversions, IntegerOverflowAtTheRangeBoundaries) {
    EXPECT_EQ(ToInt16(Variant(32767.49)), 32767);
    EXPECT_EQ(ErrorOf([] { ToInt16(Variant(32767.5)); }), 6);
    EXPECT_EQ(ToInt16(Variant(-32768.5)), -32768);
    EXPECT_EQ(ErrorOf([] { ToInt16(Variant(-32768.51)); }), 6);
    EXPECT_EQ(ErrorOf([] { ToInt32(Variant(2147483647.5)); }), 6);
    EXPECT_EQ(ErrorOf([] { ToInt32(Variant("abc")); }), 13);
}

}  // namespace
}  // namespace trovane
