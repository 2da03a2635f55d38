#pragma once
// Timer: raises Timer every Interval milliseconds while enabled.
//
// The model does not keep time: the host's event loop (or a test) calls Tick when an interval has
// passed, and Tick raises the event only while the timer is enabled with a non-zero interval. The
// timer is invisible and has no font.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class Timer : public Control {
  public:
    explicit Timer(std::string name) : Control(std::move(name), "Timer") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;
    bool HasFont() const override { return false; }

    int32_t Interval() const { return interval_; }
    void SetInterval(int32_t milliseconds);  // negative raises error 380
    bool IsRunning() const { return Enabled() && interval_ > 0; }
    void Tick();

    Signal<> onTimer;

  private:
    int32_t interval_ = 0;
};

}  // namespace trovane

#include "core/api_end.h"
