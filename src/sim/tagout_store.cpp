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

}  // namespace trovane::sim
