#include "platform/controls/text_box.h"

#include <algorithm>

#include "core/conversions.h"
#include "platform/controls/control_errors.h"
#include "platform/controls/key_codes.h"
#include "platform/controls/utf8_positions.h"

namespace trovane {

using namespace keys;

// The new text and the caret are both in place before Change is raised, so that a handler sees a
// consistent box and may set the text back.
void TextBox::SetText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    const bool selectionMoved = selStart_ != 0 || selLength_ != 0;
    selStart_ = 0;
    selLength_ = 0;
    onChanged.Emit(ControlProperty::Text);
    if (selectionMoved) onChanged.Emit(ControlProperty::Selection);
    onChange.Emit();
}

int32_t TextBox::Length() const {
    return utf8::CharacterCount(text_);
}

void TextBox::SetMaxLength(int32_t maxLength) {
    if (maxLength < 0) throw InvalidPropertyValue();
    Assign(maxLength_, maxLength, ControlProperty::MaxLength);
}

void TextBox::SetSelStart(int32_t start) {
    if (start < 0) throw InvalidPropertyValue();
    SetSelection(std::min(start, Length()), 0);
}

void TextBox::SetSelLength(int32_t length) {
    if (length < 0) throw InvalidPropertyValue();
    SetSelection(selStart_, std::min(length, Length() - selStart_));
}

void TextBox::SetSelection(int32_t start, int32_t length) {
    if (start == selStart_ && length == selLength_) return;
    selStart_ = start;
    selLength_ = length;
    onChanged.Emit(ControlProperty::Selection);
}

std::pair<size_t, size_t> TextBox::SelectionBytes() const {
    const size_t from = utf8::ByteOffset(text_, selStart_);
    return {from, from + utf8::ByteOffset(std::string_view(text_).substr(from), selLength_)};
}

std::string TextBox::SelText() const {
    const auto [from, to] = SelectionBytes();
    return text_.substr(from, to - from);
}

void TextBox::SetSelText(std::string_view text) {
    const auto [from, to] = SelectionBytes();
    std::string updated = text_.substr(0, from);
    updated += text;
    updated += std::string_view(text_).substr(to);
    const int32_t caret = selStart_ + utf8::CharacterCount(text);
    if (updated == text_) {
        SetSelection(caret, 0);
        return;
    }
    text_ = std::move(updated);
    selStart_ = caret;
    selLength_ = 0;
    onChanged.Emit(ControlProperty::Text);
    onChanged.Emit(ControlProperty::Selection);
    onChange.Emit();
}

int32_t TextBox::Room() const {
    if (maxLength_ == 0) return -1;
    return std::max(maxLength_ - (Length() - selLength_), 0);
}

bool TextBox::EnterText(std::string_view text) {
    if (!AcceptsInput() || locked_) return false;
    if (!multiLine_) text = text.substr(0, std::min(text.find('\r'), text.find('\n')));
    const int32_t room = Room();
    if (room >= 0 && utf8::CharacterCount(text) > room) {
        if (room == 0 && !text.empty()) return false;
        text = text.substr(0, utf8::ByteOffset(text, room));
    }
    SetSelText(text);
    return true;
}

void TextBox::ApplyKey(int16_t keyCode, int16_t /*shift*/) {
    const int32_t length = Length();
    switch (keyCode) {
        case kHome:
            SetSelection(0, 0);
            break;
        case kEnd:
            SetSelection(length, 0);
            break;
        case kLeft:
            SetSelection(std::max(selStart_ - 1, 0), 0);
            break;
        case kRight:
            SetSelection(std::min(selStart_ + selLength_ + 1, length), 0);
            break;
        case kDelete:
            if (locked_) break;
            if (selLength_ == 0 && selStart_ < length) SetSelection(selStart_, 1);
            SetSelText("");
            break;
        default:
            break;
    }
}

void TextBox::ApplyCharacter(char32_t character) {
    if (locked_) return;
    if (character == kBackspace) {
        if (selLength_ == 0 && selStart_ > 0) SetSelection(selStart_ - 1, 1);
        SetSelText("");
        return;
    }
    const bool lineBreak = character == kEnter && multiLine_;
    if ((character < 32 && !lineBreak) || character == 127) return;
    const std::string typed = lineBreak ? std::string("\r\n") : utf8::Encode(character);
    const int32_t room = Room();
    if (room >= 0 && utf8::CharacterCount(typed) > room) return;
    SetSelText(typed);
}

Variant TextBox::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    auto is = [&](std::string_view name) { return EqualsIgnoringCase(member, name); };
    if (is("Text"))
        return Property(
            kind, args, [&] { return Variant(text_); }, [&](const Variant& v) { SetText(ToString(v)); });
    if (is("Locked"))
        return Property(
            kind, args, [&] { return Variant(locked_); }, [&](const Variant& v) { SetLocked(ToBool(v)); });
    if (is("MaxLength"))
        return Property(
            kind, args, [&] { return Variant(maxLength_); },
            [&](const Variant& v) { SetMaxLength(ToInt32(v)); });
    if (is("MultiLine"))
        return Property(
            kind, args, [&] { return Variant(multiLine_); },
            [&](const Variant& v) { SetMultiLine(ToBool(v)); });
    if (is("SelStart"))
        return Property(
            kind, args, [&] { return Variant(selStart_); },
            [&](const Variant& v) { SetSelStart(ToInt32(v)); });
    if (is("SelLength"))
        return Property(
            kind, args, [&] { return Variant(selLength_); },
            [&](const Variant& v) { SetSelLength(ToInt32(v)); });
    if (is("SelText"))
        return Property(
            kind, args, [&] { return Variant(SelText()); },
            [&](const Variant& v) { SetSelText(ToString(v)); });
    return Control::Invoke(member, kind, args);
}

}  // namespace trovane
