#pragma once
// An alarm panel fed with a list of any length, and the loop that times its refreshes.
//
// The panel is sited on the tests' fake container, whose "GetAlarms" answers the list. A real
// container hands the panel a list of its own on every call, so the feed does too, but makes that
// copy between the timed refreshes: what is measured is the panel (and its view), not the
// container's copying.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "alarms/alarms.h"
#include "support/alarm_lists.h"
#include "support/fake_container.h"

namespace trovane::bench {

class FedAlarmPanel {
  public:
    explicit FedAlarmPanel(int32_t rows, PlatformServices platform = PlatformServices::Defaults())
        : panel(std::make_shared<Alarms>(std::move(platform))), rows_(rows), list_(AlarmList(rows)) {
        container_->Method("GetAlarms", [this](std::span<Variant>) { return std::move(next_); });
        panel->SetParent(container_->AsVariant());
        panel->Init();
    }

    int32_t Rows() const { return rows_; }
    // Readies the copy that the next "GetAlarms" hands out, and forgets the calls recorded so far.
    void Prepare() {
        next_ = list_;
        container_->calls.clear();
    }

    const std::shared_ptr<Alarms> panel;

  private:
    std::shared_ptr<testing::FakeContainer> container_ = std::make_shared<testing::FakeContainer>();
    int32_t rows_;
    Variant list_;
    Variant next_;
};

// The time one run took per row, as a counter: lengths compare directly.
inline benchmark::Counter TimePerRow(int32_t rows) {
    return benchmark::Counter(rows,
                              benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Times `refresh` (the panel's refresh and whatever must follow it to count as done) with a fresh
// list per run. Reports the time per row, and skips with an error when the panel did not end up showing every
// row.
template <typename Refresh>
void TimeRefreshes(benchmark::State& state, FedAlarmPanel& fed, Refresh refresh) {
    for (auto _ : state) {
        state.PauseTiming();
        fed.Prepare();
        state.ResumeTiming();
        refresh();
    }
    if (fed.panel->ListView1.ItemCount() != fed.Rows())
        state.SkipWithError("the panel does not show every row");
    state.counters["per_row"] = TimePerRow(fed.Rows());
}

}  // namespace trovane::bench
