#include "sim/tagout_store.h"

#include "sim/vexl_values.h"

namespace trovane::sim {

const TagoutAttribute* TagoutClass::Find(const std::string& upperName) const {
    for (const auto& attribute : attributes)
        if (UpperName(attribute.name) == upperName) return &attribute;
    return nullptr;
}

Tagout* ObjectTagouts::FindActive(const std::string& key) {
    for (auto& tagout : active)
        if (tagout.key == key) return &tagout;
    return nullptr;
}

std::optional<std::string> ObjectTagouts::IndicationAttribute(const std::string& attribute) const {
    if (attribute == "TP") return priority;
    if (attribute == "TT") return tagText;
    if (attribute != "LB") return std::nullopt;
    std::string devices;
    for (const auto& device : localBlocks) devices += (devices.empty() ? "" : ",") + device;
    return devices;
}

}  // namespace trovane::sim
