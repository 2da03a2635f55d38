#include "platform/controls/timer.h"

#include "core/conversions.h"
#include "platform/controls/control_errors.h"

namespace trovane {

void Timer::SetInterval(int32_t milliseconds) {
    if (milliseconds < 0) throw InvalidPropertyValue();
    Assign(interval_, milliseconds, ControlProperty::Interval);
}

void Timer::Tick() {
    if (IsRunning()) onTimer.Emit();
}

Variant Timer::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (EqualsIgnoringCase(member, "Interval"))
        return Property(
            kind, args, [&] { return Variant(interval_); },
            [&](const Variant& v) { SetInterval(ToInt32(v)); });
    return Control::Invoke(member, kind, args);
}

}  // namespace trovane
