// The pitfalls of malformed and oversized input: whatever arrives, Execute answers with a status and
// leaves the server untouched by lines that did not parse. The panels' own command texts run against
// the demo server in server_commands_test.cpp; the language itself in transcripts/language.vexl.

#include <gtest/gtest.h>

#include <string>

#include "sim/vexl_interpreter.h"
#include "sim/vexl_limits.h"
#include "support/fake_vexl_environment.h"

namespace trovane::sim {
namespace {

class VexlInterpreterTest : public ::testing::Test {
  protected:
    Variant Run(const std::string& command) { return interpreter.Execute(command, status); }

    testing::FakeVexlEnvironment environment;
    VexlInterpreter interpreter{environment};
    int32_t status = -1;
};

TEST_F(VexlInterpreterTest, MalformedOrOversizedCommandsFailWithTheirStatusAndCallNothingButEarlierLinesRun) {
    std::string nots, doubling = "@a=\"xxxxxxxx\"", splicing = doubling;
    for (int i = 0; i < 5000; ++i) nots += "NOT ";
    for (int i = 0; i < 40; ++i) doubling += "\n@a=%a+%a", splicing += "\n@a=\"'a''a'\"";
    const std::string half(kMaxValueWeight / 2, 'x');
    const struct {
        std::string command;
        int32_t status;
    } cases[] = {
        {"#return do(ECHO:C, \"SET_BLOCKING_STATE\", (\"ABC\",10), (1,1,1,1,1,1)) junk",
         status::kSyntaxError},
        {"#return do(ECHO:C, (\"ABC\",10)", status::kSyntaxError},
        {"#return " + std::string(5000, '(') + "1" + std::string(5000, ')'), status::kTooDeep},
        {"#return " + std::string(5000, '-') + "1", status::kTooDeep},
        {"#return " + nots + "TRUE", status::kTooDeep},
        {doubling, status::kValueTooLarge},
        {splicing, status::kValueTooLarge},
        {"@v=(\"" + half + "\",1)\n@w=%v\n@v=(%v,%v)", status::kValueTooLarge},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(Run(c.command).IsEmpty()) << c.command.substr(0, 80);
        EXPECT_EQ(status, c.status) << c.command.substr(0, 80);
    }
    EXPECT_TRUE(environment.calls.empty());
    Run("@v=(\"" + half + "\",1)\n#return (%v,1)");
    EXPECT_EQ(status, 0) << "just under the size bound, and success resets the status";
    Run("#SET ABC:PAR10=1\n#return nosuch()");
    EXPECT_EQ(status, status::kUnknownFunction);
    EXPECT_EQ(environment.attributes["ABC:PAR10"], Variant(int32_t{1})) << "lines before the failing one ran";
}

TEST_F(VexlInterpreterTest, BoundariesAndOddCharactersThatMustStillWork) {
    EXPECT_EQ(Run("@a=2\r\n#return %a\r"), Variant(int32_t{2}));
    const int depth = kMaxNesting - 10;
    EXPECT_EQ(Run("#return " + std::string(depth, '(') + "1" + std::string(depth, ')')), Variant(int32_t{1}));
    // A comment of many lines is one long chain of "+"; it must not count as nesting.
    std::string chain = "#return \"0\"";
    for (int i = 0; i < 2000; ++i) chain += " + ascii(10) + \"x\"";
    EXPECT_EQ(Run(chain).AsString().size(), 1u + 2 * 2000);
    static constexpr char kNul[] = "#return \"a\tb\0c\"";
    EXPECT_EQ(Run(std::string(kNul, sizeof kNul - 1)).AsString(), std::string("a\tb\0c", 5));
    EXPECT_EQ(Run("#return FALSE AND do(ECHO:C) == 1"), Variant(false));
    EXPECT_EQ(Run("#return TRUE OR do(ECHO:C) == 1"), Variant(true));
    EXPECT_TRUE(environment.calls.empty()) << "short circuit skips the right operand";
}

}  // namespace
}  // namespace trovane::sim
