#pragma once
// Parses one statement line (after the quoted-name splice) into a Statement.
//
//   #RETURN [expression]            #SET object:attribute = expression       @name = expression
//
// Expressions, loosest binding first: OR; AND; NOT; one comparison (== <> < > <= >=); + and -;
// * and /; unary minus and plus; then literals, %variables, object attributes, function calls, LIST(...)
// and parenthesised vectors. Every construct that nests counts against kMaxNesting.

#include <optional>
#include <string_view>

#include "sim/vexl_syntax.h"

namespace trovane::sim {

// The statement of a line, or nothing for a blank line. Throws VexlStatus for a syntax error
// (VEXL_SYNTAX_ERROR) or too deep a nesting (VEXL_EXPRESSION_TOO_DEEP).
std::optional<Statement> ParseStatement(std::string_view line);

}  // namespace trovane::sim
