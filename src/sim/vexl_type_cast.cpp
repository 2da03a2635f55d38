#include "sim/vexl_type_cast.h"

#include <cmath>
#include <limits>

#include "core/conversions.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_notation.h"
#include "sim/vexl_time.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

[[noreturn]] void Mismatch(const std::string& typeName) {
    throw VexlStatus(status::kTypeMismatch, "value does not convert to " + typeName);
}

// The number a value stands for, where it stands for one.
double NumberOf(const Variant& value, const std::string& typeName) {
    if (value.IsNumber()) return ToDouble(value);
    if (value.Kind() == VarKind::Boolean) return value.AsBoolean() ? 1.0 : 0.0;
    if (value.Kind() == VarKind::Date) return SecondsFromTime(value.AsDate());
    if (value.IsString() && IsNumeric(std::string_view(value.AsString())))
        return ParseNumber(value.AsString());
    Mismatch(typeName);
}

Variant ToIntegerType(const Variant& value) {
    if (IsVexlInteger(value)) return Variant(ToInt32(value));
    const double number = NumberOf(value, "INTEGER");
    if (!std::isfinite(number) || std::fabs(number) > std::numeric_limits<int32_t>::max())
        Mismatch("INTEGER");
    return Variant(RoundToInt32(number));
}

Variant ToRealType(const Variant& value) {
    const double number = NumberOf(value, "REAL");
    if (!std::isfinite(number)) Mismatch("REAL");
    return Variant(number);
}

Variant ToTextType(const Variant& value) {
    if (value.IsString()) return value;
    if (value.Kind() == VarKind::Date) {
        if (!IsTimeInRange(value.AsDate())) Mismatch("TEXT");
        return Variant(DateText(value.AsDate()));
    }
    if (value.IsNumber() || value.Kind() == VarKind::Boolean) return Variant(VexlNotation(value));
    Mismatch("TEXT");
}

Variant ToTimeType(const Variant& value) {
    if (value.Kind() == VarKind::Date) return value;
    const double seconds = NumberOf(value, "TIME");
    if (!std::isfinite(seconds) || std::fabs(seconds) > 1e11) Mismatch("TIME");
    return Variant(TimeFromSeconds(std::llround(seconds)));
}

Variant ToBooleanType(const Variant& value) {
    if (value.Kind() == VarKind::Boolean) return value;
    if (value.IsNumber()) return Variant(ToDouble(value) != 0);
    if (value.IsString()) {
        const std::string upper = UpperName(value.AsString());
        if (upper == "TRUE" || upper == "FALSE") return Variant(upper == "TRUE");
    }
    Mismatch("BOOLEAN");
}

}  // namespace

Variant TypeCast(const Variant& value, const std::string& typeName) {
    const std::string type = UpperName(typeName);
    if (type == "INTEGER") return ToIntegerType(value);
    if (type == "REAL") return ToRealType(value);
    if (type == "TEXT") return ToTextType(value);
    if (type == "TIME") return ToTimeType(value);
    if (type == "BOOLEAN") return ToBooleanType(value);
    throw VexlStatus(status::kWrongArgument, "unknown type " + typeName);
}

}  // namespace trovane::sim
