#pragma once
// Server time as an integer.
//
// The server stores times in attributes as whole seconds since 1970-01-01 00:00:00 in the server's
// own clock (no time zone), a signed 32-bit count; the comment attribute carries its time that way.
// type_cast converts between that integer and a time (a Date variant), and pack_time, year ... second
// build and take apart times. Only whole seconds survive the integer form.

#include <cstdint>

#include "core/variant.h"

namespace trovane::sim {

// The time of an integer second count.
Date TimeFromSeconds(int64_t seconds);
// The second count of a time, rounded to the nearest second; throws VexlStatus (wrong argument)
// when the time is outside the signed 32-bit range of seconds.
int32_t SecondsFromTime(Date time);

// Whether a Date is in the calendar range the conversions handle (years 100 to 9999).
bool IsTimeInRange(Date time);

}  // namespace trovane::sim
