#pragma once
// Reading server answers that may be anything: the tagout panel and its edit dialog take what a
// class or a tagout answers as it comes, and a missing or odd value gives a stand-in, never an error.

#include <cstdint>
#include <string>

#include "core/variant.h"

namespace trovane {

// The value as text, or "" when it has none (an array, an object, Null).
std::string TextOf(const Variant& value);
// Element `index` of an array, or Empty when `value` is no array or has no such element.
Variant ElementOf(const Variant& value, int32_t index);
// The upper bound of an array, or 0 when `value` is no array.
int32_t UpperBoundOf(const Variant& value);
// The value as a Boolean, or `fallback` when it has none.
bool TruthOf(const Variant& value, bool fallback);
// The value as a 32-bit whole number, or `fallback` when it is no number in range.
int32_t WholeOf(const Variant& value, int32_t fallback);

}  // namespace trovane
