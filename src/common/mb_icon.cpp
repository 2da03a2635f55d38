#include "common/mb_icon.h"

#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

namespace {
constexpr const char* kIconTypeProperty = "IconType";
}  // namespace

Variant MBIcon::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (!EqualsIgnoringCase(member, kIconTypeProperty)) return Control::Invoke(member, kind, args);
    if (kind != CallKind::PropertyPut) return Variant(iconType);
    if (args.empty()) throw Error(ErrorNumber::InvalidCall);
    SetIconType(ToInt32(args.back()));
    return Variant();
}

void MBIcon::WriteProperties(PropertyBag& bag) const {
    if (iconType == kInformation) {
        bag.erase(kIconTypeProperty);
        return;
    }
    bag[kIconTypeProperty] = iconType;
}

void MBIcon::ReadProperties(const PropertyBag& bag) {
    iconType = kInformation;
    const auto found = bag.find(kIconTypeProperty);
    if (found == bag.end()) return;
    try {
        iconType = ToInt32(found->second);
    } catch (const Error&) {
        // A damaged saved value: the control shows the default icon rather than failing the form.
    }
}

}  // namespace trovane
