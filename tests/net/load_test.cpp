// Many workstations on one server at once, bounded in count: 20 workstations send 50 writing
// commands each, all at the same time, so 1,000 attribute changes fan out to 20 subscribing
// workstations and two bare subscribers. Each workstation counts "w:1" to "w:40" in the text of one
// of the ten ABC signals (two workstations share each text) and writes the object's comment, which
// all of them share, ten times.
//
// Checked: every bare subscriber receives every change exactly once, each writer's in its order,
// and the comment's in one order for all; every workstation is delivered each value at most once
// and never an older one of a writer after a newer one (its pump keeps only the latest of several
// arrivals); at the end every subscriber holds the server's state. Nothing is timed: the waits are
// only generous limits.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <numeric>
#include <set>
#include <thread>

#include "mqtt_probe.h"
#include "net/network_connection.h"
#include "net/network_server.h"
#include "net/topics.h"
#include "net/variant_wire.h"
#include "network_host.h"
#include "sim/scenario.h"
#include "support/mosquitto_broker.h"
#include "support/recording_data_callback.h"

namespace trovane::net {
namespace {

using testing::MqttProbe;
using testing::WorkstationOptions;
using trovane::testing::RecordingDataCallback;

constexpr int kWorkstations = 20;
constexpr int kCommands = 50;
constexpr int kSharedEvery = 5;  // every fifth command writes the shared comment
constexpr int kOwnWrites = kCommands - kCommands / kSharedEvery;
constexpr auto kPatience = std::chrono::seconds(60);

constexpr int kTexts = 10;
// Counter w + 1 is the text of ABC 10 + w % kTexts; 0 is the comment.
sim::ItemKey CounterKey(int w) {
    return {"ABC", 10 + w % kTexts, "TX"};
}
const sim::ItemKey kShared{"ABC", std::nullopt, "GC"};

std::string ItemPath(const sim::ItemKey& key) {
    std::string path = "\\\\APL\\1\\P\\" + key.name;
    if (key.index) path += "\\" + std::to_string(*key.index);
    return path + ":" + key.attribute;
}

std::string WriteCommand(int w, int k, int& count) {
    if (k % kSharedEvery == kSharedEvery - 1)
        return "#SET ABC:PGC=\"" + std::to_string(w) + "/" + std::to_string(k) + "\"";
    return "#SET ABC:PTX" + std::to_string(*CounterKey(w).index) + "=\"" + std::to_string(w) + ":" +
           std::to_string(++count) + "\"";
}

// A counter's writer and count ("w:n"); nothing for anything else, such as the scenario's text.
struct Written {
    int writer = -1;
    int count = -1;
};
Written Parse(const Variant& value) {
    if (!value.IsString()) return {};
    const std::string& text = value.AsString();
    const size_t colon = text.find(':');
    if (colon == std::string::npos || colon == 0 || colon + 1 == text.size()) return {};
    for (size_t i = 0; i < text.size(); ++i)
        if (i != colon && (text[i] < '0' || text[i] > '9')) return {};
    return {std::stoi(text.substr(0, colon)), std::stoi(text.substr(colon + 1))};
}

struct Workstation {
    explicit Workstation(int port, int w)
        : connection(
              std::make_unique<NetworkConnection>(WorkstationOptions(port, "op-" + std::to_string(w)))) {}

    // Subscribes every counter and the shared comment; client handle w + 1 for counter w, 0 for the comment.
    void Subscribe() {
        std::vector<int32_t> handles{0};
        std::vector<std::string> paths{ItemPath(kShared)};
        for (int t = 0; t < kTexts; ++t) {
            handles.push_back(t + 1);
            paths.push_back(ItemPath(CounterKey(t)));
        }
        Variant results;
        connection->AddItems(MakeLongArray(handles), MakeStringArray(paths), 0, 0, handle, results);
        connection->SetCallback(&callback, handle);
        for (size_t i = 0; i < paths.size(); ++i)
            EXPECT_EQ(results.AsArray().At(static_cast<int64_t>(i)), Variant(0)) << paths[i];
    }
    // Pumps until `done` holds, waiting for arrivals in between; false after the patience.
    template <typename Done>
    bool PumpUntil(Done done) {
        const auto deadline = std::chrono::steady_clock::now() + kPatience;
        for (;;) {
            connection->Pump();
            if (done()) return true;
            if (std::chrono::steady_clock::now() > deadline) return false;
            connection->WaitForNotifications(std::chrono::milliseconds(200));
        }
    }
    Variant Latest(int32_t clientHandle) const {
        const auto values = callback.ValuesOf(clientHandle);
        return values.empty() ? Variant() : values.back();
    }

    std::unique_ptr<NetworkConnection> connection;
    RecordingDataCallback callback;
    int32_t handle = 0;
    std::vector<std::string> failures;  // of the commands, reported on the test's thread
};

class LoadTest : public trovane::testing::BrokerTest {
  protected:
    // The broker drops QoS 1 messages beyond 1,000 queued for one client by default: a workstation
    // whose network thread is starved on a loaded machine would lose notifications. A broker for a
    // control room keeps them all, and so does this one.
    std::string BrokerConfig() override { return "allow_anonymous true\nmax_queued_messages 0\n"; }
};

TEST_F(LoadTest, EveryChangeReachesEverySubscriberOnceAndInOrderAndAllEndAtTheServersState) {
    auto simulated = std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase());
    BrokerOptions serverOptions;
    serverOptions.port = broker->Port();
    NetworkServer server(simulated, serverOptions, [](const std::string& line) { ADD_FAILURE() << line; });
    server.Start();

    std::vector<std::unique_ptr<Workstation>> stations;
    for (int w = 0; w < kWorkstations; ++w) {
        stations.push_back(std::make_unique<Workstation>(broker->Port(), w));
        ASSERT_TRUE(stations.back()->connection->WaitUntilReady(kPatience));
        stations.back()->Subscribe();
    }
    // Everyone has the scenario's values before the load starts.
    for (auto& station : stations)
        ASSERT_TRUE(station->PumpUntil([&] {
            for (int32_t h = 0; h <= kTexts; ++h)
                if (station->callback.ValuesOf(h).empty()) return false;
            return true;
        }));
    std::vector<std::unique_ptr<MqttProbe>> probes;
    for (const char* id : {"load_probe_a", "load_probe_b"}) {
        probes.push_back(std::make_unique<MqttProbe>(broker->Port(), id));
        probes.back()->Subscribe(ApplicationTopic(1) + "item/#");
        probes.back()->Forget();  // the retained values
    }

    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    for (int w = 0; w < kWorkstations; ++w)
        threads.emplace_back([&ready, &station = *stations[w], w] {
            ++ready;
            while (ready.load() < kWorkstations) std::this_thread::yield();
            int own = 0;
            for (int k = 0; k < kCommands; ++k) {
                Variant result;
                int32_t status = -1;
                const std::string command = WriteCommand(w, k, own);
                try {
                    station.connection->ExecuteCommand(1, command, result, status);
                    if (status != 0)
                        station.failures.push_back(command + ": status " + std::to_string(status));
                } catch (const std::exception& error) {
                    station.failures.push_back(command + ": " + error.what());
                }
                station.connection->Pump();  // the host's event loop between the operator's commands
            }
        });
    for (auto& thread : threads) thread.join();
    for (const auto& station : stations) EXPECT_EQ(station->failures, std::vector<std::string>{});

    // Every command is answered, so every change is published; the server is idle now.
    std::map<int32_t, Variant> expected{{0, simulated->Database().Read(kShared)}};
    for (int t = 0; t < kTexts; ++t) {
        expected[t + 1] = simulated->Database().Read(CounterKey(t));
        EXPECT_EQ(Parse(expected[t + 1]).count, kOwnWrites) << "text " << t;
    }

    // The bare subscribers: each change once, in order, and the comment's changes in one order for all.
    const size_t changes = static_cast<size_t>(kWorkstations * kCommands);
    std::vector<std::vector<std::string>> commentOrders;
    for (auto& probe : probes) {
        EXPECT_TRUE(probe->WaitUntil([&](const auto& messages) { return messages.size() >= changes; }))
            << probe->Messages().size() << " of " << changes << " changes arrived";
        probe->Sync();  // anything beyond them would be a duplicate
        std::map<std::string, std::vector<Variant>> byTopic;
        for (const MqttMessage& message : probe->Messages()) {
            EXPECT_FALSE(message.retained);
            byTopic[message.topic].push_back(DecodeVariant(message.payload));
        }
        for (int w = 0; w < kWorkstations; ++w) {
            std::vector<int> counts;
            for (const Variant& value : byTopic[ItemTopic(1, CounterKey(w))])
                if (Parse(value).writer == w) counts.push_back(Parse(value).count);
            std::vector<int> all(kOwnWrites);
            std::iota(all.begin(), all.end(), 1);
            EXPECT_EQ(counts, all) << "workstation " << w;
        }
        for (int t = 0; t < kTexts; ++t)
            EXPECT_EQ(byTopic[ItemTopic(1, CounterKey(t))].size(),
                      static_cast<size_t>(kOwnWrites * (kWorkstations / kTexts)))
                << "text " << t;
        std::vector<std::string> comments;
        for (const Variant& value : byTopic[ItemTopic(1, kShared)]) comments.push_back(value.AsString());
        EXPECT_EQ(comments.size(), static_cast<size_t>(kWorkstations * (kCommands / kSharedEvery)));
        EXPECT_EQ(std::set<std::string>(comments.begin(), comments.end()).size(), comments.size());
        if (!comments.empty()) {
            EXPECT_EQ(Variant(comments.back()), expected[0]);
        }
        commentOrders.push_back(std::move(comments));
    }
    EXPECT_EQ(commentOrders.front(), commentOrders.back());

    // The workstations: the server's state in the end, no value twice, no older after a newer.
    for (int s = 0; s < kWorkstations; ++s) {
        Workstation& station = *stations[s];
        EXPECT_TRUE(station.PumpUntil([&] {
            for (const auto& [h, value] : expected)
                if (station.Latest(h) != value) return false;
            return true;
        })) << "workstation "
            << s << " did not reach the server's state";
        for (int32_t h = 1; h <= kTexts; ++h) {
            std::map<int, int> last;  // by writer
            for (const Variant& value : station.callback.ValuesOf(h)) {
                const Written written = Parse(value);
                if (written.writer < 0) continue;  // the scenario's text
                ASSERT_LT(last[written.writer], written.count)
                    << "workstation " << s << ", text " << h - 1 << ": " << value.AsString();
                last[written.writer] = written.count;
            }
        }
        const auto comments = station.callback.ValuesOf(0);
        std::vector<std::string> delivered;
        for (size_t i = 1; i < comments.size(); ++i) delivered.push_back(comments[i].AsString());
        // A subsequence of the server's order: nothing repeated, nothing out of order.
        const auto& order = commentOrders.front();
        auto next = order.begin();
        for (const std::string& comment : delivered) {
            next = std::find(next, order.end(), comment);
            ASSERT_NE(next, order.end()) << "workstation " << s << " got \"" << comment << "\" out of order";
            ++next;
        }
    }
}

}  // namespace
}  // namespace trovane::net
