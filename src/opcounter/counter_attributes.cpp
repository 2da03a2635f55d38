#include "opcounter/counter_attributes.h"

#include "common/command_text.h"
#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

CounterAttributeSet CounterAttributesFor(int16_t objectType) {
    if (objectType == kDoubleBinaryObjectType) return {"CO", "CV", "CE", "CL"};
    return {"AZ", "", "IU", "HI"};
}

std::string ObjectTypeCommand(std::string_view objectName) {
    return "#RETURN " + std::string(objectName) + ":PPT";
}

std::string CounterWriteCommand(std::string_view objectName, std::string_view attribute, int32_t objectIndex,
                                std::string_view valueText) {
    return "#SET " + std::string(objectName) + ":P" + std::string(attribute) + std::to_string(objectIndex) +
           "=" + std::string(valueText);
}

std::string ExtraInfoCommand(std::string_view objectName, int32_t objectIndex) {
    return "#return do(BGU_CONTROL:C, " + ObjectReferenceText(objectName, objectIndex) +
           ",\"GET_EXTRA_INFO\")";
}

std::optional<float> AcceptedLimit(std::string_view text) {
    float limit = 0;
    try {
        limit = ToSingle(Variant(text));
    } catch (const Error&) {
        return std::nullopt;
    }
    if (!(limit > 0)) return std::nullopt;
    return limit;
}

}  // namespace trovane
