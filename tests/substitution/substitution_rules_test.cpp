// The substitution requests byte for byte, numbers in the operator's locale, the typing rule of the
// value box and the range check.

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
    EXPECT_EQ(GetSubstitutionCommand("ABC", 10, "", false),
              R"(#return do(BGU_CONTROL:C, ("ABC",10),"GET_SUBSTITUTION","",False))");
    const SignalAddress address{"LD\"1", "LN1", "DO", "DA", "A'BC", "-7"};
    EXPECT_EQ(
        SetSubstitutionCommand("A\"B", -3, address, 1, "12.5"),
        R"(#return do(BGU_CONTROL:C,("A"B",-3),"SET_SUBSTITUTION",LIST(LOGICAL_DEVICE="LD"1",)"
        R"(LOGICAL_NODE="LN1",DATA_OBJECT="DO",DATA_ATTRIBUTE="DA",LN="A'BC",IX=-7,ENABLED=1,VALUE=12.5,)"
        R"(QUALITY=0)))");
}

TEST(SubstitutionSignalTest, MissingAttributesReadAsTheirDefaults) {
    CommonFunctions lists;
    const SubstitutionSignal empty(lists, ValueList({}));
    EXPECT_EQ(empty.Text(), Variant("N/A"));
    EXPECT_EQ(empty.Substituted(), Variant("N/A"));
    EXPECT_EQ(empty.Type(), Variant(int32_t{-1}));
    EXPECT_EQ(empty.StateValue(), Variant(int32_t{-1}));
    EXPECT_EQ(empty.AnalogValue(), Variant("N/A"));
    EXPECT_EQ(empty.Bound("MAX"), Variant(int32_t{0}));
    EXPECT_EQ(empty.StateText(2), "N/A");
    const SignalAddress address = empty.Address();
    EXPECT_EQ(address.logicalDevice + address.logicalNode + address.dataObject + address.dataAttribute +
                  address.ln + address.ix,
              "N/AN/AN/AN/AN/A0");
    EXPECT_EQ(SubstitutionSignal(lists, Breaker()).StateText(3), "Closed");
}

TEST(LocaleNumbersTest, SeparatorIsTheSecondCharacterOfOneHalfAndNumbersCrossBetweenTheForms) {
    SeparatorLocale comma(",");
    SeparatorLocale arabic("\u066B");
    EXPECT_EQ(LocaleNumbers::Of(comma).Separator(), ",");
    EXPECT_EQ(LocaleNumbers::Of(arabic).Separator(), "\u066B");
    EXPECT_EQ(kComma.WithPoint("12,5"), "12.5");
    EXPECT_FLOAT_EQ(kComma.ToSingle(kComma.WithSeparator("100.5")), 100.5F);
    EXPECT_EQ(kComma.Text(Variant(100.5F)), "100,5");
    EXPECT_EQ(kComma.Text(Variant("N/A")), "N/A");
    struct Case {
        const LocaleNumbers& numbers;
        const char* text;
        bool numeric;
    };
    for (const Case& c : {Case{kPoint, "12.5", true}, Case{kPoint, "12,5", false}, Case{kComma, "12,5", true},
                          Case{kComma, "12.5", false}, Case{kPoint, "1.2.3", false}, Case{kPoint, "-", false},
                          Case{kPoint, "-0.5", true}, Case{kComma, "", false}})
        EXPECT_EQ(c.numbers.IsNumeric(c.text), c.numeric) << c.text;
}

TEST(ValueEntryTest, TypedCharactersPassOnlyWhenTheyCanBuildANumber) {
    struct Case {
        const LocaleNumbers& numbers;
        char32_t character;
        int32_t length;
        int32_t selected;
        bool kept;
    };
    const Case cases[] = {{kPoint, '7', 2, 0, true},    {kPoint, '.', 2, 0, true},
                          {kPoint, ',', 2, 0, false},   {kComma, ',', 2, 0, true},
                          {kComma, '.', 2, 0, false},   {kPoint, 'a', 0, 0, false},
                          {kPoint, ' ', 0, 0, false},   {kPoint, '+', 0, 0, false},
                          {kPoint, 8, 2, 0, true},      {kPoint, '-', 0, 0, true},  // an empty box
                          {kPoint, '-', 2, 0, false},      // "12" with the caret at the end
                          {kPoint, '-', 2, 1, false},      // part of the text selected
                          {kPoint, '-', 2, 2, true},       // all of "12" selected: a new number starts
                          {kPoint, 0x0660, 0, 0, false}};  // a digit of another script
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
    const Case cases[] = {
        {kPoint, "1000", 0.0, 1000.0, true},    {kPoint, "1000.001", 0.0, 1000.0, false},
        {kPoint, "0", 0.0, 1000.0, true},       {kPoint, "-0.001", 0.0, 1000.0, false},
        {kPoint, "5", -5.0, 0.0, false},        {kPoint, "-5", -5.0, 0.0, true},
        {kPoint, "99999", 0.0, 0.0, true},      {kPoint, "-99999", int32_t{0}, int32_t{0}, true},
        {kPoint, "0.1", 0.0, 0.1, true},        {kPoint, "abc", 0.0, 0.0, false},
        {kComma, "100,5", 0.0, "100.5", true},  {kComma, "100,6", 0.0, "100.5", false},
        {kComma, "100.5", 0.0, "100.5", false}, {kPoint, "36", "0", "36", true}};
    for (const Case& c : cases)
        EXPECT_EQ(IsValueInRange(c.text, c.min, c.max, c.numbers), c.valid)
            << c.text << " in " << ToString(c.min) << ".." << ToString(c.max);
}

}  // namespace
}  // namespace trovane::testing
