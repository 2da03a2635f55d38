#include "platform/controls/check_box.h"

#include "core/conversions.h"
#include "platform/controls/control_errors.h"

namespace trovane {

void CheckBox::SetValue(int16_t value) {
    if (value < Unchecked || value > Grayed) throw InvalidPropertyValue();
    if (Assign(value_, value, ControlProperty::Value)) onClick.Emit();
}

// The operator's click toggles the checked mark as the platform's automatic check box does: a
// grey box has no mark, so the click checks it.
void CheckBox::Click() {
    if (AcceptsInput()) SetValue(value_ == Checked ? Unchecked : Checked);
}

Variant CheckBox::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (EqualsIgnoringCase(member, "Value"))
        return Property(
            kind, args, [&] { return Variant(value_); }, [&](const Variant& v) { SetValue(ToInt16(v)); });
    return Control::Invoke(member, kind, args);
}

}  // namespace trovane
