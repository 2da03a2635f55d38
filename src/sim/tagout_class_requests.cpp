// The tagout class queries of OVGR_TAGOUT:C: attribute names, titles, types and flags as vectors
// in the class's order, and single properties of one attribute.

#include <optional>
#include <set>
#include <vector>

#include "sim/procedure_arguments.h"
#include "sim/tagout_requests.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

// The tab strip is a pseudo-attribute of the class: its TITLES are the tab titles.
constexpr const char* kTabStrip = "TAB_STRIP";

Variant TextVector(const std::vector<std::string>& texts) {
    VariantArray array(ElementKind::String, 1, texts.size());
    for (size_t i = 0; i < texts.size(); ++i) array.Set(static_cast<int64_t>(i) + 1, texts[i]);
    return Variant(std::move(array));
}

Variant FlagVector(const TagoutClass& tagoutClass, bool TagoutAttribute::*flag) {
    VariantArray array(ElementKind::Long, 1, tagoutClass.attributes.size());
    for (size_t i = 0; i < tagoutClass.attributes.size(); ++i)
        array.Set(static_cast<int64_t>(i) + 1, int32_t{tagoutClass.attributes[i].*flag ? 1 : 0});
    return Variant(std::move(array));
}

std::vector<std::string> Column(const TagoutClass& tagoutClass, std::string TagoutAttribute::*field) {
    std::vector<std::string> texts;
    for (const auto& attribute : tagoutClass.attributes) texts.push_back(attribute.*field);
    return texts;
}

Variant ClassAttributes(const TagoutClass& tagoutClass, const std::string& property) {
    if (property == "NAMES") return TextVector(Column(tagoutClass, &TagoutAttribute::name));
    if (property == "TITLES") return TextVector(Column(tagoutClass, &TagoutAttribute::title));
    if (property == "TYPES") return TextVector(Column(tagoutClass, &TagoutAttribute::type));
    if (property == "VISIBLE") return FlagVector(tagoutClass, &TagoutAttribute::visible);
    if (property == "ENABLED") return FlagVector(tagoutClass, &TagoutAttribute::enabled);
    return tagout_error::kUnknownProperty;
}

Variant AttributeProperty(const TagoutAttribute& attribute, const std::string& property) {
    if (property == "NAME") return attribute.name;
    if (property == "TITLE") return attribute.title;
    if (property == "TYPE") return attribute.type;
    if (property == "VALUE") return attribute.defaultValue;
    if (property == "VISIBLE") return int32_t{attribute.visible ? 1 : 0};
    if (property == "ENABLED") return int32_t{attribute.enabled ? 1 : 0};
    if (property == "TAB_INDEX") return attribute.tabIndex;
    if (property == "MAX_LENGTH") return attribute.maxLength;
    if (property == "POSTPROCESSING") return attribute.postProcessing;
    if (property == "TITLES" && attribute.type == "SELECTOR") return TextVector(attribute.titles);
    return tagout_error::kUnknownProperty;
}

Variant ClassAttributeProperty(const TagoutClass& tagoutClass, std::span<const Variant> args) {
    const std::string name = UpperName(TextArgument(args, 1));
    const std::string property = UpperName(TextArgument(args, 2));
    if (name == kTabStrip)
        return property == "TITLES" ? TextVector(tagoutClass.tabTitles)
                                    : Variant(tagout_error::kUnknownProperty);
    const TagoutAttribute* attribute = tagoutClass.Find(name);
    return attribute ? AttributeProperty(*attribute, property) : Variant(tagout_error::kUnknownAttribute);
}

Variant ClassDescription(const TagoutClass& tagoutClass) {
    return MakeVexlList({{"NAME", tagoutClass.name},
                         {"ATTRIBUTE_COUNT", static_cast<int32_t>(tagoutClass.attributes.size())},
                         {"TAB_COUNT", static_cast<int32_t>(tagoutClass.tabTitles.size())}});
}

Variant ActionMethods(const TagoutClass& tagoutClass) {
    if (tagoutClass.actionMethods.empty()) return tagout_error::kNoActionMethods;
    return TextVector(tagoutClass.actionMethods);
}

}  // namespace

std::optional<Variant> TagoutClassRequest(ProcessDatabase& database, const std::string& request,
                                          std::span<const Variant> args) {
    static const std::set<std::string> kRequests = {"GET_CLASS", "GET_CLASS_ACTIONMETHODS",
                                                    "GET_CLASS_ATTRIBUTES", "GET_CLASS_ATTRIBUTE_PROPERTY",
                                                    "GET_CLASS_ATTRIBUTE_POSTPROCESSING"};
    if (!kRequests.contains(request)) return std::nullopt;
    const auto& tagoutClass = database.Tagouts();
    if (!tagoutClass) return Variant(tagout_error::kNoClass);
    if (request == "GET_CLASS") return ClassDescription(*tagoutClass);
    if (request == "GET_CLASS_ACTIONMETHODS") return ActionMethods(*tagoutClass);
    if (request == "GET_CLASS_ATTRIBUTES")
        return ClassAttributes(*tagoutClass, UpperName(TextArgument(args, 1)));
    if (request == "GET_CLASS_ATTRIBUTE_PROPERTY") return ClassAttributeProperty(*tagoutClass, args);
    const TagoutAttribute* attribute = tagoutClass->Find(UpperName(TextArgument(args, 1)));
    return attribute ? Variant(attribute->postProcessing) : Variant(tagout_error::kUnknownAttribute);
}

}  // namespace trovane::sim
