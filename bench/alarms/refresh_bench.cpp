// The alarm panel's refresh without a window: one list of 1,000, 10,000 and 30,000 signals rebuilt
// from the container's answer. The time per row of the three lengths shows whether the refresh
// stays linear.

#include <benchmark/benchmark.h>

#include "support/alarm_feed.h"

namespace {

void HeadlessRefresh(benchmark::State& state) {
    trovane::bench::FedAlarmPanel fed(static_cast<int32_t>(state.range(0)));
    trovane::bench::TimeRefreshes(state, fed, [&fed] { fed.panel->RefreshAlarms(); });
}
BENCHMARK(HeadlessRefresh)->Arg(1000)->Arg(10000)->Arg(30000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
