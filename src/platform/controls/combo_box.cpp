#include "platform/controls/combo_box.h"

#include <algorithm>

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/control_errors.h"

namespace trovane {

void ComboBox::CheckIndex(int32_t index) const {
    if (index < 0 || index >= ListCount())
        throw Error(ErrorNumber::InvalidCall, Name() + ": no list entry " + std::to_string(index));
}

void ComboBox::AddItem(std::string item, int32_t index) {
    if (index == -1) index = ListCount();
    if (index < 0 || index > ListCount()) throw Error(ErrorNumber::InvalidCall, Name() + ".AddItem");
    items_.insert(items_.begin() + index, std::move(item));
    onChanged.Emit(ControlProperty::Items);
    if (listIndex_ >= index) Assign(listIndex_, listIndex_ + 1, ControlProperty::ListIndex);
}

void ComboBox::RemoveItem(int32_t index) {
    CheckIndex(index);
    items_.erase(items_.begin() + index);
    onChanged.Emit(ControlProperty::Items);
    if (listIndex_ == index) {
        Assign(listIndex_, -1, ControlProperty::ListIndex);
        if (style_ == Style::DropDownList) Assign(text_, std::string(), ControlProperty::Text);
    } else if (listIndex_ > index) {
        Assign(listIndex_, listIndex_ - 1, ControlProperty::ListIndex);
    }
}

void ComboBox::Clear() {
    if (items_.empty() && listIndex_ == -1 && text_.empty()) return;
    items_.clear();
    onChanged.Emit(ControlProperty::Items);
    Assign(listIndex_, -1, ControlProperty::ListIndex);
    Assign(text_, std::string(), ControlProperty::Text);
}

// Reading past the list gives an empty text, as the classic List property does.
const std::string& ComboBox::List(int32_t index) const {
    static const std::string none;
    return index >= 0 && index < ListCount() ? items_[static_cast<size_t>(index)] : none;
}

void ComboBox::SetListIndex(int32_t index) {
    if (index < -1 || index >= ListCount()) throw InvalidPropertyValue();
    if (index == listIndex_) return;
    listIndex_ = index;
    onChanged.Emit(ControlProperty::ListIndex);
    if (index >= 0)
        Assign(text_, items_[static_cast<size_t>(index)], ControlProperty::Text);
    else if (style_ == Style::DropDownList)
        Assign(text_, std::string(), ControlProperty::Text);
    onClick.Emit();
}

void ComboBox::SetText(std::string text) {
    const auto match = std::find(items_.begin(), items_.end(), text);
    const int32_t matchIndex = match == items_.end() ? -1 : static_cast<int32_t>(match - items_.begin());
    if (style_ == Style::DropDownList) {
        if (matchIndex < 0) throw PropertyIsReadOnly("Text");
        SetListIndex(matchIndex);
        return;
    }
    if (!Assign(text_, std::move(text), ControlProperty::Text)) return;
    Assign(listIndex_, matchIndex, ControlProperty::ListIndex);
    onChange.Emit();
}

void ComboBox::EditText(std::string text) {
    if (!AcceptsInput() || style_ == Style::DropDownList) return;
    SetText(std::move(text));
}

Variant ComboBox::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    auto is = [&](std::string_view name) { return EqualsIgnoringCase(member, name); };
    if (is("Text"))
        return Property(
            kind, args, [&] { return Variant(text_); }, [&](const Variant& v) { SetText(ToString(v)); });
    if (is("ListIndex"))
        return Property(
            kind, args, [&] { return Variant(listIndex_); },
            [&](const Variant& v) { SetListIndex(ToInt32(v)); });
    if (is("ListCount")) return Property(kind, args, [&] { return Variant(ListCount()); });
    if (is("Style")) return Property(kind, args, [&] { return Variant(static_cast<int16_t>(style_)); });
    if (is("List") && kind != CallKind::PropertyPut && !args.empty()) return Variant(List(ToInt32(args[0])));
    if (is("AddItem") && kind == CallKind::Method && !args.empty()) {
        AddItem(ToString(args[0]), args.size() > 1 ? ToInt32(args[1]) : -1);
        return Variant();
    }
    if (is("RemoveItem") && kind == CallKind::Method && !args.empty()) {
        RemoveItem(ToInt32(args[0]));
        return Variant();
    }
    if (is("Clear") && kind == CallKind::Method) {
        Clear();
        return Variant();
    }
    return Control::Invoke(member, kind, args);
}

}  // namespace trovane
