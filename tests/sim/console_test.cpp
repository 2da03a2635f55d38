// The trovane-vexl console: the blocking example, failures, and the interactive form.

#include "console.h"

#include <gtest/gtest.h>

#include <sstream>

namespace trovane::vexl_console {
namespace {

const char* const kRead =
    "#return do(BGU_BLOCK:C, \"GET_BLOCKING_STATE\", (\"ABC\",10), Vector(), \"APPLY_TO_ALL\")";

struct Session {
    int exitCode = 0;
    std::string out;
};

Session RunSession(const std::vector<std::string>& commands, const std::string& input = "",
                   const std::string& scenario = "") {
    std::istringstream in(input);
    std::ostringstream out, err;
    const int exitCode = RunConsole(scenario, commands, in, out, err, false);
    return {exitCode, out.str()};
}

TEST(ConsoleTest, BlockingWriteShowsInTheSameRunAFailedCommandItsStatusAndInputIsReadByLine) {
    const Session session =
        RunSession({kRead,
                    "#return do(BGU_BLOCK:C, \"SET_BLOCKING_STATE\", (\"ABC\",10), (0,1,0,0,0,0), "
                    "\"APPLY_TO_ALL\")",
                    kRead});
    EXPECT_EQ(session.exitCode, 0);
    EXPECT_EQ(session.out, "(0,0,2,0,0,0)\n(0,1,0,0,0,0)\n(0,1,0,0,0,0)\n");
    const Session failed = RunSession({"#return do(BGU_BLOCK:C", "#return 10"});
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_EQ(failed.out, "!status 2001 VEXL_SYNTAX_ERROR\n10\n");
    EXPECT_EQ(RunSession({"@x=\"ABC\"\n#return %x + \"D\""}).out, "\"ABCD\"\n") << "one command, two lines";
    // Without commands, standard input is read line by line.
    EXPECT_EQ(RunSession({}, "#SET ABC:PCL10=5\n\n#return ABC:PCL10\r\n#return ABC:PCO10\n").out,
              "<EMPTY>\n5\n1\n");
    // Scenario text replaces the demo.
    EXPECT_EQ(RunSession({"#return Q:PTX1"}, "",
                         R"({"objects":[{"name":"Q","signals":[{"index":1,"type":3,"text":"x"}]}]})")
                  .out,
              "\"x\"\n");
    EXPECT_EQ(RunSession({"#return 1"}, "", "{").exitCode, 2);
}

TEST(ConsoleTest, ArgumentsAreParsedInOrder) {
    const auto parsed = ParseArguments({"--scenario", "a.json", "-e", "#return 1", "-e", "#return 2"});
    ASSERT_TRUE(parsed.options);
    EXPECT_EQ(parsed.options->scenarioFile, "a.json");
    EXPECT_EQ(parsed.options->commands, (std::vector<std::string>{"#return 1", "#return 2"}));
    EXPECT_FALSE(ParseArguments({"-e"}).options);
    EXPECT_FALSE(ParseArguments({"--bogus"}).options);
}

}  // namespace
}  // namespace trovane::vexl_console
