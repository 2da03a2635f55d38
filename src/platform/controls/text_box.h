#pragma once
// TextBox: editable UTF-8 text with a selection.
//
// Every change of the text raises Change, whether program code set it or the operator edited it:
// panels rely on that. Setting the text puts the caret at the start with nothing selected. The
// caret (SelStart), the selection (SelLength) and MaxLength count characters (code points), not
// bytes; a line break of a multi-line box ("\r\n") is two characters, as classically.
//
// The operator edits in two ways. Typed characters arrive one by one through TypeCharacter: KeyPress
// handlers may discard them; a character that gets through replaces the selection, backspace (8)
// deletes the selection or the character before the caret, Enter (13) inserts a line break only in
// a multi-line box. Text that arrives whole (paste, drag and drop, an input method's composed
// text) arrives through EnterText, which raises no key events: a panel that vets what the operator
// enters does so in Change, and may set the text back there. Both need a box that takes input and
// is not locked, and both stop at MaxLength (0: no limit), which program code may exceed. The
// selection is clamped to the text.

#include <string_view>

#include <utility>

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class TextBox : public Control {
  public:
    explicit TextBox(std::string name) : Control(std::move(name), "TextBox") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    // The length of the text in characters.
    int32_t Length() const;
    bool Locked() const { return locked_; }
    void SetLocked(bool locked) { Assign(locked_, locked, ControlProperty::Locked); }
    int32_t MaxLength() const { return maxLength_; }  // 0: no limit
    void SetMaxLength(int32_t maxLength);
    bool MultiLine() const { return multiLine_; }
    void SetMultiLine(bool multiLine) { Assign(multiLine_, multiLine, ControlProperty::MultiLine); }

    int32_t SelStart() const { return selStart_; }
    int32_t SelLength() const { return selLength_; }
    void SetSelStart(int32_t start);  // also clears the selection length, as the classic control does
    void SetSelLength(int32_t length);
    std::string SelText() const;
    // Replaces the selection (raising Change) and puts the caret after the new text.
    void SetSelText(std::string_view text);

    // The operator's text that replaces the selection without key events. A single-line box takes
    // the text up to its first line break; a full box takes what fits, and nothing when no
    // character does. False when the box took nothing (disabled, locked or full).
    bool EnterText(std::string_view text);

    Signal<> onChange;

  protected:
    void ApplyKey(int16_t keyCode, int16_t shift) override;
    void ApplyCharacter(char32_t character) override;

  private:
    void SetSelection(int32_t start, int32_t length);
    // The selection as byte offsets [from, to) into the UTF-8 text.
    std::pair<size_t, size_t> SelectionBytes() const;
    // Characters that may still be added in place of the selection; -1 without a limit.
    int32_t Room() const;
    std::string text_;
    bool locked_ = false;
    int32_t maxLength_ = 0;
    bool multiLine_ = false;
    int32_t selStart_ = 0;
    int32_t selLength_ = 0;
};

}  // namespace trovane

#include "core/api_end.h"
