#include "qt/text_box_binding.h"

#include <algorithm>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "platform/controls/key_codes.h"
#include "platform/controls/text_box.h"
#include "qt/text.h"

namespace trovane::qt {

namespace {

TextBox& Box(Control& control) {
    return static_cast<TextBox&>(control);
}

// One edit of the shown text: `removed` code units at `start` replaced by `inserted`.
struct Edit {
    int start = 0;
    int removed = 0;
    QString inserted;
};

// The edit that turned `before` into `after`. Paste, cut and an input method replace the selection
// [selectionStart, selectionEnd), so that is tried first; a drop elsewhere or an undo is the changed
// middle between the longest unchanged beginning and end, never splitting a surrogate pair.
Edit EditBetween(const QString& before, const QString& after, int selectionStart, int selectionEnd) {
    const int tail = static_cast<int>(before.size()) - selectionEnd;
    const int insertedLength = static_cast<int>(after.size()) - selectionStart - tail;
    if (insertedLength >= 0 &&
        QStringView(after).left(selectionStart) == QStringView(before).left(selectionStart) &&
        QStringView(after).right(tail) == QStringView(before).right(tail))
        return {selectionStart, selectionEnd - selectionStart, after.mid(selectionStart, insertedLength)};
    const int shorter = static_cast<int>(std::min(before.size(), after.size()));
    int prefix = 0;
    while (prefix < shorter && before[prefix] == after[prefix]) ++prefix;
    if (prefix > 0 && before[prefix - 1].isHighSurrogate()) --prefix;
    int suffix = 0;
    while (suffix < shorter - prefix &&
           before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;
    if (suffix > 0 && before[before.size() - suffix].isLowSurrogate()) --suffix;
    return {prefix, static_cast<int>(before.size()) - prefix - suffix,
            after.mid(prefix, after.size() - prefix - suffix)};
}

}  // namespace

QWidget* TextBoxBinding::CreateView(QWidget* parent) {
    if (Box(Model()).MultiLine()) {
        block = new QPlainTextEdit(parent);
        block->setTabChangesFocus(true);
        WatchInput(block->viewport());
        QObject::connect(block, &QPlainTextEdit::cursorPositionChanged, this, [this] {
            const QTextCursor cursor = block->textCursor();
            TellSelection(cursor.selectionStart(), cursor.selectionEnd());
        });
        QObject::connect(block, &QPlainTextEdit::textChanged, this, [this] { TakeWidgetEdit(); });
        return block;
    }
    line = new QLineEdit(parent);
    QObject::connect(line, &QLineEdit::cursorPositionChanged, this, [this] {
        const int start = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
        TellSelection(start, line->hasSelectedText() ? line->selectionEnd() : start);
    });
    QObject::connect(line, &QLineEdit::textEdited, this, [this] { TakeWidgetEdit(); });
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
// close dialogs as the widget's surroundings expect, and so does Enter in a single-line box (a
// KeyPress handler that discards it keeps it, see HandleKey), which presses the default button.
bool TextBoxBinding::TakesKey(int16_t keyCode, char32_t character) const {
    if (character == keys::kEnter && !Box(Model()).MultiLine()) return false;
    if (character != 0 && character != keys::kEscape) return true;
    return keyCode == keys::kBackspace || keyCode == keys::kDelete ||
           (keyCode >= keys::kPageUp && keyCode <= keys::kDown);
}

void TextBoxBinding::AfterInput() {
    ShowText();
    ShowSelection();
}

QString TextBoxBinding::WidgetText() const {
    if (line) return line->text();
    if (block) return block->toPlainText();
    return {};
}

// Only a text that differs is set: setting it anew would cost the widget its undo history.
void TextBoxBinding::ShowText() {
    const QString text = ShownText(Box(Model()).Text(), JoinsLineBreaks());
    if (WidgetText() == text) return;
    if (line) line->setText(text);
    if (block) block->setPlainText(text);
}

void TextBoxBinding::ShowSelection() {
    const TextBox& box = Box(Model());
    const int start = ShownIndex(box.Text(), box.SelStart(), JoinsLineBreaks());
    const int end = ShownIndex(box.Text(), box.SelStart() + box.SelLength(), JoinsLineBreaks());
    if (line) line->setSelection(start, end - start);
    if (block) {
        QTextCursor cursor = block->textCursor();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        block->setTextCursor(cursor);
    }
}

// While the widget is in the middle of an edit of its own, its caret belongs to a text the model
// does not have yet; the edit itself puts the caret in place.
void TextBoxBinding::TellSelection(int start, int end) {
    if (IsMirroring()) return;
    const std::string& text = Box(Model()).Text();
    if (WidgetText() != ShownText(text, JoinsLineBreaks())) return;
    const int32_t from = ModelPosition(text, start, JoinsLineBreaks());
    const int32_t to = ModelPosition(text, end, JoinsLineBreaks());
    Input([&] {
        TextBox& box = Box(Model());
        box.SetSelStart(from);
        box.SetSelLength(to - from);
    });
}

void TextBoxBinding::TakeWidgetEdit() {
    if (IsMirroring()) return;
    TextBox& box = Box(Model());
    const std::string text = box.Text();
    const bool join = JoinsLineBreaks();
    const QString before = ShownText(text, join);
    const QString after = WidgetText();
    if (after == before) return;
    const int selectionStart = ShownIndex(text, box.SelStart(), join);
    const int selectionEnd = ShownIndex(text, box.SelStart() + box.SelLength(), join);
    const Edit edit = EditBetween(before, after, selectionStart, selectionEnd);
    const int32_t from = ModelPosition(text, edit.start, join);
    const int32_t to = ModelPosition(text, edit.start + edit.removed, join);
    Input([&] {
        box.SetSelStart(from);
        box.SetSelLength(to - from);
        box.EnterText(ModelText(edit.inserted, join));
    });
}

}  // namespace trovane::qt
