// A form on screen driven by the keyboard alone: the Tab key's order, Enter and Escape, access keys
// and the names a screen reader announces.

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "platform/controls/controls.h"
#include "qt/form_view.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

class FormViewKeysTest : public ::testing::Test {
  protected:
    FormViewKeysTest() {
        trovane::testing::TestApplication();
        form->Move(0, 0, 6000, 4500);
    }
    FormView& View() {
        if (!view) {
            view = std::make_unique<FormView>(form, TwipsScale{15, 15});
            view->show();
            view->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
        }
        return *view;
    }
    template <typename T>
    T& Add(const char* name, int32_t top) {
        T& control = form->Add<T>(name);
        control.Move(120, top, 2000, 300);
        return control;
    }
    void Focus(const char* name) {
        QWidget* widget = View().WidgetOf(name);
        ASSERT_NE(widget, nullptr) << name;
        widget->setFocus(Qt::OtherFocusReason);
    }
    static std::string Focused() {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : "<none>";
    }
    static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* widget = QApplication::focusWidget();
        ASSERT_NE(widget, nullptr);
        QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
    }
    // Where the focus goes on each of `presses` presses of Tab (or Shift+Tab).
    static std::vector<std::string> Walk(int presses, bool back = false) {
        std::vector<std::string> visited;
        for (int i = 0; i < presses; ++i) {
            Press(back ? Qt::Key_Backtab : Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
            visited.push_back(Focused());
        }
        return visited;
    }

    std::shared_ptr<Form> form = std::make_shared<Form>("frmKeys");
    std::unique_ptr<FormView> view;
};

// The form numbers its controls out of their order of creation; Tab follows the numbers through a
// frame, passes by what is disabled, hidden or off the tab stops, and takes in a control added and
// numbered after the view was made. Shift+Tab goes back the same way.
TEST_F(FormViewKeysTest, TabFollowsTheTabIndexAndSkipsWhatCannotTakeTheFocus) {
    auto& cancel = Add<CommandButton>("btnCancel", 3000);
    auto& ok = Add<CommandButton>("btnOK", 2500);
    auto& frame = Add<Frame>("fraOptions", 500);
    frame.SetHeight(1500);
    auto& first = Add<CheckBox>("chkFirst", 200);
    first.SetContainer(&frame);
    auto& second = Add<CheckBox>("chkSecond", 600);
    second.SetContainer(&frame);
    auto& name = Add<TextBox>("txtName", 100);
    auto& skipped = Add<TextBox>("txtDisabled", 2100);
    auto& hidden = Add<CommandButton>("btnHidden", 3500);
    auto& noStop = Add<CheckBox>("chkNoStop", 3900);
    const std::pair<Control*, int16_t> numbers[] = {{&name, 0},   {&second, 1}, {&first, 2}, {&skipped, 3},
                                                    {&noStop, 4}, {&hidden, 5}, {&ok, 6},    {&cancel, 7}};
    for (auto [control, number] : numbers) control->SetTabIndex(number);
    skipped.SetEnabled(false);
    hidden.SetVisible(false);
    noStop.SetTabStop(false);

    Focus("txtName");
    EXPECT_EQ(Walk(5), (std::vector<std::string>{"chkSecond", "chkFirst", "btnOK", "btnCancel", "txtName"}));
    EXPECT_EQ(Walk(2, true), (std::vector<std::string>{"btnCancel", "btnOK"}));

    noStop.SetTabStop(true);
    auto& late = Add<TextBox>("txtLate", 4200);
    late.SetTabIndex(0);  // after the name, which has the same number and was made first
    Focus("txtName");
    EXPECT_EQ(Walk(4), (std::vector<std::string>{"txtLate", "chkSecond", "chkFirst", "chkNoStop"}));
    noStop.SetTabStop(false);
    QTest::mouseClick(View().WidgetOf("chkNoStop"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(Focused(), "chkNoStop") << "a click still gives it the focus";
}

// Enter presses the default button and Escape the cancel button from wherever the focus is, except
// that a multi-line box takes Enter as a line break, a KeyPress handler that discards Enter keeps it
// from the default button, and a focused button answers Enter itself.
TEST_F(FormViewKeysTest, EnterAndEscapePressTheDefaultAndCancelButtonsUnlessTheControlTakesThem) {
    auto& line = Add<TextBox>("txtLine", 100);
    auto& block = Add<TextBox>("txtBlock", 500);
    block.SetMultiLine(true);
    block.SetHeight(900);
    Add<CheckBox>("chkOption", 1500);
    auto& vetted = Add<TextBox>("txtVetted", 1900);
    auto& ok = Add<CommandButton>("btnOK", 2500);
    auto& cancel = Add<CommandButton>("btnCancel", 3000);
    ok.SetDefault(true);
    cancel.SetCancel(true);
    std::vector<std::string> pressed;
    ok.onClick.Connect([&] { pressed.push_back("ok"); });
    cancel.onClick.Connect([&] { pressed.push_back("cancel"); });
    int vettedEnters = 0;
    vetted.onKeyPress.Connect([&](int32_t& code) {
        if (code != 13) return;
        ++vettedEnters;
        code = 0;
    });

    struct Case {
        const char* focus;
        Qt::Key key;
        std::vector<std::string> pressed;
    };
    const Case cases[] = {
        {"txtLine", Qt::Key_Return, {"ok"}},       {"txtLine", Qt::Key_Escape, {"cancel"}},
        {"txtBlock", Qt::Key_Return, {}},          {"txtBlock", Qt::Key_Escape, {"cancel"}},
        {"chkOption", Qt::Key_Enter, {"ok"}},      {"txtVetted", Qt::Key_Return, {}},
        {"btnCancel", Qt::Key_Return, {"cancel"}}, {"btnOK", Qt::Key_Escape, {"cancel"}},
    };
    View();
    line.SetText("abc");
    for (const Case& c : cases) {
        pressed.clear();
        Focus(c.focus);
        Press(c.key);
        EXPECT_EQ(pressed, c.pressed) << c.focus << " key " << c.key;
    }
    EXPECT_EQ(block.Text(), "\r\n") << "the multi-line box took its Enter as a line break";
    EXPECT_EQ(line.Text(), "abc");
    EXPECT_EQ(vettedEnters, 1);
}

// Captions name their widgets without the access key's marker, a box is named by the label before it
// and a list by its own name; names follow the captions; Alt with the access key presses the button,
// and a label's access key moves to the control after it.
TEST_F(FormViewKeysTest, WidgetsCarryAccessibleNamesAndAccessKeysPressTheirButtons) {
    auto& label = Add<Label>("lblName", 100);
    label.SetCaption("Object &name");
    Add<TextBox>("txtName", 500);
    Add<ListView>("ListView1", 900).SetHeight(1000);
    auto& apply = Add<CommandButton>("btnApply", 2500);
    apply.SetCaption("&Apply");
    int applied = 0;
    apply.onClick.Connect([&] { ++applied; });
    auto nameOf = [&](const char* control) {
        return View().WidgetOf(control)->accessibleName().toStdString();
    };
    EXPECT_EQ(nameOf("btnApply"), "Apply");
    EXPECT_EQ(nameOf("txtName"), "Object name");
    EXPECT_EQ(nameOf("lblName"), "Object name");
    EXPECT_EQ(nameOf("ListView1"), "ListView1");
    label.SetCaption("Signal");
    EXPECT_EQ(nameOf("txtName"), "Signal");

    Focus("txtName");
    Press(Qt::Key_A, Qt::AltModifier);
    // Shortcuts are delivered from the event loop; QTRY's failure would go unseen by GoogleTest.
    for (int wait = 0; wait < 50 && applied == 0; ++wait) QTest::qWait(20);
    EXPECT_EQ(applied, 1);
    label.SetCaption("Object &name");
    Focus("btnApply");
    Press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(Focused(), "txtName") << "the label's access key goes to the box after it";
}

}  // namespace
}  // namespace trovane::qt
