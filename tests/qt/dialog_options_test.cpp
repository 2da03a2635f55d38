#include <vector>

#include <gtest/gtest.h>

#include "dialog_options.h"

namespace trovane::dialog {
namespace {

ParsedOptions Parse(std::vector<const char*> arguments) {
    return ParseDialogOptions(arguments);
}

TEST(DialogOptions, ReadsEveryOptionInBothForms) {
    const ParsedOptions parsed =
        Parse({"--object", "DEF", "--index=-2", "--scenario", "s.json", "--user", "anna", "--language", "DE",
               "--trace", "--screenshot", "out.png", "--select-row", "2", "--screenshot-error", "Failed",
               "--dialog-timeout=5"});
    ASSERT_TRUE(parsed.error.empty()) << parsed.error;
    EXPECT_EQ(parsed.options.objectName, "DEF");
    EXPECT_EQ(parsed.options.index, -2);
    EXPECT_EQ(*parsed.options.scenarioFile, "s.json");
    EXPECT_EQ(parsed.options.userName, "anna");
    EXPECT_EQ(parsed.options.language, "DE");
    EXPECT_TRUE(parsed.options.trace);
    EXPECT_EQ(*parsed.options.screenshotFile, "out.png");
    EXPECT_EQ(*parsed.options.selectRow, 2);
    EXPECT_EQ(*parsed.options.screenshotError, "Failed");
    EXPECT_EQ(*parsed.options.dialogTimeout, 5);
}

TEST(DialogOptions, RightsGrantOnlyWhatTheyNameAndBadInputIsAClearError) {
    const ParsedOptions parsed = Parse({"--rights", "authorized,alarms"});
    ASSERT_TRUE(parsed.error.empty());
    EXPECT_TRUE(parsed.options.rights.authorized);
    EXPECT_TRUE(parsed.options.rights.alarmHandling);
    EXPECT_FALSE(parsed.options.rights.blockingHandling);
    EXPECT_FALSE(parsed.options.rights.engineer);
    EXPECT_FALSE(Parse({"--rights", "none"}).options.rights.authorized);
    for (const auto& [arguments, message] : std::vector<std::pair<std::vector<const char*>, const char*>>{
             {{"--index", "ten"}, "--index"},
             {{"--index", "10x"}, "--index"},
             {{"--dialog-timeout", "0"}, "--dialog-timeout"},
             {{"--select-row", "0"}, "--select-row"},
             {{"--rights", "admin"}, "--rights"},
             {{"--object"}, "needs a value"},
             {{"--colour", "red"}, "unknown option"},
             {{"stray"}, "unexpected"}})
        EXPECT_NE(Parse(arguments).error.find(message), std::string::npos) << message;
}

// --list-objects takes no value, so it sits anywhere among the others; the usage names it.
TEST(DialogOptions, ListObjectsIsAFlagBesideTheScenario) {
    const ParsedOptions parsed = Parse({"--list-objects", "--scenario", "bay.json"});
    ASSERT_TRUE(parsed.error.empty()) << parsed.error;
    EXPECT_TRUE(parsed.options.listObjects);
    EXPECT_EQ(*parsed.options.scenarioFile, "bay.json");
    EXPECT_TRUE(Parse({"--scenario", "bay.json", "--list-objects"}).options.listObjects);
    EXPECT_FALSE(Parse({"--object", "DEF"}).options.listObjects);
    EXPECT_NE(Parse({"--list-objects=yes"}).error.find("unknown option"), std::string::npos);
    EXPECT_NE(DialogUsage().find("--list-objects"), std::string::npos);
}

}  // namespace
}  // namespace trovane::dialog
