#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "platform/late_bound.h"
#include "support/fake_connection.h"
#include "support/fake_container.h"
#include "support/trace_capture.h"

namespace trovane {
namespace {

using testing::FakeConnection;
using testing::TraceCapture;
using Lines = std::vector<std::string>;

class CommandChannelTest : public ::testing::Test {
  protected:
    // Every command answers a value, so that each one leaves exactly two trace lines.
    void AnswerEveryCommand() {
        connection->RespondWith([](int16_t, const std::string&) {
            return FakeConnection::Answer{Variant(int32_t{1}), 0, std::nullopt};
        });
    }
    Variant Run(const std::string& command, int32_t& status) {
        return common.RunVexlCmdGlobalWithStatus(connection->AsVariant(), command, 1, status);
    }

    CommonFunctions common;
    std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>();
    TraceCapture trace;
};

TEST_F(CommandChannelTest, SuccessfulCommandIsNumberedTracedAndReturned) {
    connection->QueueAnswer(Variant(int32_t{42}));
    int32_t status = -1;
    const Variant result = Run("#return 42", status);
    EXPECT_EQ(result, Variant(int32_t{42}));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(trace.Lines(),
              (Lines{"RunVexlCmd: (1) Running command \"#return 42\"", "RunVexlCmd: (1) finished."}));
    EXPECT_EQ(common.commandCounter.Value(), 1);
}

TEST_F(CommandChannelTest, CommandWithQuotesIsTracedVerbatim) {
    connection->QueueAnswer(Variant("x"));
    int32_t status = 0;
    Run("#return do(BGU_BLOCK:C, \"GET_ENABLED_BLOCKINGS\", (\"ABC\",10))", status);
    EXPECT_EQ(trace.Lines().at(0),
              "RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"GET_ENABLED_BLOCKINGS\", "
              "(\"ABC\",10))\"");
}

TEST_F(CommandChannelTest, ApplicationAndCommandReachTheConnection) {
    common.RunVexlCmdGlobal(connection->AsVariant(), "#return 1", 7);
    ASSERT_EQ(connection->sent.size(), 1u);
    EXPECT_EQ(connection->sent[0].application, 7);
    EXPECT_EQ(connection->sent[0].command, "#return 1");
}

TEST_F(CommandChannelTest, NonZeroStatusGivesEmptyAndTheStatusLine) {
    connection->QueueAnswer(Variant("partial"), 13);
    int32_t status = 0;
    EXPECT_TRUE(Run("#return x", status).IsEmpty());
    EXPECT_EQ(status, 13);
    EXPECT_EQ(trace.Lines(), (Lines{"RunVexlCmd: (1) Running command \"#return x\"",
                                    "RunVexlCmd: (1) finished.", "RunVexlCmd: (1) returned VEXL error 13"}));
}

TEST_F(CommandChannelTest, EmptyResultWithStatusZeroIsReportedAsVexlErrorZero) {
    int32_t status = 5;
    EXPECT_TRUE(Run("#SET A:OV=1", status).IsEmpty());
    EXPECT_EQ(status, 0);
    EXPECT_EQ(trace.Lines().back(), "RunVexlCmd: (1) returned VEXL error 0");
}

TEST_F(CommandChannelTest, RaisedErrorIsTracedWithDescriptionAndNumberAndNotPassedOn) {
    connection->QueueError(Error(-2147467259, "Server connection lost"));
    int32_t status = 0;
    Variant result;
    EXPECT_NO_THROW(result = Run("#return 1", status));
    EXPECT_TRUE(result.IsEmpty());
    EXPECT_EQ(trace.Lines(),
              (Lines{"RunVexlCmd: (1) Running command \"#return 1\"",
                     "RunVexlCmd: (1) failed. Server connection lost (Error number = -2147467259)"}));
}

TEST_F(CommandChannelTest, StandardErrorUsesItsStandardDescription) {
    connection->QueueError(Error(ErrorNumber::MemberNotSupported, "ExecuteCommand"));
    int32_t status = 0;
    Run("#return 1", status);
    EXPECT_EQ(trace.Lines().back(),
              "RunVexlCmd: (1) failed. Object doesn't support this property or method (Error number = 438)");
}

TEST_F(CommandChannelTest, NothingGivesEmptyWithoutTraceCounterOrStatus) {
    int32_t status = 77;
    EXPECT_TRUE(common.RunVexlCmdGlobalWithStatus(Variant::Nothing(), "#return 1", 1, status).IsEmpty());
    EXPECT_TRUE(
        common.RunVexlCmdGlobalWithStatus(Variant("not an object"), "#return 1", 1, status).IsEmpty());
    EXPECT_EQ(status, 77);
    EXPECT_TRUE(trace.Lines().empty());
    EXPECT_EQ(common.commandCounter.Value(), 0);
}

TEST_F(CommandChannelTest, NotReadyOrFailingReadyGivesEmptyWithoutTraceCounterOrStatus) {
    connection->SetReady(false);
    int32_t status = 77;
    EXPECT_TRUE(Run("#return 1", status).IsEmpty());
    connection->SetReady(true);
    connection->ThrowOnIsReady();
    EXPECT_NO_THROW(EXPECT_TRUE(Run("#return 1", status).IsEmpty()));
    EXPECT_EQ(connection->readyReads, 2);
    EXPECT_TRUE(connection->sent.empty());
    EXPECT_EQ(status, 77);
    EXPECT_TRUE(trace.Lines().empty());
    EXPECT_EQ(common.commandCounter.Value(), 0);
}

TEST_F(CommandChannelTest, SkippedCommandsDoNotUseUpNumbers) {
    AnswerEveryCommand();
    int32_t status = 0;
    Run("first", status);
    connection->SetReady(false);
    Run("skipped", status);
    connection->SetReady(true);
    Run("second", status);
    EXPECT_EQ(trace.Lines().at(2), "RunVexlCmd: (2) Running command \"second\"");
}

TEST_F(CommandChannelTest, TwoInstancesNumberTheirCommandsIndependently) {
    AnswerEveryCommand();
    CommonFunctions other;
    int32_t status = 0;
    Run("a", status);
    Run("b", status);
    other.RunVexlCmdGlobalWithStatus(connection->AsVariant(), "c", 1, status);
    EXPECT_EQ(trace.Lines().at(4), "RunVexlCmd: (1) Running command \"c\"");
    EXPECT_EQ(common.commandCounter.Value(), 2);
    EXPECT_EQ(other.commandCounter.Value(), 1);
}

TEST_F(CommandChannelTest, CounterAtTheTopOfItsRangeOverflowsInsteadOfWrapping) {
    common.commandCounter = Counter32(2147483647);
    int32_t status = 0;
    try {
        Run("#return 1", status);
        FAIL() << "expected overflow";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 6);
    }
    EXPECT_TRUE(connection->sent.empty());
}

TEST_F(CommandChannelTest, ResultIsACopyOfTheServerValue) {
    connection->QueueAnswer(MakeVariantArray({Variant(Currency{0}), Variant("A"), Variant(int32_t{1})}));
    Variant result = common.RunVexlCmdGlobal(connection->AsVariant(), "#return LIST(A=1)", 1);
    ASSERT_EQ(TypeName(result), "Variant()");
    EXPECT_EQ(result.AsArray().At(2), Variant(int32_t{1}));
}

TEST_F(CommandChannelTest, LateBoundConnectionObjectIsUsedByMemberName) {
    auto host = std::make_shared<DispatchObject>("OpcDataLib");
    bool ready = false;
    host->Property("IsReady", [&] { return Variant(ready); });
    host->Method("ExecuteCommand", [](std::span<Variant> args) {
        args[2] = Variant("done");
        args[3] = Variant(int32_t{0});
        return Variant();
    });
    int32_t status = 0;
    EXPECT_TRUE(common.RunVexlCmdGlobalWithStatus(Variant(ObjectRef(host)), "x", 1, status).IsEmpty());
    ready = true;
    EXPECT_EQ(common.RunVexlCmdGlobalWithStatus(Variant(ObjectRef(host)), "x", 1, status), Variant("done"));
}

TEST(ContainerCommandPair, RunVexlCmdWithStatusWritesTheStatusBackThroughTheArgument) {
    auto container = std::make_shared<testing::FakeContainer>();
    container->ConnectionObject().QueueAnswer(Variant(), -1);
    Variant args[] = {Variant("#return 1"), Variant(int32_t{0})};
    EXPECT_TRUE(CallMethod(container->AsVariant(), "RunVexlCmdWithStatus", args).IsEmpty());
    EXPECT_EQ(ToInt32(args[1]), -1);
    EXPECT_EQ(container->CallsOf("runvexlcmdwithstatus").size(), 1u);
    EXPECT_EQ(container->ConnectionObject().Commands(), (Lines{"#return 1"}));
}

}  // namespace
}  // namespace trovane
