#include "platform/controls/option_button.h"

#include "core/conversions.h"
#include "platform/controls/form.h"
#include "platform/controls/key_codes.h"

namespace trovane {

void OptionButton::SetValue(bool value) {
    if (value == value_) return;
    if (value) ClearSiblings();
    Assign(value_, value, ControlProperty::Value);
    if (value) onClick.Emit();
}

void OptionButton::ClearSiblings() {
    if (ParentForm() == nullptr) return;
    for (Control& control : ParentForm()->Controls()) {
        auto* sibling = dynamic_cast<OptionButton*>(&control);
        if (sibling != nullptr && sibling != this && sibling->Container() == Container() && sibling->value_) {
            sibling->value_ = false;
            sibling->onChanged.Emit(ControlProperty::Value);
        }
    }
}

// The operator's click on the button that is already selected raises Click again, as the classic
// control does; only program code setting the same value stays silent.
void OptionButton::Click() {
    if (!AcceptsInput()) return;
    if (value_)
        onClick.Emit();
    else
        SetValue(true);
}

void OptionButton::ClickWithMouse(int16_t button, int16_t shift, float x, float y) {
    MouseDown(button, shift, x, y);
    if (button == keys::kLeftButton) Click();
    MouseUp(button, shift, x, y);
}

Variant OptionButton::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (EqualsIgnoringCase(member, "Value"))
        return Property(
            kind, args, [&] { return Variant(value_); }, [&](const Variant& v) { SetValue(ToBool(v)); });
    return Control::Invoke(member, kind, args);
}

}  // namespace trovane
