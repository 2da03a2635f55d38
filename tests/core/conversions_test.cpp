#include "core/conversions.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

#include "core/error.h"
#include "core/object.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

class Thing final : public Object {
  public:
    std::string ClassName() const override { return "clsTagout"; }
};

TEST(ToIntegers, RoundHalfToEvenAndOtherKindsFollowTheClassicRules) {
    const std::pair<Variant, int16_t> sixteen[] = {
        {Variant(0.5), 0},          {Variant(1.5), 2},           {Variant(2.5), 2},   {Variant(3.5), 4},
        {Variant(-0.5), 0},         {Variant(-1.5), -2},         {Variant(-2.5), -2}, {Variant(2.5000001), 3},
        {Variant(32767.49), 32767}, {Variant(-32768.5), -32768}, {Variant(), 0},      {Variant(true), -1},
        {Variant("&HFFFF"), -1}};
    for (const auto& [value, expected] : sixteen) EXPECT_EQ(ToInt16(value), expected) << ToString(value);
    // clang-format off
    const std::pair<Variant, int32_t> thirtyTwo[] = {
        {Variant("12.5"), 12}, {Variant(2147483646.5), 2147483646}, {Variant(2147483647.0), 2147483647},
        {Variant(-2147483648.5), INT32_MIN}, {Variant(" 12 "), 12}, {Variant("True"), -1},
        {Variant("&H10000"), 65536}, {Variant(Currency{25000}), 2}};  // 2.5 rounds to even
    // clang-format on
    for (const auto& [value, expected] : thirtyTwo) EXPECT_EQ(ToInt32(value), expected) << ToString(value);
}

TEST(ToIntegers, OverflowAtTheRangeBoundariesAndMismatchOtherwise) {
    for (const Variant& v : {Variant(32767.5), Variant(int32_t{32768}), Variant(-32768.51),
                             Variant(int32_t{-32769}), Variant("40000")})
        EXPECT_EQ(ErrorNumberOf([&] { ToInt16(v); }), 6) << ToString(v);
    for (const Variant& v :
         {Variant(2147483647.5), Variant(-2147483649.0), Variant(Currency{int64_t{3000000000} * 10000})})
        EXPECT_EQ(ErrorNumberOf([&] { ToInt32(v); }), 6) << ToString(v);
    for (const Variant& v : {Variant("abc"), Variant(""), MakeLongArray({1}), Variant::Nothing()})
        EXPECT_EQ(ErrorNumberOf([&] { ToInt32(v); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant::Null()); }), 94);
}

TEST(ToText, EachKindHasItsClassicForm) {
    // clang-format off
    const std::pair<Variant, const char*> cases[] = {
        {Variant(int16_t{-5}), "-5"}, {Variant(int32_t{0}), "0"}, {Variant(INT32_MIN), "-2147483648"},
        {Variant(1.5), "1.5"}, {Variant(-0.25), "-0.25"}, {Variant(0.1 + 0.2), "0.3"}, {Variant(100.0), "100"},
        {Variant(123456789012345.0), "123456789012345"}, {Variant(1e15), "1E+15"}, {Variant(1.5e-5), "1.5E-05"},
        {Variant(-0.0), "0"}, {Variant(0.1f), "0.1"}, {Variant(3.14159274f), "3.141593"}, {Variant(true), "True"},
        {Variant(false), "False"}, {Variant(Currency{15000}), "1.5"}, {Variant(Currency{-1}), "-0.0001"},
        {Variant(Currency{0}), "0"}, {Variant(Currency{INT64_MIN}), "-922337203685477.5808"}, {Variant(), ""}};
    // clang-format on
    for (const auto& [value, text] : cases) EXPECT_EQ(ToString(value), text) << text;
    EXPECT_EQ(ErrorNumberOf([] { ToString(Variant::Null()); }), 94);
    EXPECT_EQ(ErrorNumberOf([] { ToString(Variant(ObjectRef(std::make_shared<Thing>()))); }), 13);
}

TEST(ToBoolean, WordsInAnyCaseNumbersAndNumericText) {
    for (const Variant& v :
         {Variant("true"), Variant(" True "), Variant("-2"), Variant(0.5), Variant(int16_t{-1})})
        EXPECT_TRUE(ToBool(v)) << ToString(v);
    for (const Variant& v : {Variant("FALSE"), Variant("0"), Variant(0.0), Variant()})
        EXPECT_FALSE(ToBool(v)) << ToString(v);
    EXPECT_EQ(ErrorNumberOf([] { ToBool(Variant("yes")); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToBool(Variant("")); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToBool(Variant::Null()); }), 94);
}

TEST(Numeric, TextAndVariantKindsThatReadAsANumber) {
    for (const char* text : {"12", " -1.5 ", "+.5", "5.", "1e3", "1.5E-2", "1D2", "&H1F", "&o17"})
        EXPECT_TRUE(IsNumeric(std::string_view(text))) << text;
    for (const char* text : {"", " ", "1,5", "abc", "1e", "--1", "1.2.3", ".", "&H", "&HG", "1 2", "-"})
        EXPECT_FALSE(IsNumeric(std::string_view(text))) << text;
    EXPECT_DOUBLE_EQ(ParseNumber(" -1.5 "), -1.5);
    EXPECT_EQ(ErrorNumberOf([] { ParseNumber("1,5"); }), 13);
    for (const Variant& v : {Variant(), Variant(true), Variant(Currency{1}), Variant("7")})
        EXPECT_TRUE(IsNumeric(v)) << TypeName(v);
    for (const Variant& v : {Variant("N/A"), Variant::Null(), Variant(Date{1}), MakeLongArray({1})})
        EXPECT_FALSE(IsNumeric(v)) << TypeName(v);
}

TEST(Dates, PartsMakeDayCountsFromTheEpochAndInvalidPartsRaise5) {
    EXPECT_EQ(MakeDate(1899, 12, 30).serial, 0);
    EXPECT_EQ(MakeDate(1900, 1, 1).serial, 2);
    EXPECT_EQ(MakeDate(2000, 1, 1, 12).serial, 36526.5);
    EXPECT_EQ(MakeDate(1899, 12, 29, 6).serial, -1.25);
    EXPECT_EQ(MakeDate(2024, 2, 29).serial, MakeDate(2024, 3, 1).serial - 1);
    const int parts[][6] = {{2023, 2, 29, 0, 0, 0}, {2023, 13, 1, 0, 0, 0}, {2023, 4, 31, 0, 0, 0},
                            {2023, 1, 0, 0, 0, 0},  {2023, 1, 1, 24, 0, 0}, {2023, 1, 1, 0, 60, 0},
                            {2023, 1, 1, 0, 0, -1}, {1900, 2, 29, 0, 0, 0}};
    for (const auto& p : parts)
        EXPECT_EQ(ErrorNumberOf([&] { MakeDate(p[0], p[1], p[2], p[3], p[4], p[5]); }), 5) << p[0] << p[1];
}

TEST(Dates, TextFormAndPartsRoundTrip) {
    EXPECT_EQ(DateText(MakeDate(2024, 2, 29, 13, 5, 9)), "2024-02-29 13:05:09");
    EXPECT_EQ(DateText(MakeDate(2024, 2, 29)), "2024-02-29");  // midnight leaves out the time
    EXPECT_EQ(DateText(Date{0.25}), "06:00:00");               // day zero leaves out the date
    EXPECT_EQ(DateText(MakeDate(1899, 12, 29, 6)), "1899-12-29 06:00:00");
    EXPECT_EQ(ToString(Variant(MakeDate(2001, 9, 9, 1, 46, 40))), "2001-09-09 01:46:40");
    const DateParts p = SplitDate(MakeDate(2031, 12, 31, 23, 59, 59));
    EXPECT_EQ((std::vector<int>{p.year, p.month, p.day, p.hour, p.minute, p.second}),
              (std::vector<int>{2031, 12, 31, 23, 59, 59}));
    EXPECT_EQ(ErrorNumberOf([] { ToDate(Variant("2024-01-01")); }), 13);
}

}  // namespace
}  // namespace trovane
