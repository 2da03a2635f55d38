#include "net/network_connection.h"

#include <gtest/gtest.h>

#include "core/error.h"
#include "mqtt_probe.h"
#include "net/network_server.h"
#include "network_host.h"
#include "sim/scenario.h"
#include "support/mosquitto_broker.h"
#include "support/recording_data_callback.h"
#include "support/trace_capture.h"

namespace trovane::net {
namespace {

using testing::NetworkHost;
using testing::WorkstationOptions;
using trovane::testing::RecordingDataCallback;
using trovane::testing::TraceCapture;

constexpr auto kPatience = std::chrono::seconds(30);

class NetworkConnectionTest : public trovane::testing::BrokerTest {
  protected:
    void StartServer() {
        BrokerOptions options;
        options.port = broker->Port();
        server =
            std::make_unique<NetworkServer>(std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()),
                                            options, [](const std::string&) {});
        server->Start();
    }
    std::unique_ptr<NetworkConnection> Workstation(
        const std::string& user, std::chrono::milliseconds timeout = std::chrono::seconds(20)) {
        auto connection =
            std::make_unique<NetworkConnection>(WorkstationOptions(broker->Port(), user, timeout));
        return connection;
    }
    static Variant Run(Connection& connection, const std::string& command, int32_t* status = nullptr) {
        Variant result;
        int32_t code = -1;
        connection.ExecuteCommand(1, command, result, code);
        if (status) *status = code;
        return result;
    }
    // Pumps until `done` holds, waiting for arrivals in between; false after the patience.
    template <typename Done>
    static bool PumpUntil(NetworkConnection& connection, Done done) {
        const auto deadline = std::chrono::steady_clock::now() + kPatience;
        for (;;) {
            connection.Pump();
            if (done()) return true;
            if (std::chrono::steady_clock::now() > deadline) return false;
            connection.WaitForNotifications(std::chrono::milliseconds(500));
        }
    }

    std::unique_ptr<NetworkServer> server;
};

TEST_F(NetworkConnectionTest, CommandsAndSubscriptionsBehaveAsInProcessWithDeliveryOnlyOnPump) {
    StartServer();
    auto a = Workstation("op-a");
    auto b = Workstation("op-b");
    ASSERT_TRUE(a->WaitUntilReady(kPatience));
    ASSERT_TRUE(b->WaitUntilReady(kPatience));

    int32_t status = -1;
    EXPECT_EQ(Run(*a, "#return 6*7", &status), Variant(42));
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(Run(*a, "#return ABC:PZZ", &status).IsEmpty());
    EXPECT_EQ(status, sim::status::kUnknownAttribute);

    // Item results as the in-process connection answers them, with the caller's lower bound.
    int32_t handle = 0;
    Variant results;
    b->AddItems(
        MakeLongArray({7, 9, 4}, 1),
        MakeStringArray({"\\\\APL\\1\\P\\ABC:GC", "\\\\APL\\1\\P\\NOPE:GC", "\\\\APL\\1\\P\\ABC\\10:CB"}, 1),
        0, 0, handle, results);
    EXPECT_EQ(results, MakeLongArray({0, sim::status::kUnknownObject, 0}, 1));
    RecordingDataCallback callback;
    b->SetCallback(&callback, handle);
    // Nothing is delivered without a pump, however long one waits.
    ASSERT_TRUE(b->WaitForNotifications(kPatience));
    EXPECT_TRUE(callback.notifications.empty());
    ASSERT_TRUE(
        PumpUntil(*b, [&] { return !callback.ValuesOf(4).empty() && !callback.ValuesOf(7).empty(); }));
    EXPECT_EQ(callback.ValuesOf(4), std::vector<Variant>{Variant(0)});
    EXPECT_EQ(callback.ValuesOf(7).size(), 1u);
    EXPECT_TRUE(callback.ValuesOf(9).empty());

    // A change on A reaches B at B's pump; two changes before a pump come once, with the last value.
    Run(*a, "#SET ABC:PGC=\"first\"");
    Run(*a, "#SET ABC:PGC=\"second\"");
    Run(*a, "#SET ABC:PCB10=1");
    ASSERT_TRUE(PumpUntil(*b, [&] {
        return callback.ValuesOf(7).back() == Variant("second") && callback.ValuesOf(4).size() == 2;
    }));
    EXPECT_EQ(callback.ValuesOf(4).back(), Variant(1));
    EXPECT_EQ(server->LastUser({"ABC", std::nullopt, "GC"}), "op-a");

    // Refresh sends the current values again; after removal nothing more comes.
    const size_t seen = callback.notifications.size();
    b->RefreshItems(handle, 1, results);
    EXPECT_EQ(b->Pump(), 2);
    EXPECT_EQ(callback.notifications.size(), seen + 1);
    b->RemoveItems(handle);
    EXPECT_EQ(b->SubscriptionCount(), 0u);
    Run(*a, "#SET ABC:PGC=\"third\"");
    Run(*b, "#return 1");  // round trip: what A published has passed the broker
    EXPECT_EQ(b->Pump(), 0);
    EXPECT_EQ(callback.notifications.size(), seen + 1);
}

TEST_F(NetworkConnectionTest, WithoutAServerCommandsFailAsTracedErrorsUntilItComesOnline) {
    auto connection = std::make_shared<NetworkConnection>(
        WorkstationOptions(broker->Port(), "op", std::chrono::milliseconds(200)));
    EXPECT_FALSE(connection->IsReady());
    try {
        Run(*connection, "#return 1");
        ADD_FAILURE() << "answered without a server";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kNoAnswerError);
        EXPECT_EQ(error.Description(), "the server did not answer within 200 ms");
    }
    // The command channel: a connection that is not ready sends nothing.
    CommonFunctions functions;
    TraceCapture trace;
    Variant channel{ObjectRef(connection)};
    EXPECT_TRUE(functions.RunVexlCmdGlobal(channel, "#return 1", 1).IsEmpty());
    EXPECT_TRUE(trace.Lines().empty());

    StartServer();
    ASSERT_TRUE(connection->WaitUntilReady(kPatience));
    EXPECT_EQ(functions.RunVexlCmdGlobal(channel, "#return 1", 1), Variant(1));

    // A server that stops announces it: ready no more, and a command fails after its time-out.
    server->Stop();
    while (connection->IsReady()) connection->WaitUntilReady(std::chrono::milliseconds(20));
    EXPECT_THROW(Run(*connection, "#return 1"), Error);
}

TEST_F(NetworkConnectionTest, ABrokerRestartIsRecoveredWithSubscriptionsIntact) {
    StartServer();
    auto a = Workstation("op-a");
    auto b = Workstation("op-b");
    ASSERT_TRUE(b->WaitUntilReady(kPatience));
    int32_t handle = 0;
    Variant results;
    b->AddItems(MakeLongArray({1}), MakeStringArray({"\\\\APL\\1\\P\\ABC:GC"}), 0, 0, handle, results);
    RecordingDataCallback callback;
    b->SetCallback(&callback, handle);
    ASSERT_TRUE(PumpUntil(*b, [&] { return !callback.notifications.empty(); }));

    broker->Stop();
    broker->Start();
    ASSERT_TRUE(a->WaitUntilReady(kPatience));
    ASSERT_TRUE(b->WaitUntilReady(kPatience));
    Run(*a, "#SET ABC:PGC=\"after the restart\"");
    EXPECT_TRUE(PumpUntil(*b, [&] { return callback.ValuesOf(1).back() == Variant("after the restart"); }));
}

TEST(NetworkConnectionStart, AMissingBrokerIsAClearErrorNotAHang) {
    auto options = WorkstationOptions(trovane::testing::FreeLoopbackPort(), "op");
    options.broker.connectTimeout = std::chrono::milliseconds(500);
    try {
        NetworkConnection connection(options);
        ADD_FAILURE() << "connected to nothing";
    } catch (const NetworkError& error) {
        EXPECT_NE(std::string(error.what()).find("cannot reach the broker at mqtt://127.0.0.1:"),
                  std::string::npos)
            << error.what();
    }
}

}  // namespace
}  // namespace trovane::net
