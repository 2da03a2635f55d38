#pragma once
// The quoted-name splice: 'NAME' in a line is replaced by the text of variable NAME before the line
// is parsed, wherever it stands, inside a string literal included. That is how a command builds
// text from values computed by its earlier lines ("#SET ABC:PGC=\"user#'TIME_STRING'#text\"").
// Two apostrophes in a row stand for one apostrophe.
//
// A variable's text is the string itself for text, nothing for Empty, and its Vexl notation for
// anything else (12, 2.5, TRUE, (1,2)). An apostrophe without its partner, a quoted part that is no
// name, or a name without a variable stops the command.

#include <map>
#include <string>
#include <string_view>

#include "core/variant.h"

namespace trovane::sim {

using VexlVariables = std::map<std::string, Variant>;  // by upper-case name

std::string SpliceQuotedNames(std::string_view line, const VexlVariables& variables);

}  // namespace trovane::sim
