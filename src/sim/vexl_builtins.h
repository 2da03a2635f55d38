#pragma once
// The functions the interpreter knows itself.
//
//   Vector(a, ...)            a VECTOR of the arguments (Vector() is the empty vector)
//   type_cast(value, "TYPE")  see vexl_type_cast.h
//   pack_time(y, mo, d [, h [, mi [, s]]])   a time from its parts
//   year(t) month(t) day(t) hour(t) minute(t) second(t)   parts of a time (or of a second count);
//                             without an argument, of the server's time now
//   status_code_name(code)    the name of a status code
//   ascii(n)                  the one-character text of code n (0 to 255)
//   length(x)                 characters of a text, elements of a vector, attributes of a LIST
//
// Wrong argument counts and values out of range are VEXL_WRONG_ARGUMENT, arguments of the wrong
// kind VEXL_TYPE_MISMATCH. `do` is not here: its first argument is a procedure, not a value.

#include <optional>
#include <span>
#include <string>

#include "core/variant.h"
#include "sim/vexl_environment.h"

namespace trovane::sim {

// Runs the built-in function of that upper-case name; nothing when there is none.
std::optional<Variant> CallBuiltin(const std::string& upperName, std::span<const Variant> args,
                                   VexlEnvironment& environment);

}  // namespace trovane::sim
