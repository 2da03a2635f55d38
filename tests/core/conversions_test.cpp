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

TEST(ToIntegers, RoundHalfToEvenOnBothSidesOfZero) {
    EXPECT_EQ(ToInt16(Variant(0.5)), 0);
    EXPECT_EQ(ToInt16(Variant(1.5)), 2);
    EXPECT_EQ(ToInt16(Variant(2.5)), 2);
    EXPECT_EQ(ToInt16(Variant(3.5)), 4);
    EXPECT_EQ(ToInt16(Variant(-0.5)), 0);
    EXPECT_EQ(ToInt16(Variant(-1.5)), -2);
    EXPECT_EQ(ToInt16(Variant(-2.5)), -2);
    EXPECT_EQ(ToInt16(Variant(2.5000001)), 3);
    EXPECT_EQ(ToInt32(Variant("12.5")), 12);
    EXPECT_EQ(ToInt32(Variant(2147483646.5)), 2147483646);
}

TEST(ToIntegers, SixteenBitOverflowAtTheRangeBoundaries) {
    EXPECT_EQ(ToInt16(Variant(32767.49)), 32767);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant(32767.5)); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant(int32_t{32768})); }), 6);
    EXPECT_EQ(ToInt16(Variant(-32768.5)), -32768);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant(-32768.51)); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant(int32_t{-32769})); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant("40000")); }), 6);
}

TEST(ToIntegers, ThirtyTwoBitOverflowAtTheRangeBoundaries) {
    EXPECT_EQ(ToInt32(Variant(2147483647.0)), 2147483647);
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(Variant(2147483647.5)); }), 6);
    EXPECT_EQ(ToInt32(Variant(-2147483648.5)), INT32_MIN);
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(Variant(-2147483649.0)); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(Variant(Currency{int64_t{3000000000} * 10000})); }), 6);
}

TEST(ToIntegers, OtherKindsFollowTheClassicRules) {
    EXPECT_EQ(ToInt16(Variant()), 0);
    EXPECT_EQ(ToInt16(Variant(true)), -1);
    EXPECT_EQ(ToInt32(Variant(" 12 ")), 12);
    EXPECT_EQ(ToInt32(Variant("True")), -1);
    EXPECT_EQ(ToInt16(Variant("&HFFFF")), -1);
    EXPECT_EQ(ToInt32(Variant("&H10000")), 65536);
    EXPECT_EQ(ToInt32(Variant(Currency{25000})), 2);  // 2.5 rounds to even
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(Variant("abc")); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(Variant("")); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToInt16(Variant::Null()); }), 94);
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(MakeLongArray({1})); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToInt32(Variant::Nothing()); }), 13);
}

TEST(ToText, IntegersHaveNoLeadingBlank) {
    EXPECT_EQ(ToString(Variant(int16_t{-5})), "-5");
    EXPECT_EQ(ToString(Variant(int32_t{10})), "10");
    EXPECT_EQ(ToString(Variant(int32_t{0})), "0");
    EXPECT_EQ(ToString(Variant(INT32_MIN)), "-2147483648");
}

TEST(ToText, RealsShowFifteenSignificantDigitsWithAPoint) {
    EXPECT_EQ(ToString(Variant(1.5)), "1.5");
    EXPECT_EQ(ToString(Variant(-0.25)), "-0.25");
    EXPECT_EQ(ToString(Variant(0.1 + 0.2)), "0.3");
    EXPECT_EQ(ToString(Variant(100.0)), "100");
    EXPECT_EQ(ToString(Variant(123456789012345.0)), "123456789012345");
    EXPECT_EQ(ToString(Variant(1e15)), "1E+15");
    EXPECT_EQ(ToString(Variant(1.5e-5)), "1.5E-05");
    EXPECT_EQ(ToString(Variant(-0.0)), "0");
    EXPECT_EQ(ToString(Variant(0.1f)), "0.1");
    EXPECT_EQ(ToString(Variant(3.14159274f)), "3.141593");
}

TEST(ToText, BooleansCurrencyEmptyAndNull) {
    EXPECT_EQ(ToString(Variant(true)), "True");
    EXPECT_EQ(ToString(Variant(false)), "False");
    EXPECT_EQ(ToString(Variant(Currency{15000})), "1.5");
    EXPECT_EQ(ToString(Variant(Currency{-1})), "-0.0001");
    EXPECT_EQ(ToString(Variant(Currency{0})), "0");
    EXPECT_EQ(ToString(Variant(Currency{INT64_MIN})), "-922337203685477.5808");
    EXPECT_EQ(ToString(Variant()), "");
    EXPECT_EQ(ErrorNumberOf([] { ToString(Variant::Null()); }), 94);
    EXPECT_EQ(ErrorNumberOf([] { ToString(Variant(ObjectRef(std::make_shared<Thing>()))); }), 13);
}

TEST(ToBoolean, WordsInAnyCaseNumbersAndNumericText) {
    EXPECT_TRUE(ToBool(Variant("true")));
    EXPECT_FALSE(ToBool(Variant("FALSE")));
    EXPECT_TRUE(ToBool(Variant(" True ")));
    EXPECT_FALSE(ToBool(Variant("0")));
    EXPECT_TRUE(ToBool(Variant("-2")));
    EXPECT_TRUE(ToBool(Variant(0.5)));
    EXPECT_FALSE(ToBool(Variant(0.0)));
    EXPECT_TRUE(ToBool(Variant(int16_t{-1})));
    EXPECT_FALSE(ToBool(Variant()));
    EXPECT_EQ(ErrorNumberOf([] { ToBool(Variant("yes")); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToBool(Variant("")); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { ToBool(Variant::Null()); }), 94);
}

TEST(Numeric, TextThatReadsAsANumber) {
    for (const char* text : {"12", " -1.5 ", "+.5", "5.", "1e3", "1.5E-2", "1D2", "&H1F", "&o17"})
        EXPECT_TRUE(IsNumeric(std::string_view(text))) << text;
    for (const char* text : {"", " ", "1,5", "abc", "1e", "--1", "1.2.3", ".", "&H", "&HG", "1 2", "-"})
        EXPECT_FALSE(IsNumeric(std::string_view(text))) << text;
    EXPECT_DOUBLE_EQ(ParseNumber(" -1.5 "), -1.5);
    EXPECT_EQ(ErrorNumberOf([] { ParseNumber("1,5"); }), 13);
}

TEST(Numeric, VariantKinds) {
    EXPECT_TRUE(IsNumeric(Variant()));
    EXPECT_TRUE(IsNumeric(Variant(true)));
    EXPECT_TRUE(IsNumeric(Variant(Currency{1})));
    EXPECT_TRUE(IsNumeric(Variant("7")));
    EXPECT_FALSE(IsNumeric(Variant("N/A")));
    EXPECT_FALSE(IsNumeric(Variant::Null()));
    EXPECT_FALSE(IsNumeric(Variant(Date{1})));
    EXPECT_FALSE(IsNumeric(MakeLongArray({1})));
}

TEST(Dates, PartsMakeDayCountsFromTheEpoch) {
    EXPECT_EQ(MakeDate(1899, 12, 30).serial, 0);
    EXPECT_EQ(MakeDate(1900, 1, 1).serial, 2);
    EXPECT_EQ(MakeDate(2000, 1, 1, 12).serial, 36526.5);
    EXPECT_EQ(MakeDate(1899, 12, 29, 6).serial, -1.25);
}

TEST(Dates, InvalidPartsAreAnInvalidCall) {
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 2, 29); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 13, 1); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 4, 31); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 1, 0); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 1, 1, 24); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 1, 1, 0, 60); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(2023, 1, 1, 0, 0, -1); }), 5);
    EXPECT_EQ(MakeDate(2024, 2, 29).serial, MakeDate(2024, 3, 1).serial - 1);
    EXPECT_EQ(ErrorNumberOf([] { MakeDate(1900, 2, 29); }), 5);
}

TEST(Dates, TextFormLeavesOutAMidnightTimeAndDayZero) {
    EXPECT_EQ(DateText(MakeDate(2024, 2, 29, 13, 5, 9)), "2024-02-29 13:05:09");
    EXPECT_EQ(DateText(MakeDate(2024, 2, 29)), "2024-02-29");
    EXPECT_EQ(DateText(Date{0.25}), "06:00:00");
    EXPECT_EQ(DateText(MakeDate(1899, 12, 29, 6)), "1899-12-29 06:00:00");
    EXPECT_EQ(ToString(Variant(MakeDate(2001, 9, 9, 1, 46, 40))), "2001-09-09 01:46:40");
}

TEST(Dates, PartsRoundTripThroughTheSerial) {
    const DateParts parts = SplitDate(MakeDate(2031, 12, 31, 23, 59, 59));
    EXPECT_EQ(parts.year, 2031);
    EXPECT_EQ(parts.month, 12);
    EXPECT_EQ(parts.day, 31);
    EXPECT_EQ(parts.hour, 23);
    EXPECT_EQ(parts.minute, 59);
    EXPECT_EQ(parts.second, 59);
    EXPECT_EQ(ErrorNumberOf([] { ToDate(Variant("2024-01-01")); }), 13);
}

}  // namespace
}  // namespace trovane
