#include "qt/text_box_binding.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "platform/controls/text_box.h"
#include "qt/text.h"

namespace trovane::qt {

namespace {
TextBox& Box(Control& control) {
    return static_cast<TextBox&>(control);
}
}  // namespace

QWidget* TextBoxBinding::CreateView(QWidget* parent) {
    if (Box(Model()).MultiLine()) {
        block = new QPlainTextEdit(parent);
        block->setTabChangesFocus(true);
        WatchInput(block->viewport());
        QObject::connect(block, &QPlainTextEdit::cursorPositionChanged, this, [this] {
            const QTextCursor cursor = block->textCursor();
            TellSelection(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
        });
        return block;
    }
    line = new QLineEdit(parent);
    QObject::connect(line, &QLineEdit::cursorPositionChanged, this, [this] {
        const int start = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
        TellSelection(start, line->hasSelectedText() ? static_cast<int>(line->selectedText().size()) : 0);
    });
    return line;
}

void TextBoxBinding::MirrorOwn(ControlProperty property) {
    switch (property) {
        case ControlProperty::Text:
            ShowText();
            ShowSelection();
            break;
        case ControlProperty::Selection:
            ShowSelection();
            break;
        case ControlProperty::Locked:
            if (line) line->setReadOnly(Box(Model()).Locked());
            if (block) block->setReadOnly(Box(Model()).Locked());
            break;
        default:
            ControlBinding::MirrorOwn(property);
            break;
    }
}

void TextBoxBinding::MirrorAll() {
    ControlBinding::MirrorAll();
    MirrorOwn(ControlProperty::Locked);
    MirrorOwn(ControlProperty::Text);
}

// Every typed character and every editing key is the model's; Tab and Escape still move focus and
// close dialogs as the widget's surroundings expect.
bool TextBoxBinding::TakesKey(int16_t keyCode, int16_t character) const {
    if (character != 0 && character != 27) return true;
    return keyCode == 8 || keyCode == 46 || (keyCode >= 33 && keyCode <= 40);
}

void TextBoxBinding::AfterInput() {
    ShowText();
    ShowSelection();
}

void TextBoxBinding::ShowText() {
    const QString text = ToQString(Box(Model()).Text());
    if (line && line->text() != text) line->setText(text);
    if (block && block->toPlainText() != text) block->setPlainText(text);
}

void TextBoxBinding::ShowSelection() {
    const TextBox& box = Box(Model());
    if (line) line->setSelection(box.SelStart(), box.SelLength());
    if (block) {
        QTextCursor cursor = block->textCursor();
        cursor.setPosition(box.SelStart());
        cursor.setPosition(box.SelStart() + box.SelLength(), QTextCursor::KeepAnchor);
        block->setTextCursor(cursor);
    }
}

void TextBoxBinding::TellSelection(int start, int length) {
    if (IsMirroring()) return;
    Input([&] {
        TextBox& box = Box(Model());
        box.SetSelStart(start);
        box.SetSelLength(length);
    });
}

}  // namespace trovane::qt
