#include "tagout/tagout_values.h"

#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

std::string TextOf(const Variant& value) {
    try {
        return ToString(value);
    } catch (const Error&) {
        return std::string();
    }
}

Variant ElementOf(const Variant& value, int32_t index) {
    if (!value.IsArray() || !value.AsArray().Contains(index)) return Variant();
    return value.AsArray().At(index);
}

int32_t UpperBoundOf(const Variant& value) {
    return value.IsArray() ? value.AsArray().UpperBound() : 0;
}

bool TruthOf(const Variant& value, bool fallback) {
    try {
        return value.IsEmpty() ? fallback : ToBool(value);
    } catch (const Error&) {
        return fallback;
    }
}

int32_t WholeOf(const Variant& value, int32_t fallback) {
    if (value.IsEmpty() || !IsNumeric(value)) return fallback;
    try {
        return ToInt32(value);
    } catch (const Error&) {
        return fallback;
    }
}

}  // namespace trovane
