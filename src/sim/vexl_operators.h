#pragma once
// The operators of Vexl expressions on values.
//
// + adds numbers and joins texts; - * / are arithmetic. Integers stay integers while the result
// fits 32 bits and become reals beyond; / always gives a real. Comparisons take two numbers, two
// texts (byte order), two times, or, for == and <>, two Booleans; AND, OR and NOT take Booleans.
// Any other combination is VEXL_TYPE_MISMATCH, division by zero VEXL_WRONG_ARGUMENT.

#include <string>

#include "core/variant.h"

namespace trovane::sim {

// `op` is one of + - * / == <> < > <= >= AND OR.
Variant ApplyBinary(const std::string& op, const Variant& left, const Variant& right);
Variant Negate(const Variant& operand);
Variant LogicalNot(const Variant& operand);

}  // namespace trovane::sim
