#pragma once
// Binding of the text box: a line edit, or a plain-text edit for a multi-line box.
//
// Typing goes through the model: every character the operator types becomes TypeCharacter, whose
// KeyPress handlers may discard it, and the editing keys (backspace, delete, the caret keys) become
// the model's own key handling. The widget never edits by itself; it shows the model's text and
// selection after each key. A mouse click or drag that moves the caret is told to the model.

#include "qt/control_binding.h"

class QLineEdit;
class QPlainTextEdit;

namespace trovane::qt {

class TextBoxBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
    bool TakesKey(int16_t keyCode, int16_t character) const override;
    void AfterInput() override;

  private:
    void ShowText();
    void ShowSelection();
    void TellSelection(int start, int length);

    QLineEdit* line = nullptr;
    QPlainTextEdit* block = nullptr;
};

}  // namespace trovane::qt
