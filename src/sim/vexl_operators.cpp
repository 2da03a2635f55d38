#include "sim/vexl_operators.h"

#include <cmath>
#include <limits>

#include "core/conversions.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_limits.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

[[noreturn]] void Mismatch(const std::string& op) {
    throw VexlStatus(status::kTypeMismatch, "operands do not fit operator " + op);
}

// Numbers are the numeric kinds only: Booleans and numeric-looking text are not numbers here.
bool IsArithmetic(const Variant& value) {
    return value.IsNumber();
}

Variant IntegerResult(int64_t value) {
    if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())
        return Variant(static_cast<double>(value));
    return Variant(static_cast<int32_t>(value));
}

Variant RealResult(double value) {
    if (!std::isfinite(value)) throw VexlStatus(status::kWrongArgument, "arithmetic overflow");
    return Variant(value);
}

Variant Arithmetic(const std::string& op, const Variant& left, const Variant& right) {
    if (!IsArithmetic(left) || !IsArithmetic(right)) Mismatch(op);
    if (op == "/") {
        const double divisor = ToDouble(right);
        if (divisor == 0) throw VexlStatus(status::kWrongArgument, "division by zero");
        return RealResult(ToDouble(left) / divisor);
    }
    if (IsVexlInteger(left) && IsVexlInteger(right)) {
        const int64_t a = ToInt32(left);
        const int64_t b = ToInt32(right);
        return IntegerResult(op == "+" ? a + b : op == "-" ? a - b : a * b);
    }
    const double a = ToDouble(left);
    const double b = ToDouble(right);
    return RealResult(op == "+" ? a + b : op == "-" ? a - b : a * b);
}

Variant Join(const Variant& left, const Variant& right) {
    CheckTextLength(left.AsString().size() + right.AsString().size());
    return Variant(left.AsString() + right.AsString());
}

// -1, 0 or 1 for ordered operands; throws for operands that have no order.
int Order(const std::string& op, const Variant& left, const Variant& right) {
    auto sign = [](auto a, auto b) { return a < b ? -1 : (b < a ? 1 : 0); };
    if (IsArithmetic(left) && IsArithmetic(right)) return sign(ToDouble(left), ToDouble(right));
    if (left.IsString() && right.IsString()) return sign(left.AsString(), right.AsString());
    if (left.Kind() == VarKind::Date && right.Kind() == VarKind::Date)
        return sign(left.AsDate().serial, right.AsDate().serial);
    if ((op == "==" || op == "<>") && left.Kind() == VarKind::Boolean && right.Kind() == VarKind::Boolean)
        return left.AsBoolean() == right.AsBoolean() ? 0 : 1;
    Mismatch(op);
}

Variant Compare(const std::string& op, const Variant& left, const Variant& right) {
    const int order = Order(op, left, right);
    if (op == "==") return Variant(order == 0);
    if (op == "<>") return Variant(order != 0);
    if (op == "<") return Variant(order < 0);
    if (op == ">") return Variant(order > 0);
    if (op == "<=") return Variant(order <= 0);
    return Variant(order >= 0);
}

bool BooleanOperand(const std::string& op, const Variant& value) {
    if (value.Kind() != VarKind::Boolean) Mismatch(op);
    return value.AsBoolean();
}

}  // namespace

Variant ApplyBinary(const std::string& op, const Variant& left, const Variant& right) {
    if (op == "+" && left.IsString() && right.IsString()) return Join(left, right);
    if (op == "+" || op == "-" || op == "*" || op == "/") return Arithmetic(op, left, right);
    if (op == "AND") return Variant(BooleanOperand(op, left) && BooleanOperand(op, right));
    if (op == "OR") return Variant(BooleanOperand(op, left) || BooleanOperand(op, right));
    return Compare(op, left, right);
}

Variant Negate(const Variant& operand) {
    if (IsVexlInteger(operand)) return IntegerResult(-static_cast<int64_t>(ToInt32(operand)));
    if (IsArithmetic(operand)) return RealResult(-ToDouble(operand));
    Mismatch("-");
}

Variant LogicalNot(const Variant& operand) {
    return Variant(!BooleanOperand("NOT", operand));
}

}  // namespace trovane::sim
