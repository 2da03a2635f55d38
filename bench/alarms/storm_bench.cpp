// The alarm storm: a server object with 20,000 standing signals shown in the alarm panel, then
// 1,000 signal changes with a pump of the connection after every 100, as the host's event loop
// would deliver them. Reports the list rebuilds per delivered notification batch, and the rows that
// differ from the server's own alarm list at the end.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "alarms/alarm_rows.h"
#include "alarms/alarms.h"
#include "platform/late_bound.h"
#include "support/alarm_lists.h"
#include "support/simulated_host.h"

namespace {

using trovane::Alarms;
using trovane::ListViewChange;
using trovane::Variant;
using trovane::testing::SimulatedHost;

constexpr int32_t kSignals = 20000;
constexpr int32_t kChanges = 1000;
constexpr int32_t kChangesPerPump = 100;
constexpr int32_t kNormalState = 3;  // position of "NORMAL" among the nine states

// The attributes that put a new object (no alarm, acknowledged, status 0) into each state.
const std::map<std::string_view, std::vector<std::pair<const char*, int32_t>>> kStateAttributes = {
    {"PERSISTING", {{"AL", 1}, {"AR", 0}}},
    {"FLEETING", {{"AR", 0}}},
    {"ACTIVE_ACKNOWLEDGED", {{"AL", 1}}},
    {"NORMAL", {}},
    {"OS_10", {{"OS", 10}}},
    {"OS_1_2_4_9", {{"OS", 1}}},
    {"BLOCKED", {{"AB", 1}}},
    {"MANUALLY_ENTERED", {{"ME", 1}}},
    {"SUBSTITUTED", {{"SB", 1}}},
};

// Object "STORM" with binary signals 1..kSignals in the nine states in turn.
void AddStormSignals(trovane::sim::ProcessDatabase& database) {
    for (int32_t i = 0; i < kSignals; ++i) {
        trovane::sim::ProcessObject& object = database.AddObject("STORM", i + 1, 3);
        object.attributes["TX"] = "Signal " + std::to_string(i + 1);
        for (const auto& [attribute, value] : kStateAttributes.at(trovane::bench::StateOfSignal(i).keyword))
            object.attributes[attribute] = value;
    }
}

// The k-th change raises the alarm of a distinct signal that is normal, so every change is real.
trovane::sim::ItemKey ChangedAlarm(int32_t k) {
    const int32_t i = 2 * k * static_cast<int32_t>(trovane::kAlarmStates.size()) + kNormalState;
    return {"STORM", i + 1, "AL"};
}

// Rows of the panel that do not show the signal the server lists at their place, plus rows missing
// or left over.
int64_t RowsDifferingFromServer(SimulatedHost& host, Alarms& panel) {
    const Variant list =
        host.Common().GetListItem(trovane::CallMethod(host.AsVariant(), "GetAlarms"), "COMBO_LIST");
    int32_t row = 0;
    int64_t differing = 0;
    for (const Variant& element : list.AsArray().Elements()) {
        const std::optional<trovane::AlarmRow> expected = trovane::ClassifyAlarmElement(element);
        if (!expected) continue;
        if (++row > panel.ListView1.ItemCount()) {
            ++differing;
            continue;
        }
        const trovane::ListItem& shown = panel.ListView1.Item(row);
        const bool same = shown.Key() == expected->key && shown.Tag() == expected->tag &&
                          shown.Ghosted() == expected->ghosted &&
                          shown.SmallIcon() == expected->state->iconPosition &&
                          shown.SubItem(1) == expected->signalText &&
                          panel.RowIdentities()[static_cast<size_t>(row - 1)] == expected->identity;
        if (!same) ++differing;
    }
    return differing + std::max(0, panel.ListView1.ItemCount() - row);
}

void AlarmStorm(benchmark::State& state) {
    auto host = std::make_shared<SimulatedHost>("STORM", 1);
    AddStormSignals(host->Database());
    auto panel = std::make_shared<Alarms>();
    panel->SetParent(host->AsVariant());
    panel->Activate(1, host->Server());
    host->Connection().Pump();
    if (panel->ListView1.ItemCount() != kSignals) state.SkipWithError("the standing signals are not listed");

    int64_t rebuilds = 0;
    int64_t batches = 0;
    const trovane::ScopedConnection counting = panel->ListView1.onListChanged.Connect(
        [&rebuilds](ListViewChange change, int32_t) { rebuilds += change == ListViewChange::RowsCleared; });
    for (auto _ : state) {
        for (int32_t k = 0; k < kChanges; ++k) {
            host->Database().Write(ChangedAlarm(k), Variant(int32_t{1}));
            if ((k + 1) % kChangesPerPump == 0) batches += host->Connection().Pump() > 0;
        }
    }
    if (batches == 0) return state.SkipWithError("no notification reached the panel");
    state.counters["batches"] = static_cast<double>(batches);
    state.counters["rebuilds_per_batch"] = static_cast<double>(rebuilds) / static_cast<double>(batches);
    state.counters["rows_differing"] = static_cast<double>(RowsDifferingFromServer(*host, *panel));
}
BENCHMARK(AlarmStorm)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
