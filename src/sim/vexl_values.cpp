#include "sim/vexl_values.h"

#include <algorithm>
#include <cctype>

namespace trovane::sim {

std::string UpperName(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return name;
}

bool IsVexlInteger(const Variant& value) {
    return value.Kind() == VarKind::Long || value.Kind() == VarKind::Integer;
}

Variant MakeVexlList(std::vector<std::pair<std::string, Variant>> attributes) {
    std::vector<Variant> elements{Variant(Currency{0})};
    elements.reserve(1 + 2 * attributes.size());
    for (auto& [name, value] : attributes) {
        std::string upper = UpperName(name);
        bool replaced = false;
        for (size_t i = 1; i < elements.size(); i += 2) {
            if (elements[i].AsString() == upper) {
                elements[i + 1] = std::move(value);
                replaced = true;
                break;
            }
        }
        if (replaced) continue;
        elements.emplace_back(std::move(upper));
        elements.push_back(std::move(value));
    }
    return Variant(VariantArray(ElementKind::Variant, 0, std::move(elements)));
}

namespace {
ElementKind VectorElementKind(const std::vector<Variant>& elements) {
    if (elements.empty()) return ElementKind::Variant;
    if (std::all_of(elements.begin(), elements.end(), [](const Variant& v) { return v.IsString(); }))
        return ElementKind::String;
    if (std::all_of(elements.begin(), elements.end(), IsVexlInteger)) return ElementKind::Long;
    return ElementKind::Variant;
}
}  // namespace

Variant MakeVexlVector(std::vector<Variant> elements) {
    const ElementKind kind = VectorElementKind(elements);
    return Variant(VariantArray(kind, 1, std::move(elements)));
}

bool IsVexlVector(const Variant& value) {
    return value.IsArray() && value.AsArray().LowerBound() == 1;
}

bool IsVexlList(const Variant& value) {
    if (!value.IsArray()) return false;
    const VariantArray& array = value.AsArray();
    if (array.Kind() != ElementKind::Variant || array.LowerBound() != 0 || array.Size() % 2 != 1)
        return false;
    const auto elements = array.Elements();
    if (elements[0].Kind() != VarKind::Currency) return false;
    for (size_t i = 1; i < elements.size(); i += 2)
        if (!elements[i].IsString()) return false;
    return true;
}

const Variant* FindVexlListItem(const Variant& list, const std::string& name) {
    if (!IsVexlList(list)) return nullptr;
    const std::string upper = UpperName(name);
    const auto elements = list.AsArray().Elements();
    for (size_t i = 1; i < elements.size(); i += 2)
        if (UpperName(elements[i].AsString()) == upper) return &elements[i + 1];
    return nullptr;
}

}  // namespace trovane::sim
