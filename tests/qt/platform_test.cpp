#include <memory>

#include <gtest/gtest.h>

#include <QDialog>
#include <QKeyEvent>
#include <QTest>
#include <QWidget>

#include "qt/input_activity.h"
#include "qt/notification_pump.h"
#include "qt/qt_window_system.h"
#include "qt/twips.h"
#include "support/manual_clock.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

class QtWindowSystemTest : public ::testing::Test {
  protected:
    QtWindowSystemTest() { trovane::testing::TestApplication(); }
    std::shared_ptr<trovane::testing::ManualClock> clock = std::make_shared<trovane::testing::ManualClock>();
    std::shared_ptr<InputActivity> activity = std::make_shared<InputActivity>(clock);
    QtWindowSystem windows{activity};
};

TEST(Twips, FifteenTwipsPerPixelAtNinetySixDpi) {
    EXPECT_DOUBLE_EQ(TwipsPerPixelAt(96.0), 15.0);
    EXPECT_EQ(TwipsToPixels(1440, 15.0), 96);
    EXPECT_EQ(TwipsToPixels(22, 15.0), 1);  // 1.47 rounds to the nearest pixel
    EXPECT_EQ(PixelsToTwips(10, 15.0), 150);
    EXPECT_DOUBLE_EQ(TwipsPerPixelAt(0.0), 15.0);  // a screen that reports no density
}

// Handles are stable per window, 0 is no window, and a window that is gone is forgotten and never
// touched. The owner slot (-8) makes the frame the owner of a dialog that stays a top-level window;
// the topmost band is the stays-on-top hint; flags 1 and 2 keep size and position.
TEST_F(QtWindowSystemTest, HandlesOwnerTopmostBandAndPlacement) {
    QWidget frame;
    QDialog dialog;
    const int32_t handle = windows.HandleOf(&frame);
    const int32_t dialogHandle = windows.HandleOf(&dialog);
    EXPECT_NE(handle, 0);
    EXPECT_NE(dialogHandle, handle);
    EXPECT_EQ(windows.HandleOf(&frame), handle);
    EXPECT_EQ(windows.WindowOf(handle), &frame);
    EXPECT_EQ(windows.WindowOf(0), nullptr);
    EXPECT_EQ(windows.HandleOf(nullptr), 0);
    auto gone = std::make_unique<QDialog>();
    const int32_t goneHandle = windows.HandleOf(gone.get());
    gone.reset();
    EXPECT_EQ(windows.WindowOf(goneHandle), nullptr);
    windows.SetWindowPos(goneHandle, -1, 0, 0, 0, 0, 3);
    EXPECT_EQ(windows.GetWindowLong(goneHandle, -20), 0);

    windows.SetWindowLong(dialogHandle, -8, handle);
    EXPECT_EQ(dialog.parentWidget(), &frame);
    EXPECT_TRUE(dialog.isWindow());
    EXPECT_EQ(windows.GetWindowLong(dialogHandle, -8), handle);

    windows.SetWindowPos(handle, 0, 30, 40, 200, 120, 4);
    windows.SetWindowPos(handle, 0, 0, 0, 10, 10, 1 | 2 | 4);
    EXPECT_EQ(frame.geometry(), QRect(30, 40, 200, 120));
    windows.SetWindowPos(handle, -1, 0, 0, 0, 0, 1 | 2 | 4 | 32);  // no z-order change
    EXPECT_EQ(windows.GetWindowLong(handle, -20) & 8, 0);
    windows.SetWindowPos(handle, -1, 0, 0, 0, 0, 3);
    EXPECT_EQ(windows.GetWindowLong(handle, -20) & 8, 8);
    EXPECT_TRUE(frame.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtWindowSystemTest, WorkAreaOfTheScreenUnderThePoint) {
    const ScreenRect area = windows.NearestWorkArea(ScreenPoint{10, 10});
    EXPECT_GT(area.right, area.left);
    EXPECT_GT(area.bottom, area.top);
    // A point far outside every screen still gets the nearest screen's work area.
    const ScreenRect far = windows.NearestWorkArea(ScreenPoint{100000, 100000});
    EXPECT_EQ(far.right - far.left, area.right - area.left);
}

TEST_F(QtWindowSystemTest, LastInputTimeComesFromApplicationWideInput) {
    activity->Install();
    EXPECT_FALSE(windows.LastInputTime().has_value());
    QWidget target;
    clock->ticks = 7777;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QApplication::sendEvent(&target, &press);
    ASSERT_TRUE(windows.LastInputTime().has_value());
    EXPECT_EQ(*windows.LastInputTime(), 7777u);
    // A paint or timer event is not operator input.
    clock->ticks = 9000;
    QEvent other(QEvent::UpdateRequest);
    QApplication::sendEvent(&target, &other);
    EXPECT_EQ(*windows.LastInputTime(), 7777u);
}

// The pump's timer delivers; a nested event loop ticking inside a delivery is ignored, and a failing
// callback does not escape into the event loop.
TEST(NotificationPump, DeliversOnTheEventLoopAndNeverInsideItself) {
    trovane::testing::TestApplication();
    int deliveries = 0;
    std::unique_ptr<NotificationPump> pump;
    pump = std::make_unique<NotificationPump>(
        [&] {
            ++deliveries;
            pump->DeliverNow();
            if (deliveries == 2) throw std::runtime_error("bad notification");
        },
        1);
    pump->DeliverNow();
    EXPECT_EQ(deliveries, 1);
    pump->Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return deliveries >= 3; }, 2000));
    pump->Stop();
}

}  // namespace
}  // namespace trovane::qt
