// The tagout panel's command strings against the demo tagout class: class queries, a tagout's
// life from key to deletion, events, action methods and error codes.

#include <gtest/gtest.h>

#include "sim/server_fixture.h"
#include "sim/tagout_requests.h"

namespace trovane::sim::testing {
namespace {

class TagoutCommandsTest : public DemoServerTest {
  protected:
    const std::string object = "(\"ABC\",10)";
    Variant Tagout(const std::string& arguments) {
        return Run("#return do(OVGR_TAGOUT:C, " + arguments + ")");
    }
    Variant Read(const std::string& quotedKey, const std::string& attribute) {
        return Tagout("\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + "," + quotedKey + ",\"" + attribute +
                      "\"");
    }
};

TEST_F(TagoutCommandsTest, ClassQueriesAnswerWhatThePanelChecks) {
    // clang-format off
    const std::pair<const char*, const char*> types[] = {
        {"\"GET_CLASS\"", "Variant()"}, {"\"GET_CLASS_ACTIONMETHODS\"", "String()"},
        {"\"GET_CLASS_ATTRIBUTES\",\"NAMES\"", "String()"}, {"\"GET_CLASS_ATTRIBUTES\",\"TITLES\"", "String()"},
        {"\"GET_CLASS_ATTRIBUTES\",\"VISIBLE\"", "Long()"}, {"\"GET_CLASS_ATTRIBUTES\",\"ENABLED\"", "Long()"},
        {"\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"PRIORITY\",\"TITLES\"", "String()"}};
    // clang-format on
    for (const auto& [query, type] : types) EXPECT_EQ(TypeName(Tagout(query)), type) << query;
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTES\",\"NAMES\"").AsArray().At(1), Variant("OWNER"));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"TAB_STRIP\",\"TITLES\"").AsArray().Size(), 2u);
    // clang-format off
    const std::pair<const char*, Variant> properties[] = {
        {"\"PRIORITY\",\"TYPE\"", Variant("SELECTOR")}, {"\"PRIORITY\",\"VALUE\"", Variant("Medium")},
        {"\"COMMENT\",\"MAX_LENGTH\"", Variant(int32_t{200})}, {"\"ORIGIN\",\"TAB_INDEX\"", Variant(int32_t{3})},
        {"\"NOPE\",\"TYPE\"", Variant(tagout_error::kUnknownAttribute)}};
    // clang-format on
    for (const auto& [arguments, expected] : properties)
        EXPECT_EQ(Tagout(std::string("\"GET_CLASS_ATTRIBUTE_PROPERTY\",") + arguments), expected)
            << arguments;
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_POSTPROCESSING\",\"COMMENT\""), Variant("TRIM"));
}

TEST_F(TagoutCommandsTest,
       ExistingTagoutIsCountedNamedAndReadAndRefusesTooLongValuesUnknownAttributesAndItsKey) {
    EXPECT_EQ(Tagout("\"GET_NACTIVE_TAGOUTS\", " + object), Variant(int32_t{1}));
    const Variant names = Tagout("\"GET_TAGOUT_NAMES\", " + object);
    ASSERT_EQ(TypeName(names), "String()");
    EXPECT_EQ(names.AsArray().At(1), Variant("ID1511202603344512"));
    EXPECT_EQ(Read("\"ID1511202603344512\"", "OWNER"), Variant("operator1"));
    EXPECT_EQ(Read("\"NOPE\"", "OWNER"), Variant(tagout_error::kUnknownTagout));
}

TEST_F(TagoutCommandsTest, TagoutIsAddedEditedListedRemovedAndDeleted) {
    const Variant key = Tagout("\"GET_TAGOUT_ID\"");
    ASSERT_TRUE(key.IsString());
    EXPECT_EQ(key.AsString().rfind("ID2211202609301", 0), 0u) << key.AsString();
    const std::string quotedKey = "\"" + key.AsString() + "\"";

    Tagout("\"ADD_EMPTY_TAGOUT\", " + object + "," + quotedKey + ",\"operator2\"");
    EXPECT_NE(Tagout("\"GET_TAGOUT_ID\""), key) << "keys are unique within the same second";
    Tagout("\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", " + object + "," + quotedKey +
           ",\"TAG_TEXT\",\"Don''t \"\"close\"\"\"");
    EXPECT_EQ(Tagout("\"GET_NACTIVE_TAGOUTS\", " + object), Variant(int32_t{2}));
    EXPECT_EQ(Read(quotedKey, "OWNER"), Variant("operator2"));
    EXPECT_EQ(Read(quotedKey, "TAG_TEXT"), Variant("Don't \"close\""));
    EXPECT_EQ(Read(quotedKey, "PRIORITY"), Variant("Medium"));

    Tagout("\"REMOVE_TAGOUT\", " + object + "," + quotedKey);
    EXPECT_EQ(Tagout("\"GET_NACTIVE_TAGOUTS\", " + object), Variant(int32_t{1}));
    EXPECT_EQ(Object("ABC", 10).tagouts.removed.size(), 1u);
    Tagout("\"DELETE_TAGOUT\", " + object + "," + quotedKey);
    EXPECT_TRUE(Object("ABC", 10).tagouts.removed.empty());
}

TEST_F(TagoutCommandsTest, EditingRefusesTooLongValuesAndUnknownAttributes) {
    const std::string prefix = "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", " + object + ",\"ID1511202603344512\",";
    EXPECT_EQ(Tagout(prefix + "\"OWNER\",\"" + std::string(21, 'x') + "\""),
              Variant(tagout_error::kValueTooLong));
    EXPECT_EQ(Tagout(prefix + "\"NOPE\",\"x\""), Variant(tagout_error::kUnknownAttribute));
    EXPECT_EQ(Tagout("\"ADD_EMPTY_TAGOUT\", " + object + ",\"ID1511202603344512\",\"x\""),
              Variant(tagout_error::kDuplicateKey));
}

TEST_F(TagoutCommandsTest, EventsFollowTheLastTagoutAndActionMethodsBlockControlAndRecordLocalBlocks) {
    Tagout("\"EVENT_FUNCTIONS\", \"SET_PRIORITY\" ,(\"ABC\",10)");
    Tagout("\"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Work on feeder cable\"");
    EXPECT_EQ(Object("ABC", 10).tagouts.priority, "High");
    EXPECT_EQ(Object("ABC", 10).tagouts.tagText, "Work on feeder cable");
    Tagout("\"EVENT_FUNCTIONS\", \"RESET_PRIORITY\" ,(\"ABC\",10)");
    Tagout("\"EVENT_FUNCTIONS\", \"RESET_TAGTEXT\" ,(\"ABC\",10)");
    EXPECT_EQ(Object("ABC", 10).tagouts.priority, "");
    EXPECT_EQ(Object("ABC", 10).tagouts.tagText, "");
    EXPECT_EQ(Database().TagoutEvents().size(), 4u);
    Run("#return do(OVGR_TAGOUT_AM:C, \"CONTROL_BLOCK\", (\"ABC\",10),\"X\",\"\",\"ID1511202603344512\")");
    EXPECT_EQ(Attribute("ABC", 10, "CB"), 1);
    Run("#return do(OVGR_TAGOUT_AM:C, \"CONTROL_BLOCK\", (\"ABC\",10),\"-\",\"\",\"ID1511202603344512\")");
    EXPECT_EQ(Attribute("ABC", 10, "CB"), 0);
    EXPECT_EQ(Run("#return do(OVGR_TAGOUT_AM:C, \"LOCAL_BLOCK\", "
                  "(\"ABC\",10),\"-\",\"01\",\"ID1511202603344512\")"),
              Variant(int32_t{0}));
    EXPECT_EQ(Database().TagoutEvents().back().value, "- 01");
    EXPECT_EQ(Run("#return do(OVGR_TAGOUT_AM:C, \"NOPE\", (\"ABC\",10),\"-\",\"\",\"k\")"),
              Variant(tagout_error::kUnknownMethod));
}

TEST_F(TagoutCommandsTest,
       MiscFunctionsAnswerTextFromTheServerClockAndAnUnknownObjectOrMissingClassErrorCodes) {
    EXPECT_EQ(Tagout("\"MISC_FUNCTIONS\",\"GET_DATE\""), Variant("2026-11-22"));
    EXPECT_EQ(Tagout("\"MISC_FUNCTIONS\",\"GET_TIME\""), Variant("09:30:15"));
    EXPECT_EQ(Tagout("\"MISC_FUNCTIONS\",\"GET_ERRORMSG\", \"5007\""), Variant("No tagout class is defined"));
    EXPECT_EQ(Tagout("\"MISC_FUNCTIONS\",\"NOTIFY_TIME\",\"09:30\""), Variant(int32_t{0}));
    const Variant count = Tagout("\"GET_NACTIVE_TAGOUTS\", (\"ABC\",99)");
    ASSERT_EQ(TypeName(count), "Long");
    EXPECT_GE(count.AsLong(), 100);
    Database().Tagouts().reset();
    EXPECT_EQ(Tagout("\"GET_CLASS\""), Variant(int32_t{5007}));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTES\",\"NAMES\""), Variant(int32_t{5007}));
}

}  // namespace
}  // namespace trovane::sim::testing
