// The wire form of LISTs and VECTORs, and how values are written as Vexl.

#include <gtest/gtest.h>

#include "sim/vexl_notation.h"
#include "sim/vexl_values.h"

namespace trovane::sim {
namespace {

TEST(VexlWireForm, ListHasCurrencyHeaderAndUpperCaseNames) {
    const Variant list = MakeVexlList({{"status", Variant(int32_t{0})}, {"Message", Variant("x")}});
    ASSERT_EQ(TypeName(list), "Variant()");
    const VariantArray& array = list.AsArray();
    EXPECT_EQ(array.LowerBound(), 0);
    EXPECT_EQ(array.UpperBound(), 4);
    EXPECT_EQ(array.At(0), Variant(Currency{0}));
    EXPECT_EQ(array.At(1), Variant("STATUS"));
    EXPECT_EQ(array.At(3), Variant("MESSAGE"));
    EXPECT_TRUE(IsVexlList(list));
    EXPECT_FALSE(IsVexlVector(list));
}

TEST(VexlWireForm, RepeatedListNameKeepsPositionTakesLastValue) {
    const Variant list =
        MakeVexlList({{"A", Variant(int32_t{1})}, {"B", Variant(int32_t{2})}, {"a", Variant(int32_t{3})}});
    EXPECT_EQ(list.AsArray().Size(), 5u);
    EXPECT_EQ(*FindVexlListItem(list, "a"), Variant(int32_t{3}));
}

TEST(VexlWireForm, VectorIsTypedByItsElements) {
    EXPECT_EQ(TypeName(MakeVexlVector({Variant("a"), Variant("b")})), "String()");
    EXPECT_EQ(TypeName(MakeVexlVector({Variant(int32_t{1}), Variant(int16_t{2})})), "Long()");
    EXPECT_EQ(TypeName(MakeVexlVector({Variant(int32_t{1}), Variant("b")})), "Variant()");
    EXPECT_EQ(TypeName(MakeVexlVector({Variant(1.5)})), "Variant()");
    EXPECT_EQ(TypeName(MakeVexlVector({Variant(true)})), "Variant()");
    EXPECT_EQ(MakeVexlVector({Variant("a")}).AsArray().LowerBound(), 1);
    const Variant empty = MakeVexlVector({});
    EXPECT_EQ(TypeName(empty), "Variant()");
    EXPECT_EQ(empty.AsArray().UpperBound(), 0);
    EXPECT_TRUE(IsVexlVector(empty));
}

TEST(VexlWireForm, ListRecognitionRejectsLookalikes) {
    EXPECT_FALSE(IsVexlList(MakeVariantArray({Variant(Currency{0}), Variant("A")})));  // name without value
    EXPECT_FALSE(IsVexlList(MakeVariantArray({Variant(int32_t{0}), Variant("A"), Variant(1)})));  // header
    EXPECT_FALSE(IsVexlList(MakeVariantArray({Variant(Currency{0}), Variant(int32_t{1}), Variant(1)})));
    EXPECT_FALSE(IsVexlList(MakeStringArray({"x"})));
    EXPECT_FALSE(IsVexlList(Variant("LIST")));
    EXPECT_EQ(FindVexlListItem(Variant(int32_t{1}), "A"), nullptr);
}

TEST(VexlNotationTest, WritesValuesTheLanguageCannotProduce) {
    EXPECT_EQ(VexlNotation(Variant(int16_t{-3})), "-3");
    EXPECT_EQ(VexlNotation(Variant(10.0)), "10.0");
    EXPECT_EQ(VexlNotation(Variant(0.25)), "0.25");
    EXPECT_EQ(VexlNotation(Variant(0.1f)), "0.1");
    EXPECT_EQ(VexlNotation(Variant(Currency{25000})), "2.5");
    EXPECT_EQ(VexlNotation(Variant::Null()), "<NULL>");
    EXPECT_EQ(VexlNotation(Variant::Nothing()), "<NOTHING>");
    EXPECT_EQ(VexlNotation(MakeStringArray({"a", "b"}, 0)), "(\"a\",\"b\")") << "outside the wire form";
}

}  // namespace
}  // namespace trovane::sim
