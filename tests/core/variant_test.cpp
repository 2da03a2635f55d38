#include <gtest/gtest.h>

#include "core/error.h"
#include "core/variant.h"

namespace trovane {
namespace {

TEST(Variant, TypeNamesAreTheOnesTheRulesCompare) {
    EXPECT_EQ(TypeName(Variant()), "Empty");
    EXPECT_EQ(TypeName(Variant::Null()), "Null");
    EXPECT_EQ(TypeName(Variant(int16_t{1})), "Integer");
    EXPECT_EQ(TypeName(Variant(1)), "Long");
    EXPECT_EQ(TypeName(Variant(1.5)), "Double");
    EXPECT_EQ(TypeName(Variant("x")), "String");
    EXPECT_EQ(TypeName(Variant(true)), "Boolean");
    EXPECT_EQ(TypeName(Variant::Nothing()), "Nothing");
    EXPECT_EQ(TypeName(MakeVariantArray({})), "Variant()");
    EXPECT_EQ(TypeName(MakeStringArray({"a"}, 1)), "String()");
    EXPECT_EQ(TypeName(MakeLongArray({1}, 1)), "Long()");
}

TEST(Variant, CopyingCopiesTheArray) {
    Variant a = MakeVariantArray({1, 2});
    Variant b = a;
    b.AsArray().Set(0, "changed");
    EXPECT_EQ(a.AsArray().At(0), Variant(1));
}

TEST(VariantArray, OutOfBoundsIsSubscriptError) {
    const Variant a = MakeLongArray({7}, 1);
    try {
        (void)a.AsArray().At(0);
        FAIL();
    } catch (const Error& e) {
        EXPECT_EQ(e.Number(), 9);
    }
}

}  // namespace
}  // namespace trovane
