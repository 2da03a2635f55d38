#include "platform/controls/menu.h"

#include "core/conversions.h"

namespace trovane {

Variant Menu::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (EqualsIgnoringCase(member, "Checked"))
        return Property(
            kind, args, [&] { return Variant(checked_); }, [&](const Variant& v) { SetChecked(ToBool(v)); });
    return Control::Invoke(member, kind, args);
}

}  // namespace trovane
