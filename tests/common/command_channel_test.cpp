#include <gtest/gtest.h>

#include "common/common_functions.h"
#include "core/error.h"
#include "platform/late_bound.h"
#include "support/error_number.h"
#include "support/fake_connection.h"
#include "support/trace_capture.h"

namespace trovane {
namespace {

using testing::FakeConnection;
using Lines = std::vector<std::string>;

class CommandChannelTest : public ::testing::Test {
  protected:
    Variant Run(const std::string& command) {
        return common.RunVexlCmdGlobalWithStatus(connection->AsVariant(), command, 1, status);
    }

    CommonFunctions common;
    std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>();
    testing::TraceCapture trace;
    int32_t status = -1;
};

TEST_F(CommandChannelTest, CommandIsNumberedTracedVerbatimAndAFailedStatusOrEmptyResultGivesEmpty) {
    const std::string command = "#return do(BGU_BLOCK:C, \"GET_ENABLED_BLOCKINGS\", (\"ABC\",10))";
    connection->QueueAnswer(Variant(int32_t{42}));
    EXPECT_EQ(common.RunVexlCmdGlobalWithStatus(connection->AsVariant(), command, 7, status),
              Variant(int32_t{42}));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(connection->sent.at(0).application, 7);
    EXPECT_EQ(connection->sent.at(0).command, command);
    connection->QueueAnswer(Variant("partial"), 13);
    EXPECT_TRUE(Run("#return x").IsEmpty());
    EXPECT_EQ(status, 13);
    EXPECT_TRUE(Run("#SET A:OV=1").IsEmpty());
    EXPECT_EQ(status, 0);
    EXPECT_EQ(
        trace.Lines(),
        (Lines{"RunVexlCmd: (1) Running command \"" + command + "\"", "RunVexlCmd: (1) finished.",
               "RunVexlCmd: (2) Running command \"#return x\"", "RunVexlCmd: (2) finished.",
               "RunVexlCmd: (2) returned VEXL error 13", "RunVexlCmd: (3) Running command \"#SET A:OV=1\"",
               "RunVexlCmd: (3) finished.", "RunVexlCmd: (3) returned VEXL error 0"}));
}

TEST_F(CommandChannelTest, RaisedErrorIsTracedWithDescriptionAndNumberAndNotPassedOn) {
    connection->QueueError(Error(-2147467259, "Server connection lost"));
    EXPECT_NO_THROW(EXPECT_TRUE(Run("#return 1").IsEmpty()));
    EXPECT_EQ(trace.Lines(),
              (Lines{"RunVexlCmd: (1) Running command \"#return 1\"",
                     "RunVexlCmd: (1) failed. Server connection lost (Error number = -2147467259)"}));
    connection->QueueError(Error(ErrorNumber::MemberNotSupported, "ExecuteCommand"));
    Run("#return 1");
    EXPECT_EQ(trace.Lines().back(),
              "RunVexlCmd: (2) failed. Object doesn't support this property or method (Error number = 438)");
}

TEST_F(CommandChannelTest,
       NoConnectionOrNotReadyGivesEmptyWithoutTraceCounterOrStatusAndLateBoundObjectsWork) {
    EXPECT_TRUE(common.RunVexlCmdGlobalWithStatus(Variant::Nothing(), "#return 1", 1, status).IsEmpty());
    EXPECT_TRUE(
        common.RunVexlCmdGlobalWithStatus(Variant("not an object"), "#return 1", 1, status).IsEmpty());
    connection->SetReady(false);
    EXPECT_TRUE(Run("#return 1").IsEmpty());
    connection->SetReady(true);
    connection->ThrowOnIsReady();
    EXPECT_NO_THROW(EXPECT_TRUE(Run("#return 1").IsEmpty()));
    EXPECT_EQ(connection->readyReads, 2);
    EXPECT_TRUE(connection->sent.empty());
    EXPECT_EQ(status, -1);
    EXPECT_TRUE(trace.Lines().empty());
    EXPECT_EQ(common.commandCounter.Value(), 0);

    // A late-bound connection object is used by member name.
    auto host = std::make_shared<DispatchObject>("OpcDataLib");
    bool ready = false;
    host->Property("IsReady", [&] { return Variant(ready); });
    host->Method("ExecuteCommand", [](std::span<Variant> args) {
        args[2] = Variant("done");
        args[3] = Variant(int32_t{0});
        return Variant();
    });
    EXPECT_TRUE(common.RunVexlCmdGlobalWithStatus(Variant(ObjectRef(host)), "x", 1, status).IsEmpty());
    ready = true;
    EXPECT_EQ(common.RunVexlCmdGlobalWithStatus(Variant(ObjectRef(host)), "x", 1, status), Variant("done"));
}

TEST_F(CommandChannelTest, EachInstanceNumbersOnlyTheCommandsItSendsAndNeverWraps) {
    connection->RespondWith([](int16_t, const std::string&) {
        return FakeConnection::Answer{Variant(int32_t{1}), 0, std::nullopt};
    });
    Run("first");
    Run("second");
    CommonFunctions other;
    other.RunVexlCmdGlobalWithStatus(connection->AsVariant(), "c", 1, status);
    EXPECT_EQ(trace.Lines().at(2), "RunVexlCmd: (2) Running command \"second\"");
    EXPECT_EQ(trace.Lines().at(4), "RunVexlCmd: (1) Running command \"c\"");
    EXPECT_EQ(common.commandCounter.Value(), 2);
    common.commandCounter = Counter32(2147483647);  // at the top of its range it overflows, not wraps
    connection->sent.clear();
    EXPECT_EQ(testing::ErrorNumberOf([&] { Run("#return 1"); }), 6);
    EXPECT_TRUE(connection->sent.empty());
}

}  // namespace
}  // namespace trovane
