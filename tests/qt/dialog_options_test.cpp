#include <vector>

#include <gtest/gtest.h>

#include "dialog_options.h"

namespace trovane::dialog {
namespace {

ParsedOptions Parse(std::vector<const char*> arguments) {
    return ParseDialogOptions(arguments);
}

TEST(DialogOptions, DefaultsToObjectAbcIndexTenWithAllRights) {
    const ParsedOptions parsed = Parse({});
    EXPECT_TRUE(parsed.error.empty());
    EXPECT_EQ(parsed.options.objectName, "ABC");
    EXPECT_EQ(parsed.options.index, 10);
    EXPECT_FALSE(parsed.options.scenarioFile);
    EXPECT_TRUE(parsed.options.rights.blockingHandling);
    EXPECT_FALSE(parsed.options.trace);
}

TEST(DialogOptions, ReadsEveryOptionInBothForms) {
    const ParsedOptions parsed = Parse({"--object", "DEF", "--index=-2", "--scenario", "s.json", "--user",
                                        "anna", "--language", "DE", "--trace", "--screenshot", "out.png"});
    ASSERT_TRUE(parsed.error.empty()) << parsed.error;
    EXPECT_EQ(parsed.options.objectName, "DEF");
    EXPECT_EQ(parsed.options.index, -2);
    EXPECT_EQ(*parsed.options.scenarioFile, "s.json");
    EXPECT_EQ(parsed.options.userName, "anna");
    EXPECT_EQ(parsed.options.language, "DE");
    EXPECT_TRUE(parsed.options.trace);
    EXPECT_EQ(*parsed.options.screenshotFile, "out.png");
}

TEST(DialogOptions, RightsListGrantsOnlyWhatItNames) {
    const ParsedOptions parsed = Parse({"--rights", "authorized,alarms"});
    ASSERT_TRUE(parsed.error.empty());
    EXPECT_TRUE(parsed.options.rights.authorized);
    EXPECT_TRUE(parsed.options.rights.alarmHandling);
    EXPECT_FALSE(parsed.options.rights.blockingHandling);
    EXPECT_FALSE(parsed.options.rights.engineer);
    EXPECT_FALSE(Parse({"--rights", "none"}).options.rights.authorized);
}

TEST(DialogOptions, BadInputIsAClearError) {
    EXPECT_NE(Parse({"--index", "ten"}).error.find("--index"), std::string::npos);
    EXPECT_NE(Parse({"--index", "10x"}).error.find("--index"), std::string::npos);
    EXPECT_NE(Parse({"--rights", "admin"}).error.find("--rights"), std::string::npos);
    EXPECT_NE(Parse({"--object"}).error.find("needs a value"), std::string::npos);
    EXPECT_NE(Parse({"--colour", "red"}).error.find("unknown option"), std::string::npos);
    EXPECT_NE(Parse({"stray"}).error.find("unexpected"), std::string::npos);
}

}  // namespace
}  // namespace trovane::dialog
