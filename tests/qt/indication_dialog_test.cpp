// The indication bar and its comment dialog driven through the real widgets of the control dialog,
// against the in-process demo server.

#include <string>

#include <gtest/gtest.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "core/conversions.h"
#include "indication/indication_bar.h"
#include "support/control_dialog_fixture.h"

namespace trovane::dialog {
namespace {

class IndicationDialogTest : public testing::ControlDialogTest {
  protected:
    IndicationBar& Bar() const { return *host->Panels().FindAs<IndicationBar>(kIndicationSite); }
    QWidget* BarWidget(const char* name) const { return window->ViewOf("IndicationBar")->WidgetOf(name); }
    qt::FormView* CommentWindow() const { return ViewOfDialog(Bar().CommentDialog()); }
    template <typename W>
    W* CommentWidget(const char* name) const {
        return qobject_cast<W*>(CommentWindow()->WidgetOf(name));
    }
    std::string ServerComment() { return ToString(Ask("#return ABC:PGC")); }
};

TEST_F(IndicationDialogTest, TheOperatorRewritesTheCommentInTheDialogAndTheBarShowsTheServersNewValue) {
    Open();
    auto* button = qobject_cast<QPushButton*>(BarWidget("btnIndication"));
    auto* label = qobject_cast<QLabel*>(BarWidget("lblComment"));
    ASSERT_TRUE(button && label);
    EXPECT_EQ(button->text(), "Edit comment");
    EXPECT_TRUE(label->text().startsWith("operator1, 2026-11-20 07:45:00"));
    qt::BalloonTipWindow* balloon = platform.windows->BalloonOf(Bar());
    ASSERT_TRUE(balloon && balloon->isVisible());
    const QPoint stem = balloon->StemPoint();
    window->move(window->pos() + QPoint(40, 30));
    QCoreApplication::processEvents();
    EXPECT_EQ(balloon->StemPoint(), stem + QPoint(40, 30)) << "the balloon follows the dialog";

    Click(button);
    ASSERT_TRUE(CommentWindow() && CommentWindow()->isVisible());
    auto* text = CommentWidget<QPlainTextEdit>("txtComment");
    auto* ok = CommentWidget<QPushButton>("btnOK");
    ASSERT_TRUE(text && ok);
    EXPECT_FALSE(ok->isEnabled());
    Click(CommentWidget<QPushButton>("btnRemove"));
    EXPECT_EQ(text->toPlainText(), "");
    QTest::keyClicks(text, "Gas \"OK\"");
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, "it's #2");
    EXPECT_TRUE(ok->isEnabled());
    Click(ok);
    EXPECT_TRUE(ServerComment().starts_with("operator#"));
    EXPECT_TRUE(ServerComment().ends_with("#Gas \"OK\"\nit's #2")) << ServerComment();

    window->Settle();
    EXPECT_EQ(CommentWindow(), nullptr) << "OK closed the dialog";
    EXPECT_EQ(Bar().commentText, "Gas \"OK\"\r\nit's #2");
    EXPECT_TRUE(label->text().startsWith("operator, ")) << label->text().toStdString();
    EXPECT_TRUE(label->text().endsWith("Gas \"OK\""));
}

TEST_F(IndicationDialogTest, AnOperatorWithoutAuthorisationCanNeitherEditNorRemove) {
    DialogOptions options;
    options.rights.authorized = false;
    Open(options);
    const std::string before = ServerComment();
    Click(BarWidget("btnIndication"));
    ASSERT_NE(CommentWindow(), nullptr);
    auto* text = CommentWidget<QPlainTextEdit>("txtComment");
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_FALSE(CommentWidget<QPushButton>("btnRemove")->isEnabled());
    QTest::keyClicks(text, "typed");
    EXPECT_FALSE(CommentWidget<QPushButton>("btnOK")->isEnabled()) << "nothing typed reached the text";
    Click(CommentWidget<QPushButton>("btnCancel"));
    window->Settle();
    EXPECT_EQ(CommentWindow(), nullptr);
    EXPECT_EQ(ServerComment(), before);
}

}  // namespace
}  // namespace trovane::dialog
