#include "indication/comment_commands.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace trovane {
namespace {

TEST(CommentValue, SplitsIntoThreeFieldsTheTextKeepingFurtherSeparators) {
    struct Case {
        std::string value;
        std::optional<std::vector<std::string>> fields;
    };
    const std::vector<Case> cases = {
        {"anna#1714555815#text", std::vector<std::string>{"anna", "1714555815", "text"}},
        {"anna#1#a # in #it", std::vector<std::string>{"anna", "1", "a # in #it"}},
        {"anna#1#", std::vector<std::string>{"anna", "1", ""}},
        {"##", std::vector<std::string>{"", "", ""}},
        {"anna#1714555815", std::nullopt},
        {"no separator", std::nullopt},
        {"", std::nullopt},
    };
    for (const Case& c : cases) {
        const std::optional<CommentFields> fields = SplitCommentValue(c.value);
        ASSERT_EQ(fields.has_value(), c.fields.has_value()) << c.value;
        if (!fields) continue;
        EXPECT_EQ((std::vector<std::string>{fields->author, fields->time, fields->text}), *c.fields);
    }
}

TEST(CommentValue, TimeAnswerGivesADateOnlyForSixNumbersThatNameOne) {
    const auto parts = [](std::vector<Variant> values, int32_t lowerBound = 1) {
        return MakeVariantArray(std::move(values), lowerBound);
    };
    EXPECT_EQ(DateFromTimeParts(parts({2024, 5, 1, 9, 30, 15})), MakeDate(2024, 5, 1, 9, 30, 15));
    EXPECT_EQ(DateFromTimeParts(parts({2024.0, int16_t{2}, 29, 0, 0, Currency::FromUnits(1)})),
              MakeDate(2024, 2, 29, 0, 0, 1));
    EXPECT_EQ(DateFromTimeParts(parts({0, 2024, 5, 1, 9, 30, 15}, 0)), MakeDate(2024, 5, 1, 9, 30, 15))
        << "elements 1 to 6, whatever the lower bound";
    for (const Variant& answer :
         {Variant(), Variant("2024-05-01"), parts({2024, 5, 1, 9, 30}), parts({2024, 5, 1, 9, 30, 15}, 0),
          parts({2024, "5", 1, 9, 30, 15}), parts({2024, 13, 1, 9, 30, 15}), parts({2023, 2, 29, 0, 0, 0}),
          parts({1e12, 5, 1, 9, 30, 15}), parts({2024, 5, 1, Variant(), 30, 15})})
        EXPECT_FALSE(DateFromTimeParts(answer).has_value()) << TypeName(answer);
}

}  // namespace
}  // namespace trovane
