// The substitution requests byte for byte, the locale's separator, the typing rule of the value
// box and the range check.

#include <gtest/gtest.h>

#include "substitution/substitution_commands.h"
#include "substitution/value_entry.h"
#include "substitution_fixture.h"

namespace trovane::testing {
namespace {

const LocaleNumbers kPoint(".");
const LocaleNumbers kComma(",");

TEST(SubstitutionCommandsTest, BothRequestsKeepTheirOwnBlanksAndInsertNamesUnescaped) {
    EXPECT_EQ(GetSubstitutionCommand("A\"B", -3, "de", true),
              R"(#return do(BGU_CONTROL:C, ("A"B",-3),"GET_SUBSTITUTION","de",True))");
    const SignalAddress address{"LD\"1", "LN1", "DO", "DA", "A'BC", "-7"};
    EXPECT_EQ(
        SetSubstitutionCommand("A\"B", -3, address, 1, "12.5"),
        R"(#return do(BGU_CONTROL:C,("A"B",-3),"SET_SUBSTITUTION",LIST(LOGICAL_DEVICE="LD"1",)"
        R"(LOGICAL_NODE="LN1",DATA_OBJECT="DO",DATA_ATTRIBUTE="DA",LN="A'BC",IX=-7,ENABLED=1,VALUE=12.5,)"
        R"(QUALITY=0)))");
    CommonFunctions lists;  // an address the server left out reads as its defaults
    const SignalAddress missing = SubstitutionSignal(lists, ValueList({})).Address();
    EXPECT_EQ(missing.logicalDevice + missing.dataAttribute + missing.ln + missing.ix, "N/AN/AN/A0");
}

TEST(LocaleNumbersTest, SeparatorIsTheSecondCharacterOfOneHalfAndAPointIsNoCommaNumber) {
    SeparatorLocale comma(",");
    SeparatorLocale arabic("\u066B");
    EXPECT_EQ(LocaleNumbers::Of(comma).Separator(), ",");
    EXPECT_EQ(LocaleNumbers::Of(arabic).Separator(), "\u066B");
    EXPECT_EQ(kComma.Text(Variant(100.5F)), "100,5");
    EXPECT_TRUE(kComma.IsNumeric("12,5"));
    EXPECT_FALSE(kComma.IsNumeric("12.5"));
    EXPECT_FALSE(kPoint.IsNumeric("12,5"));
}

TEST(ValueEntryTest, TypedCharactersPassOnlyWhenTheyCanBuildANumber) {
    struct Case {
        const LocaleNumbers& numbers;
        char32_t character;
        int32_t length;
        int32_t selected;
        bool kept;
    };
    const Case cases[] = {{kPoint, '7', 2, 0, true},     {kPoint, '.', 2, 0, true},
                          {kPoint, ',', 2, 0, false},    {kComma, ',', 2, 0, true},
                          {kComma, '.', 2, 0, false},    {kPoint, 'a', 0, 0, false},
                          {kPoint, '+', 0, 0, false},    {kPoint, 8, 2, 0, true},
                          {kPoint, 0x0660, 0, 0, false}, {kPoint, '-', 0, 0, true},  // an empty box
                          {kPoint, '-', 2, 0, false},  // "12" with the caret at the end
                          {kPoint, '-', 2, 1, false},  // part of the text selected
                          {kPoint, '-', 2, 2, true}};  // all of "12" selected: a new number starts
    for (const Case& c : cases)
        EXPECT_EQ(KeepsTypedCharacter(static_cast<int32_t>(c.character), c.numbers, c.length, c.selected),
                  c.kept)
            << static_cast<uint32_t>(c.character) << " in " << c.length << "/" << c.selected;
}

TEST(ValueEntryTest, RangeIncludesBothBoundsComparedAsSinglesAndZeroZeroMeansNoRange) {
    struct Case {
        const LocaleNumbers& numbers;
        const char* text;
        Variant min;
        Variant max;
        bool valid;
    };
    const Case cases[] = {{kPoint, "1000", 0.0, 1000.0, true},   {kPoint, "1000.001", 0.0, 1000.0, false},
                          {kPoint, "0", 0.0, 1000.0, true},      {kPoint, "-0.001", 0.0, 1000.0, false},
                          {kPoint, "5", -5.0, 0.0, false},       {kPoint, "-5", -5.0, 0.0, true},
                          {kPoint, "-99999", 0.0, 0.0, true},    {kPoint, "abc", 0.0, 0.0, false},
                          {kComma, "100,5", 0.0, "100.5", true}, {kComma, "100,6", 0.0, "100.5", false}};
    for (const Case& c : cases)
        EXPECT_EQ(IsValueInRange(c.text, c.min, c.max, c.numbers), c.valid)
            << c.text << " in " << ToString(c.min) << ".." << ToString(c.max);
}

}  // namespace
}  // namespace trovane::testing
