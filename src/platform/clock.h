#pragma once
// Wall-clock time and the millisecond tick counter.

#include <cstdint>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

class Clock {
public:
    virtual ~Clock() = default;
    // The local date and time now.
    virtual Date Now() = 0;
    // Milliseconds since start-up as a 32-bit tick count that wraps like the platform's.
    virtual uint32_t TickCount() = 0;
};

class SystemClock final : public Clock {
public:
    Date Now() override;
    uint32_t TickCount() override;
};

}  // namespace trovane

#include "core/api_end.h"
