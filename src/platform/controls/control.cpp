#include "platform/controls/control.h"

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/controls/key_codes.h"
#include "platform/controls/key_press_codes.h"

namespace trovane {

namespace {

// The object a control answers for "Font": it carries the character set through to the control.
// It holds the control's owner reference when the control has one, so that it stays valid.
class FontObject final : public Object {
  public:
    explicit FontObject(std::shared_ptr<Control> control) : control_(std::move(control)) {}
    std::string ClassName() const override { return "Font"; }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override {
        if (!EqualsIgnoringCase(member, "Charset")) return Object::Invoke(member, kind, args);
        if (kind != CallKind::PropertyPut) return Variant(control_->FontCharset());
        if (args.empty()) throw Error(ErrorNumber::InvalidCall);
        control_->SetFontCharset(ToInt32(args.back()));
        return Variant();
    }

  private:
    std::shared_ptr<Control> control_;
};

std::shared_ptr<Control> SharedControl(Control& control) {
    if (auto owned = control.weak_from_this().lock()) return std::static_pointer_cast<Control>(owned);
    return std::shared_ptr<Control>(std::shared_ptr<Control>(), &control);  // not owned: borrowed
}

// A form or frame as a late-bound value: Nothing for none, borrowed when nobody owns it.
Variant ObjectValue(Object* object) {
    if (object == nullptr) return Variant::Nothing();
    if (auto owned = object->weak_from_this().lock()) return Variant(std::move(owned));
    return Variant(ObjectRef(ObjectRef(), object));
}

}  // namespace

void Control::SetContainer(Frame* frame) {
    if (container_ == frame) return;
    container_ = frame;
    onChanged.Emit(ControlProperty::Container);
}

void Control::SetFontCharset(int32_t charset) {
    if (!HasFont()) throw Error(ErrorNumber::MemberNotSupported, TypeName() + ".Font");
    Assign(fontCharset_, charset, ControlProperty::FontCharset);
}

bool Control::AcceptsInput() const {
    for (const Control* control = this; control != nullptr; control = control->container_)
        if (!control->Enabled()) return false;
    return true;
}

bool Control::HasFocus() const {
    return form_ != nullptr && form_->ActiveControl() == this;
}

// As in the classic runtime, a control that cannot take the focus (disabled or hidden) refuses it
// with error 5 rather than silently leaving the focus where it was.
void Control::SetFocus() {
    if (!AcceptsInput() || !Visible()) throw Error(ErrorNumber::InvalidCall, Name() + ".SetFocus");
    if (form_ != nullptr)
        form_->MoveFocus(this);
    else
        onGotFocus.Emit();
}

void Control::Click() {
    if (AcceptsInput()) onClick.Emit();
}

void Control::ClickWithMouse(int16_t button, int16_t shift, float x, float y) {
    MouseDown(button, shift, x, y);
    MouseUp(button, shift, x, y);
    if (button == keys::kLeftButton) Click();
}

void Control::DblClick() {
    if (AcceptsInput()) onDblClick.Emit();
}

void Control::PressKey(int16_t keyCode, int16_t shift) {
    if (!AcceptsInput()) return;
    int16_t code = keyCode;
    onKeyDown.Emit(code, shift);
    if (code != 0) ApplyKey(code, shift);
    int16_t released = keyCode;
    onKeyUp.Emit(released, shift);
}

// A handler that leaves the code alone keeps the character typed, even one whose code stands for
// another character (a control character of the range 128..159 is never typed, so none does).
char32_t Control::TypeCharacter(char32_t character) {
    if (!AcceptsInput() || !keypress::IsTypedCharacter(character)) return 0;
    const int32_t original = keypress::CodeOf(character);
    int32_t code = original;
    onKeyPress.Emit(code);
    const char32_t typed = code == original ? character : keypress::CharacterOf(code);
    if (typed != 0) ApplyCharacter(typed);
    return typed;
}

void Control::MouseDown(int16_t button, int16_t shift, float x, float y) {
    if (AcceptsInput()) onMouseDown.Emit(button, shift, x, y);
}

void Control::MouseUp(int16_t button, int16_t shift, float x, float y) {
    if (AcceptsInput()) onMouseUp.Emit(button, shift, x, y);
}

Variant Control::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    auto is = [&](std::string_view name) { return EqualsIgnoringCase(member, name); };
    if (is("Index")) return Property(kind, args, [&] { return Variant(index_); });
    if (is("TabIndex"))
        return Property(
            kind, args, [&] { return Variant(tabIndex_); },
            [&](const Variant& v) { SetTabIndex(ToInt16(v)); });
    if (is("TabStop"))
        return Property(
            kind, args, [&] { return Variant(tabStop_); }, [&](const Variant& v) { SetTabStop(ToBool(v)); });
    if (is("DataField"))
        return Property(
            kind, args, [&] { return Variant(dataField_); },
            [&](const Variant& v) { SetDataField(ToString(v)); });
    if (is("DataMember"))
        return Property(
            kind, args, [&] { return Variant(dataMember_); },
            [&](const Variant& v) { SetDataMember(ToString(v)); });
    if (HasFont() && is("Font"))
        return Property(kind, args, [&] {
            return Variant(ObjectRef(std::make_shared<FontObject>(SharedControl(*this))));
        });
    if (HasFont() && is("FontCharset"))
        return Property(
            kind, args, [&] { return Variant(fontCharset_); },
            [&](const Variant& v) { SetFontCharset(ToInt32(v)); });
    // A detached control (its form is gone) has neither.
    if (is("Parent")) return Property(kind, args, [&] { return ObjectValue(form_); });
    if (is("Container"))
        return Property(kind, args,
                        [&] { return container_ != nullptr ? ObjectValue(container_) : ObjectValue(form_); });
    if (is("SetFocus") && kind == CallKind::Method) {
        SetFocus();
        return Variant();
    }
    return Widget::Invoke(member, kind, args);
}

}  // namespace trovane
