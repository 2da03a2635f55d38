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
};

TEST_F(TagoutCommandsTest, ClassQueriesAnswerTheTypesThePanelChecks) {
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS\"")), "Variant()");
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS_ACTIONMETHODS\"")), "String()");
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS_ATTRIBUTES\",\"NAMES\"")), "String()");
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS_ATTRIBUTES\",\"TITLES\"")), "String()");
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS_ATTRIBUTES\",\"VISIBLE\"")), "Long()");
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS_ATTRIBUTES\",\"ENABLED\"")), "Long()");
    const Variant names = Tagout("\"GET_CLASS_ATTRIBUTES\",\"NAMES\"");
    EXPECT_EQ(names.AsArray().LowerBound(), 1);
    EXPECT_EQ(names.AsArray().At(1), Variant("OWNER"));
}

TEST_F(TagoutCommandsTest, AttributePropertiesCoverTabsSelectorsAndLimits) {
    const Variant tabs = Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"TAB_STRIP\",\"TITLES\"");
    ASSERT_EQ(TypeName(tabs), "String()");
    EXPECT_EQ(tabs.AsArray().Size(), 2u);
    EXPECT_EQ(TypeName(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"PRIORITY\",\"TITLES\"")), "String()");
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"PRIORITY\",\"TYPE\""), Variant("SELECTOR"));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"PRIORITY\",\"VALUE\""), Variant("Medium"));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"COMMENT\",\"MAX_LENGTH\""), Variant(int32_t{200}));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"ORIGIN\",\"TAB_INDEX\""), Variant(int32_t{3}));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_POSTPROCESSING\",\"COMMENT\""), Variant("TRIM"));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTE_PROPERTY\",\"NOPE\",\"TYPE\""),
              Variant(tagout_error::kUnknownAttribute));
}

TEST_F(TagoutCommandsTest, ExistingTagoutIsCountedNamedAndRead) {
    EXPECT_EQ(Tagout("\"GET_NACTIVE_TAGOUTS\", " + object), Variant(int32_t{1}));
    const Variant names = Tagout("\"GET_TAGOUT_NAMES\", " + object);
    ASSERT_EQ(TypeName(names), "String()");
    EXPECT_EQ(names.AsArray().At(1), Variant("ID1511202603344512"));
    EXPECT_EQ(Tagout("\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + ",\"ID1511202603344512\",\"OWNER\""),
              Variant("operator1"));
    EXPECT_EQ(Tagout("\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + ",\"NOPE\",\"OWNER\""),
              Variant(tagout_error::kUnknownTagout));
}

TEST_F(TagoutCommandsTest, TagoutIsAddedEditedListedRemovedAndDeleted) {
    const Variant key = Tagout("\"GET_TAGOUT_ID\"");
    ASSERT_TRUE(key.IsString());
    EXPECT_EQ(key.AsString().rfind("ID2211202609301", 0), 0u) << key.AsString();
    const std::string quotedKey = "\"" + key.AsString() + "\"";

    Tagout("\"ADD_EMPTY_TAGOUT\", " + object + "," + quotedKey + ",\"operator2\"");
    Tagout("\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", " + object + "," + quotedKey +
           ",\"TAG_TEXT\",\"Don''t \"\"close\"\"\"");
    EXPECT_EQ(Tagout("\"GET_NACTIVE_TAGOUTS\", " + object), Variant(int32_t{2}));
    EXPECT_EQ(Tagout("\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + "," + quotedKey + ",\"OWNER\""),
              Variant("operator2"));
    EXPECT_EQ(Tagout("\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + "," + quotedKey + ",\"TAG_TEXT\""),
              Variant("Don't \"close\""));
    EXPECT_EQ(Tagout("\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + "," + quotedKey + ",\"PRIORITY\""),
              Variant("Medium"));

    Tagout("\"REMOVE_TAGOUT\", " + object + "," + quotedKey);
    EXPECT_EQ(Tagout("\"GET_NACTIVE_TAGOUTS\", " + object), Variant(int32_t{1}));
    EXPECT_EQ(Object("ABC", 10).tagouts.removed.size(), 1u);
    Tagout("\"DELETE_TAGOUT\", " + object + "," + quotedKey);
    EXPECT_TRUE(Object("ABC", 10).tagouts.removed.empty());
}

TEST_F(TagoutCommandsTest, NewKeysAreUniqueWithinTheSameSecond) {
    const Variant first = Tagout("\"GET_TAGOUT_ID\"");
    Tagout("\"ADD_EMPTY_TAGOUT\", " + object + ",\"" + first.AsString() + "\",\"operator2\"");
    EXPECT_NE(Tagout("\"GET_TAGOUT_ID\""), first);
}

TEST_F(TagoutCommandsTest, EditingRefusesTooLongValuesAndUnknownAttributes) {
    const std::string prefix = "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", " + object + ",\"ID1511202603344512\",";
    EXPECT_EQ(Tagout(prefix + "\"OWNER\",\"" + std::string(21, 'x') + "\""),
              Variant(tagout_error::kValueTooLong));
    EXPECT_EQ(Tagout(prefix + "\"NOPE\",\"x\""), Variant(tagout_error::kUnknownAttribute));
    EXPECT_EQ(Tagout("\"ADD_EMPTY_TAGOUT\", " + object + ",\"ID1511202603344512\",\"x\""),
              Variant(tagout_error::kDuplicateKey));
}

TEST_F(TagoutCommandsTest, EventsFollowTheLastTagout) {
    Run("#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"SET_PRIORITY\" ,(\"ABC\",10))");
    Run("#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Work on feeder "
        "cable\")");
    EXPECT_EQ(Object("ABC", 10).tagouts.priority, "High");
    EXPECT_EQ(Object("ABC", 10).tagouts.tagText, "Work on feeder cable");
    Run("#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"RESET_PRIORITY\" ,(\"ABC\",10))");
    Run("#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"RESET_TAGTEXT\" ,(\"ABC\",10))");
    EXPECT_EQ(Object("ABC", 10).tagouts.priority, "");
    EXPECT_EQ(Object("ABC", 10).tagouts.tagText, "");
    EXPECT_EQ(Database().TagoutEvents().size(), 4u);
}

TEST_F(TagoutCommandsTest, ActionMethodsBlockControlAndRecordLocalBlocks) {
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

TEST_F(TagoutCommandsTest, MiscFunctionsAnswerTextFromTheServerClock) {
    EXPECT_EQ(Run("#return do(OVGR_TAGOUT:C, \"MISC_FUNCTIONS\",\"GET_DATE\")"), Variant("2026-11-22"));
    EXPECT_EQ(Run("#return do(OVGR_TAGOUT:C, \"MISC_FUNCTIONS\",\"GET_TIME\")"), Variant("09:30:15"));
    EXPECT_EQ(Run("#return do(OVGR_TAGOUT:C, \"MISC_FUNCTIONS\",\"GET_ERRORMSG\", \"5007\")"),
              Variant("No tagout class is defined"));
    EXPECT_EQ(Run("#return do(OVGR_TAGOUT:C, \"MISC_FUNCTIONS\",\"NOTIFY_TIME\",\"09:30\")"),
              Variant(int32_t{0}));
}

TEST_F(TagoutCommandsTest, WithoutAClassEveryClassQueryAnswersTheCode5007) {
    Database().Tagouts().reset();
    EXPECT_EQ(Tagout("\"GET_CLASS\""), Variant(int32_t{5007}));
    EXPECT_EQ(Tagout("\"GET_CLASS_ATTRIBUTES\",\"NAMES\""), Variant(int32_t{5007}));
}

TEST_F(TagoutCommandsTest, UnknownObjectAnswersACodeAboveNinetyNine) {
    const Variant count = Tagout("\"GET_NACTIVE_TAGOUTS\", (\"ABC\",99)");
    ASSERT_EQ(TypeName(count), "Long");
    EXPECT_GE(count.AsLong(), 100);
}

}  // namespace
}  // namespace trovane::sim::testing
