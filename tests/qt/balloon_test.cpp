// Balloon tips and control rectangles in the Qt window system.

#include <memory>
#include <tuple>

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>

#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "qt/qt_platform.h"
#include "qt/twips.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

class QtBalloonTest : public ::testing::Test {
  protected:
    QtBalloonTest() { trovane::testing::TestApplication(); }

    static QRect Work() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    QtPlatform platform = MakeQtPlatform();
    QtWindowSystem& windows = *platform.windows;
    std::shared_ptr<Form> bar = std::make_shared<Form>("IndicationBar");
    std::shared_ptr<Form> other = std::make_shared<Form>("OtherPanel");
};

TEST_F(QtBalloonTest, ShownAtTheTargetItStaysOpenFollowsItAndIsReplacedAndHidden) {
    const QRect work = Work();
    const ScreenRect button{work.left() + 100, work.top() + 100, work.left() + 180, work.top() + 125};
    const int32_t handle =
        windows.ShowBalloon(*bar, button, {"Comment by op", BalloonTip::kInfoIcon, "Check"});
    QPointer<BalloonTipWindow> balloon = windows.BalloonOf(*bar);
    ASSERT_FALSE(balloon.isNull());
    EXPECT_EQ(windows.WindowOf(handle), balloon);
    EXPECT_TRUE(balloon->isVisible());
    EXPECT_EQ(balloon->windowType(), Qt::ToolTip);
    EXPECT_TRUE(balloon->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(std::make_tuple(balloon->Title(), balloon->Text(), balloon->Icon(), balloon->OpensAbove()),
              std::make_tuple(QString("Comment by op"), QString("Check"), 1, false));
    EXPECT_EQ(balloon->StemPoint(), QPoint(work.left() + 139, work.top() + 125));

    // Qt's own tool tips close on the next mouse move; a balloon does not.
    QWidget elsewhere;
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&elsewhere, &move);
    QCoreApplication::processEvents();
    EXPECT_TRUE(balloon->isVisible());

    windows.MoveBalloon(*bar, {button.left + 50, button.top + 20, button.right + 50, button.bottom + 20});
    EXPECT_EQ(balloon->StemPoint(), QPoint(work.left() + 189, work.top() + 145));

    windows.ShowBalloon(*bar, button, {"Again", BalloonTip::kErrorIcon, ""});
    EXPECT_TRUE(balloon.isNull()) << "one balloon per form: the new one replaces the old";
    QPointer<BalloonTipWindow> replacement = windows.BalloonOf(*bar);
    windows.ShowBalloon(*other, button, {"Other", BalloonTip::kNoIcon, "x"});
    windows.HideBalloon(*bar);
    EXPECT_TRUE(replacement.isNull());
    EXPECT_EQ(windows.BalloonOf(*bar), nullptr);
    EXPECT_TRUE(windows.BalloonOf(*other) && windows.BalloonOf(*other)->isVisible());
}

TEST_F(QtBalloonTest, WithoutRoomBelowItOpensAboveAndStaysInsideTheWorkArea) {
    const QRect work = Work();
    const ScreenRect corner{work.right() - 60, work.bottom() - 20, work.right() - 20, work.bottom() + 1};
    windows.ShowBalloon(*bar, corner, {"Title", BalloonTip::kWarningIcon, "A longer text for the balloon"});
    BalloonTipWindow* balloon = windows.BalloonOf(*bar);
    ASSERT_NE(balloon, nullptr);
    EXPECT_TRUE(balloon->OpensAbove());
    EXPECT_EQ(balloon->StemPoint(), QPoint(work.right() - 41, work.bottom() - 20));
    EXPECT_TRUE(work.contains(balloon->geometry()))
        << balloon->geometry().x() << "," << balloon->geometry().y();
}

TEST_F(QtBalloonTest, AControlsRectangleIsItsWidgetsOnScreenElseItsTwips) {
    auto dialog = std::make_shared<Form>("frmComment");
    dialog->Move(0, 0, 4000, 2000);
    CommandButton& button = dialog->Add<CommandButton>("btnIndication");
    button.Move(300, 150, 1200, 375);
    // Not shown anywhere yet: from its twips, the form's position being the screen position.
    const ScreenRect fromTwips = windows.ControlScreenRect(button);
    EXPECT_EQ(fromTwips.left, TwipsToPixels(300, windows.TwipsPerPixelX()));
    EXPECT_EQ(fromTwips.bottom, TwipsToPixels(525, windows.TwipsPerPixelY()));

    platform.presenter->Present(*dialog, 0, false);
    dialog->Show();
    FormView* view = platform.presenter->ViewOf(*dialog);
    ASSERT_NE(view, nullptr);
    view->move(200, 150);
    QWidget* widget = view->WidgetOf(button);
    ASSERT_NE(widget, nullptr);
    const QPoint origin = widget->mapToGlobal(QPoint(0, 0));
    EXPECT_EQ(
        windows.ControlScreenRect(button),
        (ScreenRect{origin.x(), origin.y(), origin.x() + widget->width(), origin.y() + widget->height()}));
    EXPECT_GE(origin.x(), 200);
    dialog->Unload();
}

}  // namespace
}  // namespace trovane::qt
