#pragma once
// Binding of the text box: a line edit, or a plain-text edit for a multi-line box.
//
// Typing goes through the model: every character the operator types becomes TypeCharacter, whose
// KeyPress handlers may discard it, and the editing keys (backspace, delete, the caret keys) become
// the model's own key handling; the widget never sees them. Everything else that edits the text in
// the widget (paste, cut, undo and redo, drag and drop, an input method's composed text, the
// context menu) is taken back as the operator's entered text: the binding works out what the edit
// replaced, has the model replace the same characters (EnterText, which raises Change), and then
// shows the model's text, so a Change handler that refuses the edit wins. A mouse click or drag
// that moves the caret is told to the model. The model counts characters, the widget UTF-16 units;
// the binding translates.

#include "qt/control_binding.h"
#include "core/api_begin.h"

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
    bool TakesKey(int16_t keyCode, char32_t character) const override;
    void AfterInput() override;

  private:
    bool JoinsLineBreaks() const { return block != nullptr; }
    QString WidgetText() const;
    void ShowText();
    void ShowSelection();
    void TellSelection(int start, int end);
    void TakeWidgetEdit();

    QLineEdit* line = nullptr;
    QPlainTextEdit* block = nullptr;
};

}  // namespace trovane::qt

#include "core/api_end.h"
