#include "core/variant.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/error.h"
#include "core/object.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

class Thing final : public Object {
  public:
    std::string ClassName() const override { return "cStrColl"; }
};

TEST(Variant, TypeNamesAreTheOnesTheRulesCompare) {
    // clang-format off
    const std::pair<Variant, const char*> cases[] = {
        {Variant(), "Empty"}, {Variant::Null(), "Null"}, {Variant(int16_t{1}), "Integer"}, {Variant(1), "Long"},
        {Variant(1.5f), "Single"}, {Variant(1.5), "Double"}, {Variant(Currency{}), "Currency"},
        {Variant(Date{}), "Date"}, {Variant("x"), "String"}, {Variant(true), "Boolean"},
        {Variant::Nothing(), "Nothing"}, {Variant(ObjectRef(std::make_shared<Thing>())), "cStrColl"},
        {MakeVariantArray({}), "Variant()"}, {MakeStringArray({"a"}, 1), "String()"},
        {MakeLongArray({1}, 1), "Long()"}, {Variant(VariantArray(ElementKind::Integer, 0, 2)), "Integer()"}};
    // clang-format on
    for (const auto& [value, name] : cases) EXPECT_EQ(TypeName(value), name);
}

TEST(Variant, EqualityNeedsTheSameKindAndRawAccessToTheWrongKindIsAMismatch) {
    EXPECT_NE(Variant(int16_t{1}), Variant(int32_t{1}));
    EXPECT_NE(Variant(), Variant(""));
    EXPECT_EQ(MakeVariantArray({1, "a"}), MakeVariantArray({1, "a"}));
    EXPECT_NE(MakeVariantArray({1}), MakeVariantArray({1}, 1));
    EXPECT_EQ(ErrorNumberOf([] { (void)Variant("1").AsLong(); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { (void)Variant(1).AsArray(); }), 13);
}

TEST(Variant, CopyingCopiesArraysDeeplyButSharesObjects) {
    Variant inner = MakeVariantArray({1, 2});
    Variant a = MakeVariantArray({inner, Variant(ObjectRef(std::make_shared<Thing>()))});
    Variant b = a;
    b.AsArray().Set(0, "changed");
    EXPECT_EQ(a.AsArray().At(0), inner);
    EXPECT_EQ(a.AsArray().At(1).AsObject(), b.AsArray().At(1).AsObject());
}

TEST(Variant, MovedFromVariantIsEmpty) {
    Variant source = MakeVariantArray({1});
    Variant target = std::move(source);
    EXPECT_EQ(TypeName(source), "Empty");  // NOLINT(bugprone-use-after-move): the state is defined
    Variant copy = source;
    EXPECT_TRUE(copy.IsEmpty());
    source = std::move(target);
    EXPECT_EQ(TypeName(source), "Variant()");
}

TEST(VariantArray, BoundsKeepTheLowerBound) {
    const Variant a = MakeStringArray({"x", "y"}, 1);
    EXPECT_EQ(a.AsArray().LowerBound(), 1);
    EXPECT_EQ(a.AsArray().UpperBound(), 2);
    EXPECT_EQ(a.AsArray().At(1), Variant("x"));
    EXPECT_EQ(ErrorNumberOf([&] { (void)a.AsArray().At(0); }), 9);
    EXPECT_EQ(ErrorNumberOf([&] { (void)a.AsArray().At(3); }), 9);
    const VariantArray empty(ElementKind::Variant, 0, size_t{0});
    EXPECT_EQ(empty.UpperBound(), -1);
    EXPECT_EQ(ErrorNumberOf([&] { (void)empty.At(0); }), 9);
}

TEST(VariantArray, ElementsAreCoercedToTheElementKind) {
    Variant longs = MakeLongArray({0, 0});
    longs.AsArray().Set(0, "12");
    longs.AsArray().Set(1, 2.5);
    EXPECT_EQ(longs.AsArray().At(0), Variant(int32_t{12}));
    EXPECT_EQ(longs.AsArray().At(1), Variant(int32_t{2}));
    EXPECT_EQ(ErrorNumberOf([&] { longs.AsArray().Set(0, "x"); }), 13);
    EXPECT_EQ(longs.AsArray().At(0), Variant(int32_t{12}));  // unchanged by the failed store

    Variant integers(VariantArray(ElementKind::Integer, 0, 1));
    EXPECT_EQ(ErrorNumberOf([&] { integers.AsArray().Set(0, 40000); }), 6);

    Variant strings = MakeStringArray({""});
    strings.AsArray().Set(0, 5);
    EXPECT_EQ(strings.AsArray().At(0), Variant("5"));

    Variant variants = MakeVariantArray({Variant()});
    variants.AsArray().Set(0, int16_t{5});
    EXPECT_EQ(TypeName(variants.AsArray().At(0)), "Integer");
}

TEST(VariantArray, ResizeKeepsContentsAndFillsWithTheKindsDefault) {
    Variant strings = MakeStringArray({"a"}, 1);
    strings.AsArray().ResizePreserve(3);
    EXPECT_EQ(strings.AsArray().At(1), Variant("a"));
    EXPECT_EQ(strings.AsArray().At(3), Variant(""));
    strings.AsArray().ResizePreserve(0);  // erased: upper bound below the lower bound
    EXPECT_EQ(strings.AsArray().Size(), 0u);
    EXPECT_EQ(ErrorNumberOf([&] { strings.AsArray().ResizePreserve(-1); }), 9);
    Variant variants = MakeVariantArray({});
    variants.AsArray().Append("x");
    EXPECT_EQ(variants.AsArray().UpperBound(), 0);
}

}  // namespace
}  // namespace trovane
