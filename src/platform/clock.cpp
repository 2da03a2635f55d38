#include "platform/clock.h"

#include <chrono>
#include <ctime>

#include "core/conversions.h"

namespace trovane {

Date SystemClock::Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                    local.tm_sec > 59 ? 59 : local.tm_sec);
}

uint32_t SystemClock::TickCount() {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(since).count());
}

}  // namespace trovane
