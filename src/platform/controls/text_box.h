#pragma once
// TextBox: editable text with a selection.
//
// Every change of the text raises Change, whether program code set it or the operator typed:
// panels rely on that. Setting the text puts the caret at the start with nothing selected. Typed
// characters arrive through TypeCharacter: KeyPress handlers may discard them; a character that
// gets through replaces the selection, backspace (8) deletes the selection or the character before
// the caret, Enter (13) inserts a line break only in a multi-line box. A locked box and a full box
// (MaxLength > 0 reached) take no characters. The selection is clamped to the text.

#include "platform/controls/control.h"

namespace trovane {

class TextBox : public Control {
  public:
    explicit TextBox(std::string name) : Control(std::move(name), "TextBox") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    const std::string& Text() const { return text_; }
    void SetText(std::string text);
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
    std::string SelText() const { return text_.substr(selStart_, selLength_); }
    // Replaces the selection (raising Change) and puts the caret after the new text.
    void SetSelText(const std::string& text);

    Signal<> onChange;

  protected:
    void ApplyKey(int16_t keyCode, int16_t shift) override;
    void ApplyCharacter(int16_t keyAscii) override;

  private:
    void SetSelection(int32_t start, int32_t length);
    std::string text_;
    bool locked_ = false;
    int32_t maxLength_ = 0;
    bool multiLine_ = false;
    int32_t selStart_ = 0;
    int32_t selLength_ = 0;
};

}  // namespace trovane
