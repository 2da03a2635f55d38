#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>

#include "platform/controls/combo_box.h"
#include "platform/controls/text_box.h"
#include "qt/form_view.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

// Text the operator types with a keyboard layout that has the characters: one key press per
// character, carrying the character (two UTF-16 units for one beyond U+FFFF) and no key of its own.
void TypeText(QWidget* widget, const QString& text) {
    for (int i = 0; i < text.size(); ++i) {
        const int units = text.at(i).isHighSurrogate() ? 2 : 1;
        const QString character = text.mid(i, units);
        i += units - 1;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, character);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, character);
        QApplication::sendEvent(widget, &press);
        QApplication::sendEvent(widget, &release);
    }
}

class TextBoxBindingTest : public ::testing::Test {
  protected:
    TextBoxBindingTest() {
        trovane::testing::TestApplication();
        form->Move(0, 0, 6000, 4500);
        box.Move(0, 0, 3000, 300);
        box.onChange.Connect([this] { changes.push_back(box.Text()); });
        box.onKeyPress.Connect([this](int32_t& code) { keyPresses.push_back(code); });
    }
    QLineEdit* Edit() {
        if (!view) {
            view = std::make_unique<FormView>(form, TwipsScale{15, 15});
            view->show();
        }
        auto* edit = qobject_cast<QLineEdit*>(view->WidgetOf("txtValue"));
        edit->setFocus();
        return edit;
    }
    // The model holds `text` and the line edit shows it.
    void ExpectText(const char* text) {
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(qobject_cast<QLineEdit*>(view->WidgetOf("txtValue"))->text(), QString::fromUtf8(text));
    }

    std::shared_ptr<Form> form = std::make_shared<Form>("frmTest");
    TextBox& box = form->Add<TextBox>("txtValue");
    std::unique_ptr<FormView> view;
    std::vector<std::string> changes;  // the text each Change saw
    std::vector<int32_t> keyPresses;
};

TEST_F(TextBoxBindingTest, TypedUnicodeIsStoredAsUtf8WithClassicKeyPressCodes) {
    QLineEdit* edit = Edit();
    TypeText(edit, QStringLiteral(u"Prüfung"));
    EXPECT_EQ(keyPresses, (std::vector<int32_t>{'P', 'r', 252, 'f', 'u', 'n', 'g'}));
    EXPECT_EQ(box.SelStart(), 7);
    box.SetText("");
    TypeText(edit, QStringLiteral(u"Проверка 𝄞"));
    ExpectText("Проверка 𝄞");
    EXPECT_EQ(keyPresses.back(), 0x1D11E);
    EXPECT_EQ(box.SelStart(), 10) << "characters, not UTF-16 units";
    EXPECT_EQ(edit->cursorPosition(), 11);
}

// The caret and the selection are told to the model in characters, and shown in UTF-16 units.
TEST_F(TextBoxBindingTest, CaretSelectionAndMaxLengthCountCharacters) {
    box.SetText("𝄞Prüfung");
    QLineEdit* edit = Edit();
    edit->setSelection(2, 4);  // "Prü" after the two units of the clef
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelText(), "Prüf");
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "𝄞ung");
    box.SetSelStart(4);
    EXPECT_EQ(edit->cursorPosition(), 5);
    box.SetMaxLength(7);
    TypeText(edit, QStringLiteral(u"ötzlich"));
    ExpectText("𝄞ungötz");
}

// Pasted text reaches the model without KeyPress; a digits-only field sets a pasted word back, and
// what does not fit a full or locked box is refused; the widget goes on showing the model.
TEST_F(TextBoxBindingTest, PasteGoesThroughTheModelWithoutKeyPressAndMayBeRolledBackOrRefused) {
    QLineEdit* edit = Edit();
    QApplication::clipboard()->setText(QStringLiteral(u"Prüfung"));
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    ExpectText("Prüfung");
    EXPECT_EQ(box.SelStart(), 7);
    EXPECT_EQ(changes, (std::vector<std::string>{"Prüfung"}));
    EXPECT_TRUE(keyPresses.empty());
    std::string accepted = "12";
    box.SetText(accepted);
    box.onChange.Connect([&] {
        if (box.Text().find_first_not_of("0123456789") != std::string::npos)
            box.SetText(accepted);
        else
            accepted = box.Text();
    });
    edit->setCursorPosition(1);
    edit->paste();
    ExpectText("12");
    QApplication::clipboard()->setText("34");
    edit->setCursorPosition(1);
    edit->paste();
    ExpectText("1342");
    EXPECT_EQ(box.SelStart(), 3);
    EXPECT_EQ(edit->cursorPosition(), 3);
    box.SetMaxLength(5);
    QApplication::clipboard()->setText("567");
    edit->paste();
    ExpectText("13452");  // what fits of the pasted text
    edit->insert("6");
    ExpectText("13452");
    box.SetLocked(true);
    edit->setReadOnly(false);  // even if the widget were to edit, the model refuses
    edit->selectAll();
    edit->insert("9");
    ExpectText("13452");
}

TEST_F(TextBoxBindingTest, CutUndoInputMethodAndDropChangeTheModel) {
    box.SetText("Prüfung");
    QLineEdit* edit = Edit();
    edit->setSelection(2, 3);
    QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral(u"üfu"));
    QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.SelStart(), 5) << "the undone cut's text is back before the caret";

    edit->setCursorPosition(7);
    QInputMethodEvent composing(QStringLiteral(u"Пр"), {});
    QApplication::sendEvent(edit, &composing);
    EXPECT_EQ(box.Text(), "Prüfung") << "text being composed is not entered yet";
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral(u" Проверка"));
    QApplication::sendEvent(edit, &commit);

    QMimeData dropped;
    dropped.setText("1");
    const QPoint start(1, edit->height() / 2);
    QDragEnterEvent enter(start, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(start, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(start, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* event : std::initializer_list<QEvent*>{&enter, &move, &drop})
        QApplication::sendEvent(edit, event);
    ExpectText("1Prüfung Проверка");
    EXPECT_EQ(changes, (std::vector<std::string>{"Prüfung", "Prng", "Prüfung", "Prüfung Проверка",
                                                 "1Prüfung Проверка"}));
    EXPECT_TRUE(keyPresses.empty());
}

// A multi-line editor shows the model's line breaks "\r\n" as "\n"; positions count both characters.
TEST_F(TextBoxBindingTest, MultiLineBoxKeepsClassicLineBreaks) {
    box.SetMultiLine(true);
    box.SetText("Prüfung");
    box.Move(0, 0, 3000, 1500);
    view = std::make_unique<FormView>(form, TwipsScale{15, 15});
    view->show();
    auto* editor = qobject_cast<QPlainTextEdit*>(view->WidgetOf("txtValue"));
    ASSERT_NE(editor, nullptr);
    editor->setFocus();
    QTextCursor cursor = editor->textCursor();
    cursor.movePosition(QTextCursor::End);
    editor->setTextCursor(cursor);
    EXPECT_EQ(box.SelStart(), 7);
    QTest::keyClick(editor, Qt::Key_Return);
    TypeText(editor, QStringLiteral(u"Проверка"));
    EXPECT_EQ(box.Text(), "Prüfung\r\nПроверка");
    EXPECT_EQ(editor->toPlainText(), QStringLiteral(u"Prüfung\nПроверка"));
    EXPECT_EQ(box.SelStart(), 17);
    QApplication::clipboard()->setText("\nEnde");
    editor->paste();
    EXPECT_EQ(box.Text(), "Prüfung\r\nПроверка\r\nEnde");
    EXPECT_EQ(box.SelStart(), 23);
    const std::string accepted = box.Text();
    box.onChange.Connect([&] {
        if (box.Text().find('!') != std::string::npos) box.SetText(accepted);
    });
    QApplication::clipboard()->setText("!");
    editor->paste();
    EXPECT_EQ(box.Text(), "Prüfung\r\nПроверка\r\nEnde");
    EXPECT_EQ(editor->toPlainText(), QStringLiteral(u"Prüfung\nПроверка\nEnde"));
}

TEST_F(TextBoxBindingTest, EditableComboTextGoesThroughTheModel) {
    auto& combo = form->Add<ComboBox>("cboValue");
    combo.Move(0, 600, 2000, 300);
    combo.AddItem("Prüfung");
    std::vector<std::string> comboChanges;
    combo.onChange.Connect([&] {
        comboChanges.push_back(combo.Text());
        if (combo.Text().find('!') != std::string::npos) combo.SetText("Prüfung");
    });
    combo.onKeyPress.Connect([](int32_t& code) {
        if (code == '#') code = 0;
    });
    Edit();
    auto* widget = qobject_cast<QComboBox*>(view->WidgetOf("cboValue"));
    ASSERT_NE(widget->lineEdit(), nullptr);
    widget->setFocus();
    TypeText(widget, QStringLiteral(u"Про#"));
    EXPECT_EQ(combo.Text(), "Про");
    EXPECT_EQ(widget->currentText(), QStringLiteral(u"Про"));
    QApplication::clipboard()->setText("!");
    widget->lineEdit()->paste();
    EXPECT_EQ(combo.Text(), "Prüfung");
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(widget->currentText(), QStringLiteral(u"Prüfung"));
    EXPECT_EQ(comboChanges, (std::vector<std::string>{"П", "Пр", "Про", "Про!", "Prüfung"}));
}

}  // namespace
}  // namespace trovane::qt
