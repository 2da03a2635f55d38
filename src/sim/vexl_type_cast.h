#pragma once
// type_cast(value, "TYPE"): converts a value to one of the server's scalar types.
//
//   "INTEGER"  numbers rounded half to even, numeric text, TRUE/FALSE as 1/0, a time as its
//              second count (vexl_time.h)
//   "REAL"     numbers, numeric text, TRUE/FALSE as 1.0/0.0, a time as its second count
//   "TEXT"     text unchanged, numbers as Vexl writes them, TRUE/FALSE, a time as
//              "yyyy-mm-dd hh:nn:ss"
//   "TIME"     a time unchanged, a number or numeric text as a second count
//   "BOOLEAN"  TRUE/FALSE, numbers as "not zero", the texts TRUE and FALSE in any case
//
// The type name is case-insensitive. An unknown type name is VEXL_WRONG_ARGUMENT; a value that
// does not convert (an array, text that is no number, a number too large) VEXL_TYPE_MISMATCH.

#include <string>

#include "core/variant.h"

namespace trovane::sim {

Variant TypeCast(const Variant& value, const std::string& typeName);

}  // namespace trovane::sim
