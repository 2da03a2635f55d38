#pragma once
// Values written the way a Vexl command would write them.
//
// Integers in decimal (10), reals with "." and always a fraction or an exponent so that they read
// back as reals (2.5, 10.0, 1E+20), text in double quotes with inner quotes doubled ("a""b")
// and control characters spliced in with ascii ("a"+ascii(10)+"b"),
// TRUE and FALSE, times as the pack_time call that builds them, LIST(NAME=value,...) for a LIST,
// (a,b,...) for a vector of two or more elements, Vector(x) for one element and Vector() for none.
// Values that Vexl cannot write get a marker in angle brackets: <EMPTY>, <NULL>, <NOTHING>, <OBJECT>;
// an array that is neither LIST nor VECTOR is written as a vector of its elements.

#include <string>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane::sim {

std::string VexlNotation(const Variant& value);

}  // namespace trovane::sim

#include "core/api_end.h"
