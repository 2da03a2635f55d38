// Commands per second through the in-process connection: a blocking read and an operation counter
// write against the demo scenario, with one subscriber on the written attribute pumped as a host would.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "core/variant.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"

namespace {

using trovane::Variant;
using trovane::sim::SimulatedConnection;
using trovane::sim::SimulatedServer;

std::shared_ptr<SimulatedConnection> DemoConnection() {
    auto server = std::make_shared<SimulatedServer>(trovane::sim::MakeDemoDatabase());
    return std::make_shared<SimulatedConnection>(server);
}

class CountingCallback final : public trovane::SysDataCallback {
  public:
    void OnDataChange(int32_t, int32_t, int32_t count, const Variant&, const Variant&, const Variant&,
                      const Variant&) override {
        changes += count;
    }
    int64_t changes = 0;
};

void RunCommand(benchmark::State& state, SimulatedConnection& connection, const std::string& command) {
    Variant result;
    int32_t status = 0;
    for (auto _ : state) {
        connection.ExecuteCommand(1, command, result, status);
        connection.Pump();
        benchmark::DoNotOptimize(result);
    }
    if (status != 0) state.SkipWithError("the command failed");
    state.SetItemsProcessed(state.iterations());
}

void BlockingStateRead(benchmark::State& state) {
    auto connection = DemoConnection();
    RunCommand(state, *connection,
               "#return do(BGU_BLOCK:C, \"GET_BLOCKING_STATE\", (\"ABC\",10), Vector(), \"APPLY_TO_ALL\")");
}
BENCHMARK(BlockingStateRead);

void CounterLimitWrite(benchmark::State& state) {
    auto connection = DemoConnection();
    CountingCallback callback;
    int32_t handle = 0;
    Variant results;
    connection->AddItems(trovane::MakeLongArray({1}, 1),
                         trovane::MakeStringArray({"\\\\APL\\1\\P\\ABC\\10:CL"}, 1), 0, 200, handle, results);
    connection->SetCallback(&callback, handle);
    // Two alternating limits, so that every write really changes the attribute and notifies.
    Variant result;
    int32_t status = 0;
    int64_t written = 0;
    for (auto _ : state) {
        const std::string command = written++ % 2 == 0 ? "#SET ABC:PCL10=1500" : "#SET ABC:PCL10=2500";
        connection->ExecuteCommand(1, command, result, status);
        connection->Pump();
    }
    if (status != 0) state.SkipWithError("the command failed");
    state.SetItemsProcessed(state.iterations());
    state.counters["notifications"] = static_cast<double>(callback.changes);
}
BENCHMARK(CounterLimitWrite);

}  // namespace
