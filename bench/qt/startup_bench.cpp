// Start-up to the first frame: the control dialog on the demo server (host made and started,
// window shown, the server's first notifications delivered, painted), against a minimal Qt window
// with a label shown and painted the same way, in the same run.

#include <benchmark/benchmark.h>

#include <memory>

#include <QLabel>
#include <QWidget>

#include "dialog_host.h"
#include "dialog_window.h"
#include "qt/qt_platform.h"
#include "support/qt_application.h"
#include "support/qt_frames.h"

namespace {

using trovane::bench::ProcessAndPaint;

// Closing a window is not part of the start-up: it happens with the clock stopped.
template <typename Window>
void CloseUntimed(benchmark::State& state, std::unique_ptr<Window>& window) {
    state.PauseTiming();
    trovane::bench::ReleaseFocus();
    window.reset();
    QCoreApplication::processEvents();
    state.ResumeTiming();
}

void DialogFirstFrame(benchmark::State& state) {
    trovane::testing::TestApplication();
    trovane::qt::QtPlatform platform = trovane::qt::MakeQtPlatform();
    for (auto _ : state) {
        auto host = std::make_unique<trovane::dialog::DialogHost>(trovane::dialog::DialogOptions(),
                                                                  platform.services);
        auto window = std::make_unique<trovane::dialog::DialogWindow>(*host, platform);
        window->Start();
        window->show();
        window->Settle();
        window->repaint();
        CloseUntimed(state, window);
        CloseUntimed(state, host);
    }
}
BENCHMARK(DialogFirstFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

void MinimalWindowFirstFrame(benchmark::State& state) {
    trovane::testing::TestApplication();
    for (auto _ : state) {
        auto window = std::make_unique<QWidget>();
        new QLabel("Circuit breaker Q0", window.get());
        window->show();
        ProcessAndPaint(*window);
        CloseUntimed(state, window);
    }
}
BENCHMARK(MinimalWindowFirstFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
