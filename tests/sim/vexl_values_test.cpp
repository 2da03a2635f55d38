// The wire form of LISTs and VECTORs, and how values are written as Vexl.

#include <gtest/gtest.h>

#include "sim/vexl_notation.h"
#include "sim/vexl_values.h"

namespace trovane::sim {
namespace {

TEST(VexlWireForm, ListHasCurrencyHeaderUpperCaseNamesAndARepeatedNameKeepsItsPlace) {
    const Variant list = MakeVexlList(
        {{"status", Variant(int32_t{0})}, {"Message", Variant("x")}, {"STATUS", Variant(int32_t{3})}});
    EXPECT_EQ(list, MakeVariantArray({Variant(Currency{0}), "STATUS", int32_t{3}, "MESSAGE", "x"}));
    EXPECT_EQ(*FindVexlListItem(list, "status"), Variant(int32_t{3}));
    EXPECT_TRUE(IsVexlList(list));
    EXPECT_FALSE(IsVexlVector(list));
    for (const Variant& lookalike :
         {MakeVariantArray({Variant(Currency{0}), Variant("A")}),             // a name without value
          MakeVariantArray({Variant(int32_t{0}), Variant("A"), Variant(1)}),  // no currency header
          MakeVariantArray({Variant(Currency{0}), Variant(int32_t{1}), Variant(1)}), MakeStringArray({"x"}),
          Variant("LIST")})
        EXPECT_FALSE(IsVexlList(lookalike));
    EXPECT_EQ(FindVexlListItem(Variant(int32_t{1}), "A"), nullptr);
}

TEST(VexlWireForm, VectorIsOneBasedAndTypedByItsElements) {
    const std::pair<Variant, const char*> cases[] = {
        {MakeVexlVector({Variant("a"), Variant("b")}), "String()"},
        {MakeVexlVector({Variant(int32_t{1}), Variant(int16_t{2})}), "Long()"},
        {MakeVexlVector({Variant(int32_t{1}), Variant("b")}), "Variant()"},
        {MakeVexlVector({Variant(1.5)}), "Variant()"},
        {MakeVexlVector({Variant(true)}), "Variant()"},
        {MakeVexlVector({}), "Variant()"}};
    for (const auto& [vector, type] : cases) {
        EXPECT_EQ(TypeName(vector), type);
        EXPECT_EQ(vector.AsArray().LowerBound(), 1);
        EXPECT_TRUE(IsVexlVector(vector));
    }
}

TEST(VexlNotationTest, WritesValuesTheLanguageCannotProduce) {
    const std::pair<Variant, const char*> cases[] = {
        {Variant(int16_t{-3}), "-3"},      {Variant(10.0), "10.0"},
        {Variant(0.25), "0.25"},           {Variant(0.1f), "0.1"},
        {Variant(Currency{25000}), "2.5"}, {Variant::Null(), "<NULL>"},
        {Variant::Nothing(), "<NOTHING>"}, {MakeStringArray({"a", "b"}, 0), "(\"a\",\"b\")"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(VexlNotation(value), text);
}

}  // namespace
}  // namespace trovane::sim
