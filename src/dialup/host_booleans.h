#pragma once
// Booleans as a host hands them to the dial-up and update-data panels.
//
// The host passes its flags and answers its rights queries as 16-bit Booleans, and the panels
// combine them bitwise. A Boolean arrives as true (-1) or false (0); an integer keeps its bits, so
// a host that says 1 for true gets what the classic runtime gives: 1 And -1 is true, 1 And 2 false.

#include "core/bool16.h"
#include "core/conversions.h"
#include "core/variant.h"

namespace trovane {

inline Bool16 HostBoolean(const Variant& value) {
    if (value.IsNumber()) return Bool16::FromBits(ToInt16(value));
    return Bool16(ToBool(value));
}

}  // namespace trovane
