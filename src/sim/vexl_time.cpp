#include "sim/vexl_time.h"

#include <cmath>
#include <limits>

#include "sim/vexl_environment.h"

namespace trovane::sim {

namespace {
// Day serial of 1970-01-01 (days since 1899-12-30).
constexpr double kEpochSerial = 25569.0;
constexpr double kSecondsPerDay = 86400.0;
// Serials of 0100-01-01 and 9999-12-31 23:59:59, the calendar's limits.
constexpr double kFirstSerial = -657434.0;
constexpr double kLastSerial = 2958465.99999;
}  // namespace

bool IsTimeInRange(Date time) {
    return std::isfinite(time.serial) && time.serial >= kFirstSerial && time.serial <= kLastSerial;
}

Date TimeFromSeconds(int64_t seconds) {
    // Whole days and the time of day are split so that times before 1899-12-30 keep the calendar's
    // convention of a fraction counted away from zero.
    const int64_t days = seconds >= 0 ? seconds / 86400 : -((-seconds + 86399) / 86400);
    const int64_t secondOfDay = seconds - days * 86400;
    const double whole = kEpochSerial + static_cast<double>(days);
    const double fraction = static_cast<double>(secondOfDay) / kSecondsPerDay;
    return Date{whole < 0 ? whole - fraction : whole + fraction};
}

int32_t SecondsFromTime(Date time) {
    if (!IsTimeInRange(time)) throw VexlStatus(status::kWrongArgument, "time out of range");
    const double whole = std::trunc(time.serial);
    const double fraction = std::fabs(time.serial - whole);
    const double seconds = std::round((whole - kEpochSerial) * kSecondsPerDay + fraction * kSecondsPerDay);
    if (seconds < std::numeric_limits<int32_t>::min() || seconds > std::numeric_limits<int32_t>::max())
        throw VexlStatus(status::kWrongArgument, "time out of the integer range");
    return static_cast<int32_t>(seconds);
}

}  // namespace trovane::sim
