// Commands per second through the command channel (numbered, traced, run by the in-process server),
// with tracing off and with the trace going to a file.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "common/common_functions.h"
#include "platform/trace.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"

namespace {

using trovane::Variant;

constexpr const char* kTraceFile = "/tmp/trovane-bench-trace.log";

// A read of one attribute: the command is cheap, so what the channel adds around it shows.
void RunCommands(benchmark::State& state, std::shared_ptr<trovane::TraceSink> sink) {
    const auto previous = trovane::SetTraceSink(std::move(sink));
    auto connection = std::make_shared<trovane::sim::SimulatedConnection>(
        std::make_shared<trovane::sim::SimulatedServer>(trovane::sim::MakeDemoDatabase()));
    const Variant communication{trovane::ObjectRef(connection)};
    trovane::CommonFunctions functions;
    Variant result;
    for (auto _ : state) {
        result = functions.RunVexlCmdGlobal(communication, "#return ABC:POV10", 1);
        benchmark::DoNotOptimize(result);
    }
    if (result.IsEmpty()) state.SkipWithError("the command failed");
    state.SetItemsProcessed(state.iterations());
    trovane::SetTraceSink(previous);
}

void CommandsUntraced(benchmark::State& state) {
    RunCommands(state, nullptr);
}
BENCHMARK(CommandsUntraced)->UseRealTime();

void CommandsTracedToFile(benchmark::State& state) {
    std::filesystem::remove(kTraceFile);
    auto sink = trovane::MakeFileTraceSink(kTraceFile);
    if (!sink) return state.SkipWithError("the trace file cannot be opened");
    RunCommands(state, std::move(sink));
    std::filesystem::remove(kTraceFile);
}
BENCHMARK(CommandsTracedToFile)->UseRealTime();

}  // namespace
