#pragma once
// Server values on the wire, and the interpreter's own values.
//
// The server hands its answers to the panels as variants, and the interpreter computes with the same
// variants, so a value never changes form between evaluation and delivery. Scalars are the plain
// variant kinds: integers are Long, reals Double, text String, TRUE and FALSE Boolean, times Date.
//
// A LIST (named attributes) is a "Variant()" array with lower bound 0. Element 0 is a header, the
// currency value 0, exactly as CommonFunctions::EmptyList builds one; after it come name/value
// pairs, the name at the odd position and its value right after it. Names are upper case, as the
// server writes them, so LIST(status=0) carries the name "STATUS". An empty LIST is the header alone.
//
// A VECTOR (an ordered sequence) is an array with lower bound 1. Its element type follows what it
// holds: "String()" when every element is text, "Long()" when every element is an integer, and
// "Variant()" otherwise (mixed kinds, reals, Booleans, nested vectors or lists). The empty vector
// holds nothing that could type it; it is a "Variant()" array with lower bound 1 and upper bound 0,
// so a reader that checks "upper bound below 1" sees it as empty whatever it expected.
//
// Both shapes nest: a LIST value may be a VECTOR, a VECTOR element a LIST.

#include <string>
#include <utility>
#include <vector>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane::sim {

// Builds a LIST; names are upper-cased, and a repeated name keeps its first position with the last value.
Variant MakeVexlList(std::vector<std::pair<std::string, Variant>> attributes);
// Builds a VECTOR typed by the rule above.
Variant MakeVexlVector(std::vector<Variant> elements);

bool IsVexlList(const Variant& value);
bool IsVexlVector(const Variant& value);

// The attribute of a LIST by name (any case), or nullptr when the value is no LIST or lacks it.
const Variant* FindVexlListItem(const Variant& list, const std::string& name);

// Whether a variant is a Vexl integer (Integer or Long) or text; the vector typing rule asks this.
bool IsVexlInteger(const Variant& value);

// Upper-cases ASCII letters; Vexl names are case-insensitive and kept upper case.
std::string UpperName(std::string name);

}  // namespace trovane::sim

#include "core/api_end.h"
