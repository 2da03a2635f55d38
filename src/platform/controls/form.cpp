#include "platform/controls/form.h"

#include <algorithm>
#include <cstdint>

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/control_collection.h"
#include "platform/controls/control_errors.h"
#include "platform/controls/frame.h"
#include "platform/controls/utf8_positions.h"

namespace trovane {

namespace {
std::string ElementName(std::string_view name, int16_t index) {
    std::string text(name);
    if (index >= 0) text += "(" + std::to_string(index) + ")";
    return text;
}
}  // namespace

Form::Form(std::string name) : Widget(std::move(name)) {
    Widget::SetVisible(false);
}

// Silently: nobody may observe a form that is being destroyed.
Form::~Form() {
    for (const auto& control : controls_) {
        control->form_ = nullptr;
        control->container_ = nullptr;
    }
}

void Form::Adopt(std::shared_ptr<Control> control, int16_t index) {
    if (Find(control->Name(), index) != nullptr)
        throw Error(360, "Object already loaded: " + ElementName(control->Name(), index));
    control->form_ = this;
    control->index_ = index;
    control->tabIndex_ = static_cast<int16_t>(std::min<size_t>(controls_.size(), INT16_MAX));
    controls_.push_back(control);
    onControlAdded.Emit(*control);
}

void Form::Remove(Control& control) {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(), [&](const auto& c) { return c.get() == &control; });
    if (found == controls_.end()) return;
    const std::shared_ptr<Control> keepAlive = *found;  // handlers may still look at it
    if (activeControl_ == &control) activeControl_ = nullptr;
    for (const auto& other : controls_)
        if (other->Container() == &control) other->SetContainer(nullptr);
    controls_.erase(found);
    onControlRemoved.Emit(control);
    control.form_ = nullptr;
    control.container_ = nullptr;
}

Control* Form::Find(std::string_view name, int16_t index) const {
    for (const auto& control : controls_)
        if (control->Index() == index && EqualsIgnoringCase(control->Name(), name)) return control.get();
    return nullptr;
}

void Form::ThrowMissing(std::string_view name, int16_t index) {
    if (index >= 0) throw NoSuchArrayElement(ElementName(name, index));
    throw Error(ErrorNumber::MemberNotSupported, std::string(name));
}

std::vector<Control*> Form::ArrayElements(std::string_view name) const {
    std::vector<Control*> elements;
    for (const auto& control : controls_)
        if (control->Index() >= 0 && EqualsIgnoringCase(control->Name(), name))
            elements.push_back(control.get());
    std::sort(elements.begin(), elements.end(),
              [](const Control* a, const Control* b) { return a->Index() < b->Index(); });
    return elements;
}

std::vector<Control*> Form::TabOrder() const {
    std::vector<Control*> order;
    order.reserve(controls_.size());
    for (const auto& control : controls_) order.push_back(control.get());
    std::stable_sort(order.begin(), order.end(),
                     [](const Control* a, const Control* b) { return a->TabIndex() < b->TabIndex(); });
    return order;
}

Variant Form::ControlsObject() {
    return Variant(MakeControlCollection(*this));
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    onLoad.Emit();
}

void Form::Show(bool modal) {
    Load();
    modal_ = modal;
    SetVisible(true);
}

bool Form::Unload() {
    if (!loaded_) return true;
    bool cancel = false;
    onUnload.Emit(cancel);
    if (cancel) return false;
    SetVisible(false);
    loaded_ = false;
    modal_ = false;
    activeControl_ = nullptr;
    return true;
}

void Form::MoveFocus(Control* control) {
    if (control == activeControl_) return;
    Control* previous = activeControl_;
    activeControl_ = control;
    if (previous != nullptr) {
        previous->onLostFocus.Emit();
        previous->onChanged.Emit(ControlProperty::Focus);
    }
    if (control != nullptr) {
        control->onGotFocus.Emit();
        control->onChanged.Emit(ControlProperty::Focus);
    }
}

int32_t Form::TextWidth(std::string_view text) const {
    if (textMeasure_) return textMeasure_(text);
    return utf8::CharacterCount(text) * 90;
}

Variant Form::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    auto is = [&](std::string_view name) { return EqualsIgnoringCase(member, name); };
    if (is("hWnd")) return Property(kind, args, [&] { return Variant(hwnd_); });
    if (is("Controls")) return Property(kind, args, [&] { return ControlsObject(); });
    if (is("Show") && kind == CallKind::Method) {
        Show(!args.empty() && ToInt32(args[0]) != 0);
        return Variant();
    }
    if (is("Hide") && kind == CallKind::Method) {
        Hide();
        return Variant();
    }
    if (is("Unload") && kind == CallKind::Method) {
        Unload();
        return Variant();
    }
    if (kind != CallKind::PropertyPut) {
        const int16_t index = args.empty() ? int16_t{-1} : ToInt16(args[0]);
        if (Control* control = Find(member, index)) return Variant(control->shared_from_this());
        if (index >= 0 && !ArrayElements(member).empty())
            throw NoSuchArrayElement(ElementName(member, index));
    }
    return Widget::Invoke(member, kind, args);
}

}  // namespace trovane
