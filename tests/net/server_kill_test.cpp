// The server executable killed (SIGKILL) in the middle of a burst of writes from several
// workstations: once restarted on its state file, every write it answered is there.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "core/error.h"
#include "mqtt_probe.h"
#include "net/network_connection.h"
#include "net/variant_wire.h"
#include "support/child_process.h"
#include "support/mosquitto_broker.h"

namespace trovane::net {
namespace {

using testing::MqttProbe;

constexpr int kWriters = 3;
constexpr int kAnswersBeforeTheKill = 60;

// One workstation writing 1, 2, 3 ... into the text of its own object until a write fails.
struct Writer {
    int index = 0;
    int lastAnswered = 0;
    std::string Object() const { return "ABC:PTX" + std::to_string(11 + index); }
};

class ServerKillTest : public trovane::testing::BrokerTest {
  protected:
    void StartServer() {
        server.Start({TROVANE_SERVER_BINARY, "--broker", broker->Url(), "--state",
                      (broker->Directory() / "state.db").string()},
                     broker->Directory() / ("server-" + std::to_string(++starts) + ".log"));
    }
    trovane::testing::ChildProcess server;
    int starts = 0;
};

TEST_F(ServerKillTest, EveryAnsweredWriteIsOnTheRestartedServer) {
    MqttProbe probe(broker->Port());
    probe.Subscribe(ServerStatusTopic(1));
    const auto statusIs = [](const char* status) {
        return
            [status](const MqttMessage& m) { return m.topic == ServerStatusTopic(1) && m.payload == status; };
    };
    StartServer();
    probe.Take(statusIs("online"));
    std::vector<std::string> originals;
    for (int i = 0; i < kWriters; ++i)
        originals.push_back(probe.Ask({RequestKind::Execute, "reader", "#return " + Writer{i}.Object(), {}})
                                .result.AsString());

    std::atomic<int> answered{0};
    std::vector<Writer> writers(kWriters);
    std::vector<std::thread> threads;
    for (int i = 0; i < kWriters; ++i) {
        writers[i].index = i;
        threads.emplace_back([&, i] {
            NetworkConnectionOptions options;
            options.broker.port = broker->Port();
            options.user = "writer" + std::to_string(i);
            options.commandTimeout = std::chrono::seconds(5);
            options.log = [](const std::string&) {};
            NetworkConnection connection(options);
            if (!connection.WaitUntilReady(testing::kPatience)) return;
            Writer& writer = writers[i];
            for (int n = writer.lastAnswered + 1;; ++n) {
                Variant result;
                int32_t status = 0;
                try {
                    connection.ExecuteCommand(1, "#SET " + writer.Object() + "=\"" + std::to_string(n) + "\"",
                                              result, status);
                } catch (const Error&) {
                    return;  // the server is gone
                }
                if (status != 0) return;
                writer.lastAnswered = n;
                answered.fetch_add(1);
                answered.notify_all();
            }
        });
    }
    for (int seen = answered.load(); seen < kAnswersBeforeTheKill; seen = answered.load())
        answered.wait(seen);
    server.Kill();
    for (std::thread& thread : threads) thread.join();
    probe.Take(statusIs("offline"));

    StartServer();
    probe.Take(statusIs("online"));
    int total = 0;
    for (const Writer& writer : writers) {
        total += writer.lastAnswered;
        const Variant kept =
            probe.Ask({RequestKind::Execute, "reader", "#return " + writer.Object(), {}}).result;
        // The write on its way at the kill may or may not have been kept; every answered one was.
        const std::string expected =
            writer.lastAnswered == 0 ? originals[writer.index] : std::to_string(writer.lastAnswered);
        EXPECT_TRUE(kept == Variant(expected) || kept == Variant(std::to_string(writer.lastAnswered + 1)))
            << writer.Object() << " is " << kept.AsString() << " after " << writer.lastAnswered << " answers";
    }
    EXPECT_GE(total, kAnswersBeforeTheKill);
}

}  // namespace
}  // namespace trovane::net
