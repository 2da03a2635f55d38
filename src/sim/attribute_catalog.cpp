#include "sim/attribute_catalog.h"

#include <array>

#include "core/conversions.h"
#include "core/error.h"
#include "sim/vexl_environment.h"

namespace trovane::sim {

namespace {

constexpr AttributeDefinition Plain(std::string_view name, AttributeType type) {
    return {name, type, AttributeLevel::Object, true, std::nullopt, std::nullopt};
}

constexpr AttributeDefinition Ranged(std::string_view name, std::optional<int32_t> minimum,
                                     std::optional<int32_t> maximum) {
    return {name, AttributeType::Integer, AttributeLevel::Object, true, minimum, maximum};
}

constexpr AttributeDefinition Flag(std::string_view name) {
    return Ranged(name, 0, 1);
}

constexpr AttributeDefinition ReadOnly(std::string_view name, AttributeType type) {
    return {name, type, AttributeLevel::Object, false, std::nullopt, std::nullopt};
}

// OV is listed for its level and writability; its type depends on the object (ValueTypeOf).
const std::array kCatalog = {
    Plain("OV", AttributeType::Integer),
    ReadOnly("PT", AttributeType::Integer),
    Plain("TX", AttributeType::Text),
    AttributeDefinition{"GC", AttributeType::Text, AttributeLevel::Group, true, std::nullopt, std::nullopt},
    ReadOnly("LN", AttributeType::Text),
    ReadOnly("IX", AttributeType::Integer),
    // Alarm: active, acknowledged (1) or waiting for acknowledgement (0), object status, manual entry.
    Flag("AL"),
    Flag("AR"),
    Ranged("OS", 0, 10),
    Flag("ME"),
    // The six blockings, in the panels' order.
    Flag("UB"),
    Flag("CB"),
    Flag("AB"),
    Flag("HB"),
    Flag("PB"),
    Flag("XB"),
    Flag("SB"),
    // Operation counter of double-binary objects: value, limit, in use, overflow (derived).
    Ranged("CV", 0, std::nullopt),
    Ranged("CL", 1, std::nullopt),
    Flag("CE"),
    ReadOnly("CO", AttributeType::Integer),
    // The same role for other object types: alarm zone, in use, limit.
    Ranged("AZ", 0, 2),
    Flag("IU"),
    Plain("HI", AttributeType::Integer),
    // Range of analog objects.
    Plain("LR", AttributeType::Real),
    Plain("HR", AttributeType::Real),
};

}  // namespace

const AttributeDefinition* FindAttributeDefinition(std::string_view name) {
    for (const auto& definition : kCatalog)
        if (definition.name == name) return &definition;
    return nullptr;
}

AttributeType ValueTypeOf(int32_t objectType) {
    return objectType == kAnalogType ? AttributeType::Real : AttributeType::Integer;
}

Variant ConvertToAttributeType(AttributeType type, const Variant& value) {
    try {
        switch (type) {
            case AttributeType::Integer:
                if (value.IsString() && !IsNumeric(std::string_view(value.AsString()))) break;
                return ToInt32(value);
            case AttributeType::Real:
                if (value.IsString() && !IsNumeric(std::string_view(value.AsString()))) break;
                return ToDouble(value);
            case AttributeType::Text:
                if (value.IsArray() || value.IsObject()) break;
                return ToString(value);
        }
    } catch (const Error& error) {
        throw VexlStatus(status::kTypeMismatch, error.Description());
    }
    throw VexlStatus(status::kTypeMismatch, "value of the wrong type for the attribute");
}

AttributeType TypeOfValue(const Variant& value) {
    if (value.IsString()) return AttributeType::Text;
    if (value.Kind() == VarKind::Double || value.Kind() == VarKind::Single) return AttributeType::Real;
    return AttributeType::Integer;
}

}  // namespace trovane::sim
