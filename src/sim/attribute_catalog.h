#pragma once
// The attributes the simulated server knows, with their types and rules.
//
// A process object's attributes are addressed by two-letter names (`ABC:PCV10` reads "CV" of
// object ABC index 10). Each known name has one value type, decides whether it belongs to the
// object group (the logical name, like the comment "GC") or to one indexed object, and whether a
// command may write it. Values are stored already converted to their type, so a read always
// answers the same kind whatever a writer sent. Attributes that a scenario adds beyond this
// catalogue keep the type of their initial value.

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane::sim {

enum class AttributeType { Integer, Real, Text };

enum class AttributeLevel { Object, Group };

struct AttributeDefinition {
    std::string_view name;
    AttributeType type;
    AttributeLevel level = AttributeLevel::Object;
    bool writable = true;
    // Inclusive range of an integer attribute, when it has one.
    std::optional<int32_t> minimum;
    std::optional<int32_t> maximum;
};

// The definition of a known attribute name (upper case), or nullptr.
const AttributeDefinition* FindAttributeDefinition(std::string_view name);

// The type of an object's value "OV": a real for analog objects, an integer state otherwise.
AttributeType ValueTypeOf(int32_t objectType);

// Converts a written value to an attribute type; throws VexlStatus (type mismatch) when it cannot.
Variant ConvertToAttributeType(AttributeType type, const Variant& value);

// The type a stored value has (for attributes outside the catalogue).
AttributeType TypeOfValue(const Variant& value);

// Process object types the panels distinguish.
inline constexpr int32_t kBinaryType = 3;
inline constexpr int32_t kAnalogType = 9;
inline constexpr int32_t kDoubleBinaryType = 12;

}  // namespace trovane::sim

#include "core/api_end.h"
