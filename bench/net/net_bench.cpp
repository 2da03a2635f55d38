// Command round trips per second and their latency (p50, p99) through a broker on loopback, beside
// the same commands through the in-process connection. The broker is the tests' own mosquitto on a
// free port; the server runs in this process on its network thread, so each round trip is four
// loopback hops: workstation to broker to server, and back.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "core/variant.h"
#include "net/network_connection.h"
#include "net/network_server.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "support/mosquitto_broker.h"

namespace {

using trovane::Connection;
using trovane::Variant;
using Clock = std::chrono::steady_clock;

constexpr const char* kRead =
    "#return do(BGU_BLOCK:C, \"GET_BLOCKING_STATE\", (\"ABC\",10), Vector(), \"APPLY_TO_ALL\")";

// One broker and one server for the whole run: starting them is not what is measured.
struct Network {
    Network() {
        trovane::net::BrokerOptions options;
        options.port = broker.Port();
        server = std::make_unique<trovane::net::NetworkServer>(
            std::make_shared<trovane::sim::SimulatedServer>(trovane::sim::MakeDemoDatabase()), options);
        server->Start();
    }
    std::unique_ptr<trovane::net::NetworkConnection> Workstation() {
        trovane::net::NetworkConnectionOptions options;
        options.broker.port = broker.Port();
        options.user = "bench";
        auto connection = std::make_unique<trovane::net::NetworkConnection>(options);
        if (!connection->WaitUntilReady(std::chrono::seconds(30))) return nullptr;
        return connection;
    }
    trovane::testing::MosquittoBroker broker;
    std::unique_ptr<trovane::net::NetworkServer> server;
};

Network* SharedNetwork(benchmark::State& state) {
    if (trovane::testing::MosquittoBroker::Binary().empty()) {
        state.SkipWithError("mosquitto is not installed");
        return nullptr;
    }
    static Network network;
    return &network;
}

class CountingCallback final : public trovane::SysDataCallback {
  public:
    void OnDataChange(int32_t, int32_t, int32_t count, const Variant&, const Variant&, const Variant&,
                      const Variant&) override {
        changes += count;
    }
    int64_t changes = 0;
};

// Runs `command(i)` once per iteration, pumping after each as a host would, and reports round trips
// per second and the latency percentiles in microseconds.
template <typename Pump, typename Command>
void RoundTrips(benchmark::State& state, Connection& connection, Pump pump, Command command) {
    std::vector<double> micros;
    Variant result;
    int32_t status = 0;
    int64_t i = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        connection.ExecuteCommand(1, command(i++), result, status);
        micros.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
        pump();
        if (status != 0) return state.SkipWithError("the command failed");
    }
    std::sort(micros.begin(), micros.end());
    const auto at = [&](double q) {
        return micros[static_cast<size_t>(q * static_cast<double>(micros.size() - 1))];
    };
    state.SetItemsProcessed(state.iterations());
    if (!micros.empty()) {
        state.counters["p50_us"] = at(0.50);
        state.counters["p99_us"] = at(0.99);
    }
}

std::string AlternatingLimit(int64_t i) {
    // Two limits in turn, so that every write really changes the attribute and notifies.
    return i % 2 == 0 ? "#SET ABC:PCL10=1500" : "#SET ABC:PCL10=2500";
}

// Subscribes the written counter limit, as the operation counter panel would.
template <typename C>
void SubscribeLimit(C& connection, CountingCallback& callback) {
    int32_t handle = 0;
    Variant results;
    connection.AddItems(trovane::MakeLongArray({1}, 1),
                        trovane::MakeStringArray({"\\\\APL\\1\\P\\ABC\\10:CL"}, 1), 0, 200, handle, results);
    connection.SetCallback(&callback, handle);
}

void NetReadRoundTrip(benchmark::State& state) {
    Network* network = SharedNetwork(state);
    if (!network) return;
    auto connection = network->Workstation();
    if (!connection) return state.SkipWithError("the server did not answer");
    RoundTrips(
        state, *connection, [&] { connection->Pump(); }, [](int64_t) { return std::string(kRead); });
}
BENCHMARK(NetReadRoundTrip)->UseRealTime();

void NetWriteRoundTrip(benchmark::State& state) {
    Network* network = SharedNetwork(state);
    if (!network) return;
    auto connection = network->Workstation();
    if (!connection) return state.SkipWithError("the server did not answer");
    CountingCallback callback;
    SubscribeLimit(*connection, callback);
    RoundTrips(
        state, *connection, [&] { connection->Pump(); }, AlternatingLimit);
}
BENCHMARK(NetWriteRoundTrip)->UseRealTime();

std::shared_ptr<trovane::sim::SimulatedConnection> InProcessConnection() {
    return std::make_shared<trovane::sim::SimulatedConnection>(
        std::make_shared<trovane::sim::SimulatedServer>(trovane::sim::MakeDemoDatabase()));
}

void InProcessReadRoundTrip(benchmark::State& state) {
    auto connection = InProcessConnection();
    RoundTrips(
        state, *connection, [&] { connection->Pump(); }, [](int64_t) { return std::string(kRead); });
}
BENCHMARK(InProcessReadRoundTrip)->UseRealTime();

void InProcessWriteRoundTrip(benchmark::State& state) {
    auto connection = InProcessConnection();
    CountingCallback callback;
    SubscribeLimit(*connection, callback);
    RoundTrips(
        state, *connection, [&] { connection->Pump(); }, AlternatingLimit);
}
BENCHMARK(InProcessWriteRoundTrip)->UseRealTime();

}  // namespace
