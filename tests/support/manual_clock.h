#pragma once
// A clock that stands still until the test moves it: Now and the tick count are whatever was set.

#include <cstdint>

#include "platform/clock.h"

namespace trovane::testing {

class ManualClock final : public Clock {
  public:
    Date Now() override { return now; }
    uint32_t TickCount() override { return ticks; }
    void Advance(uint32_t milliseconds) { ticks += milliseconds; }

    Date now{};
    uint32_t ticks = 0;
};

}  // namespace trovane::testing
