// The interpreter against the exact command texts the panels send, and the pitfalls of malformed
// input: whatever arrives, Execute answers with a status and leaves the server untouched by lines
// that did not parse.

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
    const testing::ProcedureCall& OnlyCall() {
        EXPECT_EQ(environment.calls.size(), 1u);
        return environment.calls.back();
    }

    testing::FakeVexlEnvironment environment;
    VexlInterpreter interpreter{environment};
    int32_t status = -1;
};

// ---- The panels' commands -------------------------------------------------------------------

TEST_F(VexlInterpreterTest, BlockingWriteHandsProcedureItsFourArguments) {
    Run("#return do(ECHO:C, \"SET_BLOCKING_STATE\", (\"ABC\",10), (0,1,0,0,0,0), \"APPLY_TO_ALL\")");
    ASSERT_EQ(status, 0);
    const auto& call = OnlyCall();
    ASSERT_EQ(call.args.size(), 4u);
    EXPECT_EQ(call.args[1], MakeVexlVector({Variant("ABC"), Variant(int32_t{10})}));
    EXPECT_EQ(TypeName(call.args[2]), "Long()");
    EXPECT_EQ(call.args[2].AsArray().At(2), Variant(int32_t{1}));
}

TEST_F(VexlInterpreterTest, SubstitutionWriteSendsAList) {
    Run("#return "
        "do(ECHO:C,(\"ABC\",10),\"SET_SUBSTITUTION\",LIST(LOGICAL_DEVICE=\"LD1\",LOGICAL_NODE=\"N/A\","
        "DATA_OBJECT=\"Pos\",DATA_ATTRIBUTE=\"stVal\",LN=\"ABC\",IX=10,ENABLED=1,VALUE=12.5,QUALITY=0))");
    ASSERT_EQ(status, 0);
    const Variant& list = OnlyCall().args[2];
    ASSERT_TRUE(IsVexlList(list));
    EXPECT_EQ(*FindVexlListItem(list, "VALUE"), Variant(12.5));
    EXPECT_EQ(*FindVexlListItem(list, "IX"), Variant(int32_t{10}));
    EXPECT_EQ(*FindVexlListItem(list, "QUALITY"), Variant(int32_t{0}));
}

TEST_F(VexlInterpreterTest, SubstitutionReadPassesTheBooleanText) {
    Run("#return do(ECHO:C, (\"ABC\",10),\"GET_SUBSTITUTION\",\"EN\",True)");
    ASSERT_EQ(status, 0);
    EXPECT_EQ(OnlyCall().args[3], Variant(true));
}

TEST_F(VexlInterpreterTest, TagoutCommandsKeepTheirBlankBeforeComma) {
    Run("#return do(ECHO:C, \"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Hold\")");
    EXPECT_EQ(status, 0);
    Run("#return do(ECHO:C, \"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"ID1\",\"NOTE\",\"a \"\"b\"\" "
        "it''s\")");
    ASSERT_EQ(status, 0);
    EXPECT_EQ(environment.calls.back().args[4], Variant("a \"b\" it's"));
}

TEST_F(VexlInterpreterTest, CommentWriteSplicesTimeAndRebuildsLineBreaks) {
    // The indication bar's two-line command: a time variable, then the quoted value with the
    // variable spliced in and the line feed rebuilt by ascii(10).
    Run("@TIME_STRING=type_cast(pack_time(2026,11,22,18,56,38),\"INTEGER\")\n"
        "#SET ABC:PGC=\"OPERATOR#'TIME_STRING'#He said \"\"hi\"\", it''s\" + ascii(10) + \"line 2\"");
    ASSERT_EQ(status, 0);
    EXPECT_EQ(environment.attributes["ABC:PGC"], Variant("OPERATOR#1795373798#He said \"hi\", it's\nline 2"));
}

TEST_F(VexlInterpreterTest, CommentTimeReadsBackAsSixParts) {
    const Variant parts =
        Run("@t=type_cast(1795373798,\"TIME\")\n#return "
            "(year(%t),month(%t),day(%t),hour(%t),minute(%t),second(%t))");
    ASSERT_EQ(status, 0);
    EXPECT_EQ(parts, MakeVexlVector({Variant(int32_t{2026}), Variant(int32_t{11}), Variant(int32_t{22}),
                                     Variant(int32_t{18}), Variant(int32_t{56}), Variant(int32_t{38})}));
}

TEST_F(VexlInterpreterTest, AcknowledgeAndCounterWritesUseIndexedAttributes) {
    Run("#SET ABC:PAR10=1");
    Run("#SET ABC:PCL10=1e3");
    ASSERT_EQ(status, 0);
    EXPECT_EQ(environment.writes, (std::vector<std::string>{"ABC:PAR10", "ABC:PCL10"}));
    EXPECT_EQ(environment.attributes["ABC:PCL10"], Variant(1000.0));
}

TEST_F(VexlInterpreterTest, ObjectTypeReadAcceptsUpperCaseReturn) {
    EXPECT_EQ(Run("#RETURN ABC:PPT"), Variant(int32_t{12}));
    EXPECT_EQ(status, 0);
}

TEST_F(VexlInterpreterTest, StatusNameOfAFailedWriteIsAskable) {
    Run("#SET NOWHERE:PGC=\"x\"");
    const int32_t failed = status;
    EXPECT_EQ(Run("#return status_code_name(" + std::to_string(failed) + ")"),
              Variant("VEXL_UNKNOWN_OBJECT"));
}

// ---- Pitfalls ------------------------------------------------------------------------------

TEST_F(VexlInterpreterTest, SyntaxErrorLateInLineCallsNothing) {
    Run("#return do(ECHO:C, \"SET_BLOCKING_STATE\", (\"ABC\",10), (1,1,1,1,1,1)) junk");
    EXPECT_EQ(status, status::kSyntaxError);
    EXPECT_TRUE(environment.calls.empty());
}

TEST_F(VexlInterpreterTest, UnbalancedParenthesesCallNothing) {
    Run("#return do(ECHO:C, (\"ABC\",10)");
    EXPECT_EQ(status, status::kSyntaxError);
    Run("#return do(ECHO:C, (\"ABC\",10)))");
    EXPECT_EQ(status, status::kSyntaxError);
    EXPECT_TRUE(environment.calls.empty());
}

TEST_F(VexlInterpreterTest, FailedCommandAnswersEmpty) {
    EXPECT_TRUE(Run("#return \"unterminated").IsEmpty());
    EXPECT_EQ(status, status::kSyntaxError);
}

TEST_F(VexlInterpreterTest, LinesBeforeTheFailingOneHaveRun) {
    Run("#SET ABC:PAR10=1\n#return nosuch()");
    EXPECT_EQ(status, status::kUnknownFunction);
    EXPECT_EQ(environment.attributes["ABC:PAR10"], Variant(int32_t{1}));
}

TEST_F(VexlInterpreterTest, VariablesDoNotOutliveTheirCommand) {
    Run("@kept=1\n#return %kept");
    EXPECT_EQ(status, 0);
    Run("#return %kept");
    EXPECT_EQ(status, status::kUnknownVariable);
}

TEST_F(VexlInterpreterTest, SuccessResetsStatusOfThePreviousFailure) {
    Run("#return (");
    Run("#return 1");
    EXPECT_EQ(status, 0);
}

TEST_F(VexlInterpreterTest, CarriageReturnsAreBlanks) {
    EXPECT_EQ(Run("@a=2\r\n#return %a\r"), Variant(int32_t{2}));
    EXPECT_EQ(status, 0);
}

TEST_F(VexlInterpreterTest, DeepParenthesesStopAtTheNestingBound) {
    const int depth = 5000;
    Run("#return " + std::string(depth, '(') + "1" + std::string(depth, ')'));
    EXPECT_EQ(status, status::kTooDeep);
}

TEST_F(VexlInterpreterTest, NestingJustInsideTheBoundIsFine) {
    const int depth = kMaxNesting - 10;
    EXPECT_EQ(Run("#return " + std::string(depth, '(') + "1" + std::string(depth, ')')), Variant(int32_t{1}));
}

TEST_F(VexlInterpreterTest, DeepPrefixOperatorsStopAtTheNestingBound) {
    Run("#return " + std::string(5000, '-') + "1");
    EXPECT_EQ(status, status::kTooDeep);
    std::string nots;
    for (int i = 0; i < 5000; ++i) nots += "NOT ";
    Run("#return " + nots + "TRUE");
    EXPECT_EQ(status, status::kTooDeep);
}

TEST_F(VexlInterpreterTest, LongChainsCostNoDepth) {
    // A comment of many lines is one long chain of "+"; it must not count as nesting.
    std::string command = "#return \"0\"";
    for (int i = 0; i < 2000; ++i) command += " + ascii(10) + \"x\"";
    const Variant text = Run(command);
    ASSERT_EQ(status, 0);
    EXPECT_EQ(text.AsString().size(), 1u + 2 * 2000);
}

TEST_F(VexlInterpreterTest, DoublingTextStopsAtTheSizeBound) {
    std::string command = "@a=\"xxxxxxxx\"";
    for (int i = 0; i < 40; ++i) command += "\n@a=%a+%a";
    Run(command);
    EXPECT_EQ(status, status::kValueTooLarge);
}

TEST_F(VexlInterpreterTest, DoublingVectorsStopsAtTheSizeBound) {
    // A vector that weighs just over half the bound: its first doubling is too heavy.
    Run("@v=(\"" + std::string(kMaxValueWeight / 2, 'x') + "\",1)\n@w=%v\n@v=(%v,%v)");
    EXPECT_EQ(status, status::kValueTooLarge);
    Run("@v=(\"" + std::string(kMaxValueWeight / 2, 'x') + "\",1)\n#return (%v,1)");
    EXPECT_EQ(status, 0);
}

TEST_F(VexlInterpreterTest, DoublingThroughTheSpliceStopsAtTheSizeBound) {
    std::string command = "@a=\"xxxxxxxx\"";
    for (int i = 0; i < 40; ++i) command += "\n@a=\"'a''a'\"";
    Run(command);
    EXPECT_EQ(status, status::kValueTooLarge);
}

TEST_F(VexlInterpreterTest, ServerStatusPassesThrough) {
    Run("#return do(FAIL:C)");
    EXPECT_EQ(status, 5007);
}

TEST_F(VexlInterpreterTest, ForeignExceptionOfAProcedureIsAFailedProcedure) {
    Run("#return do(BREAK:C)");
    EXPECT_EQ(status, status::kProcedureFailed);
}

TEST_F(VexlInterpreterTest, ShortCircuitSkipsTheRightOperand) {
    EXPECT_EQ(Run("#return FALSE AND do(ECHO:C) == 1"), Variant(false));
    EXPECT_EQ(Run("#return TRUE OR do(ECHO:C) == 1"), Variant(true));
    EXPECT_TRUE(environment.calls.empty());
}

TEST_F(VexlInterpreterTest, ControlCharactersAndNulInTextSurvive) {
    static constexpr char kCommand[] = "#return \"a\tb\0c\"";
    const Variant text = Run(std::string(kCommand, sizeof kCommand - 1));
    ASSERT_EQ(status, 0);
    EXPECT_EQ(text.AsString(), std::string("a\tb\0c", 5));
}

}  // namespace
}  // namespace trovane::sim
