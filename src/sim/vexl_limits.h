#pragma once
// Bounds that keep a hostile or broken command from exhausting the server.
//
// A command cannot loop, but it can nest and it can double: each line of "@a=%a+%a" doubles a text,
// each line of "@v=(%v,%v)" a vector. Nesting is bounded where it is parsed (every construct that
// nests counts one level), and values are weighed as they are built: a scalar weighs 1, a text 1
// plus its length, an array 1 plus the weight of its elements. A value heavier than the bound, or a
// spliced line longer than the text bound, stops the command with status VEXL_VALUE_TOO_LARGE.

#include <cstddef>

#include "core/variant.h"

namespace trovane::sim {

inline constexpr int kMaxNesting = 200;
inline constexpr size_t kMaxValueWeight = size_t{1} << 17;
inline constexpr size_t kMaxTextLength = size_t{1} << 17;

// Throws VexlStatus (value too large) when the value weighs more than kMaxValueWeight.
void CheckValueWeight(const Variant& value);
// Throws VexlStatus (value too large) when a text of this length would exceed kMaxTextLength.
void CheckTextLength(size_t length);

}  // namespace trovane::sim
