// The control dialog worked from the keyboard alone, as control-room operators do: every key goes
// to the focused widget, and the server's state shows what the keys did.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "core/conversions.h"
#include "indication/indication_bar.h"
#include "support/control_dialog_fixture.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout_site.h"

namespace trovane::dialog {
namespace {

class KeyboardTest : public testing::ControlDialogTest {
  protected:
    // Keys go to the active window only.
    void SetUp() override {
        Open();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->Settle();
    }

    static QWidget* Focused() { return QApplication::focusWidget(); }
    static std::string FocusedName() { return Focused() ? Focused()->objectName().toStdString() : "<none>"; }
    // One key on whatever has the focus, then what the server queued is delivered.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focused = Focused();
        ASSERT_NE(focused, nullptr);
        QTest::keyClick(focused, key, modifiers);
        window->Settle();
    }
    void Type(const char* text) {
        ASSERT_NE(Focused(), nullptr);
        QTest::keyClicks(Focused(), text);
    }
    // Tab until the focus is on `name` (within one round of the dialog); the names passed on the way.
    std::vector<std::string> TabTo(const std::string& name) {
        std::vector<std::string> passed;
        for (int i = 0; i < 60 && FocusedName() != name; ++i) {
            Press(Qt::Key_Tab);
            passed.push_back(FocusedName());
        }
        EXPECT_EQ(FocusedName(), name);
        return passed;
    }
    QTabWidget* Pages() const { return window->findChild<QTabWidget*>("tabPages"); }
    IndicationBar& Bar() const { return *host->Panels().FindAs<IndicationBar>(kIndicationSite); }
    qt::FormView* CommentWindow() const { return ViewOfDialog(Bar().CommentDialog()); }
    // Tab until `reached` holds (within one round); the names passed on the way.
    template <typename Reached>
    std::vector<std::string> TabUntil(Reached reached) {
        std::vector<std::string> passed;
        for (int i = 0; i < 60 && !reached(); ++i) {
            Press(Qt::Key_Tab);
            passed.push_back(FocusedName());
        }
        EXPECT_TRUE(reached());
        return passed;
    }
    qt::FormView* TagoutEditWindow() const {
        return ViewOfDialog(host->Panels().FindAs<Tagout>(kTagoutSite)->EditDialog());
    }
    // The edit dialog's widget of the attribute `name`.
    QWidget* TagoutField(const std::string& name) const {
        for (const Control& control : host->Panels().FindAs<Tagout>(kTagoutSite)->EditDialog()->Controls())
            if (control.DataField() == name) return TagoutEditWindow()->WidgetOf(control);
        return nullptr;
    }
    int32_t ServerFlag(const char* attribute) {
        return ToInt32(host->Server().Database().Read({"ABC", 10, attribute}));
    }
    std::string ServerComment() { return ToString(Ask("#return ABC:PGC")); }
};

// The dialog's round: the indication bar, the page's panels in their designed order (the hidden
// single-signal box and the buttons with nothing to do are passed by), the Close button, and round
// again. Space ticks a blocking, which lets Tab reach Apply; Enter applies it to the server.
TEST_F(KeyboardTest, TabWalksTheBlockingPanelAndTheKeysApplyABlocking) {
    TabTo("btnClose");
    EXPECT_EQ(TabTo("Check1"),
              (std::vector<std::string>{"btnIndication", "btnShowComment", "qt_tabwidget_tabbar", "ListView1",
                                        "btnAck", "btnRefresh", "Check1"}))
        << "disabled buttons are passed by";
    Press(Qt::Key_Space);
    ASSERT_EQ(qobject_cast<QCheckBox*>(Focused())->checkState(), Qt::Checked);
    EXPECT_EQ(ServerFlag("UB"), 0) << "nothing is applied yet";
    EXPECT_EQ(TabTo("btnOK"),
              (std::vector<std::string>{"Check2", "Check3", "Check4", "Check5", "Check6", "btnOK"}));
    Press(Qt::Key_Return);
    EXPECT_EQ(ServerFlag("UB"), 1);
    EXPECT_FALSE(Focused() && Focused()->objectName() == "btnOK" && Focused()->isEnabled());
}

// The comment dialog opens from the bar's button with the space bar and starts in its text; Enter
// there breaks the line, Tab reaches OK, and Enter writes the comment. Opened again, Escape cancels
// and the server keeps the comment.
TEST_F(KeyboardTest, TheCommentDialogIsWrittenWithEnterAndCancelledWithEscape) {
    TabTo("btnIndication");
    Press(Qt::Key_Space);
    ASSERT_NE(CommentWindow(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(CommentWindow()));
    EXPECT_EQ(FocusedName(), "txtComment");
    TabTo("btnRemove");  // OK stays disabled until the text changes
    Press(Qt::Key_Space);
    TabTo("txtComment");
    Type("Valve");
    Press(Qt::Key_Return);
    Type("stuck");
    EXPECT_NE(CommentWindow(), nullptr) << "Enter in the text is a line break";
    TabTo("btnOK");
    Press(Qt::Key_Return);
    EXPECT_TRUE(ServerComment().starts_with("operator#")) << ServerComment();
    EXPECT_TRUE(ServerComment().ends_with("#Valve\nstuck")) << ServerComment();
    EXPECT_EQ(CommentWindow(), nullptr);

    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const std::string written = ServerComment();
    TabTo("btnIndication");
    Press(Qt::Key_Space);
    ASSERT_NE(CommentWindow(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(CommentWindow()));
    Type(" again");
    Press(Qt::Key_Escape);
    EXPECT_EQ(CommentWindow(), nullptr);
    EXPECT_EQ(ServerComment(), written);
}

// The tagout edit dialog opens from the keyboard with the focus on its tab bar; Tab visits the shown
// tab's fields in the order they were laid out, then OK and Cancel. Ctrl+Tab from a field and the tab
// bar's arrow keys turn to the second tab, with the comment, where Enter breaks the line instead of
// pressing OK;
// Escape cancels and nothing is added.
TEST_F(KeyboardTest, TheTagoutEditDialogIsWalkedWithTabAndTheCommentTakesLineBreaks) {
    window->ShowPage(kTagoutPage);
    window->Settle();
    TabTo("btnAdd");
    Press(Qt::Key_Space);
    ASSERT_NE(TagoutEditWindow(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(TagoutEditWindow()));
    QWidget* tabBar = Focused();
    ASSERT_NE(tabBar, nullptr);
    EXPECT_TRUE(TagoutEditWindow()->WidgetOf("TabStrip1")->isAncestorOf(tabBar));

    std::vector<QWidget*> designed;
    const TagoutEditDialog& dialog = *host->Panels().FindAs<Tagout>(kTagoutSite)->EditDialog();
    for (const Control& control : dialog.Controls()) {
        QWidget* widget = TagoutEditWindow()->WidgetOf(control);
        if (!control.DataField().empty() && widget->isVisible() && widget->isEnabled())
            designed.push_back(widget);
    }
    ASSERT_GE(designed.size(), 3u);
    designed.push_back(TagoutEditWindow()->WidgetOf("btnOK"));
    designed.push_back(TagoutEditWindow()->WidgetOf("btnCancel"));
    designed.push_back(tabBar);
    std::vector<QWidget*> walked;
    for (size_t i = 0; i < designed.size(); ++i) {
        Press(Qt::Key_Tab);
        walked.push_back(Focused());
    }
    EXPECT_EQ(walked, designed);

    Press(Qt::Key_Tab);
    QWidget* firstField = designed.front();
    ASSERT_EQ(Focused(), firstField);
    Press(Qt::Key_Tab, Qt::ControlModifier);  // from a field, which is not inside the strip's widget
    QWidget* comment = TagoutField("COMMENT");
    ASSERT_NE(comment, nullptr);
    ASSERT_TRUE(comment->isVisible());
    EXPECT_FALSE(firstField->isVisible());
    Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(firstField->isVisible());
    TabUntil([&] { return Focused() == tabBar; });
    Press(Qt::Key_Right);  // the tab bar's arrow turns to the second tab too
    ASSERT_TRUE(comment->isVisible());
    TabUntil([&] { return Focused() == comment; });
    Type("Line one");
    Press(Qt::Key_Return);
    Type("line two");
    ASSERT_NE(TagoutEditWindow(), nullptr) << "Enter in the comment did not press OK";
    EXPECT_EQ(qobject_cast<QPlainTextEdit*>(comment)->toPlainText(), "Line one\nline two");
    Press(Qt::Key_Escape);
    EXPECT_EQ(TagoutEditWindow(), nullptr);
    EXPECT_EQ(Breaker().tagouts.active.size(), 1u);
}

// The error dialog's one button is both default and cancel: Enter and Escape each close it.
TEST_F(KeyboardTest, TheErrorDialogClosesWithEnterOrEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        ShowError("Command failed");
        qt::FormView* error = window->ErrorDialogView();
        ASSERT_NE(error, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(error));
        Press(key);
        EXPECT_FALSE(error->isVisible()) << key;
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
}

// Ctrl+Tab and Ctrl+Shift+Tab turn the pages from wherever the focus is on a page (a list view
// included) and from outside the pages, wrapping at either end.
TEST_F(KeyboardTest, CtrlTabTurnsThePagesFromEveryPage) {
    QTabWidget* pages = Pages();
    ASSERT_NE(pages, nullptr);
    const int count = pages->count();
    ASSERT_GE(count, 3);
    for (int page = 0; page < count; ++page) {
        pages->setCurrentIndex(page);
        window->Settle();
        QWidget* first = pages->widget(page)->nextInFocusChain();
        while (first && !(first->isVisible() && first->isEnabled() && (first->focusPolicy() & Qt::TabFocus)))
            first = first->nextInFocusChain();
        ASSERT_NE(first, nullptr);
        first->setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(pages->widget(page)->isAncestorOf(Focused())) << page;
        Press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(pages->currentIndex(), (page + 1) % count)
            << "from " << FocusedName() << " on page " << page;
        Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(pages->currentIndex(), page);
    }
    pages->setCurrentIndex(0);
    window->findChild<QPushButton*>("btnClose")->setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages->currentIndex(), 1) << "from the Close button";
}

// Whatever a screen reader lands on has a name: every widget of every panel on every page, and of
// the comment dialog.
TEST_F(KeyboardTest, EveryControlOnEveryPageHasAnAccessibleName) {
    std::vector<qt::FormView*> views;
    for (QWidget* widget : window->findChildren<QWidget*>())
        if (auto* view = dynamic_cast<qt::FormView*>(widget)) views.push_back(view);
    ASSERT_GE(views.size(), 5u);
    Bar().OpenCommentDialog();
    ASSERT_NE(CommentWindow(), nullptr);
    views.push_back(CommentWindow());
    for (const qt::FormView* view : views) {
        for (const Control& control : view->Model().Controls()) {
            const QWidget* widget = view->WidgetOf(control);
            if (!widget) continue;  // a timer has none
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << view->Model().Name() << "." << control.Name();
        }
    }
    EXPECT_EQ(window->ViewOf("IndicationBar")->WidgetOf("btnIndication")->accessibleName(), "Edit comment");
}

}  // namespace
}  // namespace trovane::dialog
