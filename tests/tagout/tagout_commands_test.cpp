// The tagout requests byte for byte, with arguments holding a double quote and an apostrophe
// (spliced in as they are), and the action methods that "AM" attributes name. The requests the
// panel tests already see sent (class property, counts, removal, events, error texts, the other
// action method names) are checked there.

#include <gtest/gtest.h>

#include "tagout/tagout_commands.h"

namespace trovane {
namespace {

TEST(TagoutCommandsTest, EveryTemplateSplicesItsArgumentsUnchanged) {
    const std::string v = "it's \"on\"";
    // clang-format off
    const std::pair<std::string, std::string> table[] = {
        {ClassActionMethodsCommand(), R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ACTIONMETHODS"))"},
        {ClassAttributesCommand(v), R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ATTRIBUTES","it's "on""))"},
        {ClassAttributePostProcessingCommand(v),
         R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ATTRIBUTE_POSTPROCESSING","it's "on""))"},
        {TagoutNamesCommand("ABC", -3), R"(#return do(OVGR_TAGOUT:C, "GET_TAGOUT_NAMES", ("ABC",-3)))"},
        {ReadAttributeValueCommand("ABC", 10, v, "OWNER"),
         R"(#return do(OVGR_TAGOUT:C, "READ_TAGOUT_ATTRIBUTE_VALUE", ("ABC",10),"it's "on"","OWNER"))"},
        {AddEmptyTagoutCommand("ABC", 10, "ID1", v),
         R"(#return do(OVGR_TAGOUT:C, "ADD_EMPTY_TAGOUT", ("ABC",10),"ID1","it's "on""))"},
        {EditAttributeValueCommand("ABC", 10, "ID1", "TAG_TEXT", v),
         R"(#return do(OVGR_TAGOUT:C, "EDIT_TAGOUT_ATTRIBUTE_VALUE", ("ABC",10),"ID1","TAG_TEXT","it's "on""))"},
        {TagoutIdCommand(), R"(#return do(OVGR_TAGOUT:C, "GET_TAGOUT_ID"))"},
        {MiscFunctionCommand("GET_DATE"), R"(#return do(OVGR_TAGOUT:C, "MISC_FUNCTIONS","GET_DATE"))"},
        {NotifyTimeCommand(v), R"(#return do(OVGR_TAGOUT:C, "MISC_FUNCTIONS","NOTIFY_TIME","it's "on""))"},
        {ActionMethodCommand(ActionMethodOf("AM_LOCAL01"), "ABC", 10, v, "ID1511202603344512"),
         R"(#return do(OVGR_TAGOUT_AM:C, "LOCAL_BLOCK", ("ABC",10),"it's "on"","01","ID1511202603344512"))"},
    };
    // clang-format on
    for (const auto& [built, expected] : table) EXPECT_EQ(built, expected);
    EXPECT_FALSE(TriggersActionMethod("Am_LOCAL01"));
}

}  // namespace
}  // namespace trovane
