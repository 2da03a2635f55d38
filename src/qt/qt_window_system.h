#pragma once
// The window system on Qt.
//
// The placement rules speak in the classic numeric calls: 32-bit window handles, the owner slot
// (-8), the extended style (-20) with its topmost bit (8), insertion after -1 (the topmost band) and
// the position flags. Qt has neither handles of that kind nor owner slots, so this class keeps a
// registry that hands out a small handle per top-level widget and translates each call: owning
// becomes Qt parenthood of a top-level window (the dialog stays a separate window, stacked above
// and closed with its owner), the topmost band becomes the stays-on-top hint, and the cursor and
// work areas come from the screens Qt knows. Unknown handles, including 0, are ignored, as the
// classic calls ignore a handle that names no window.
//
// A control's screen rectangle is its widget's, found through the view that shows its form; a
// control without a widget on screen falls back to its twips geometry. Balloons are windows of
// their own (BalloonTipWindow), one per owning form, registered for a handle like any window.

#include <cstdint>
#include <map>
#include <memory>

#include <QPointer>
#include <QWidget>

#include "platform/window_system.h"
#include "qt/balloon_tip_window.h"
#include "qt/input_activity.h"
#include "core/api_begin.h"

namespace trovane::qt {

class QtWindowSystem final : public WindowSystem {
  public:
    explicit QtWindowSystem(std::shared_ptr<InputActivity> activity);

    // The handle of a top-level widget, registered on first use. Handles are never reused.
    int32_t HandleOf(QWidget* window);
    // The widget a handle names, or nullptr (unknown handle, or the widget is gone).
    QWidget* WindowOf(int32_t hwnd) const;

    ScreenPoint CursorPosition() override;
    ScreenRect NearestWorkArea(ScreenPoint point) override;
    double TwipsPerPixelX() override;
    double TwipsPerPixelY() override;

    int32_t GetWindowLong(int32_t hwnd, int32_t index) override;
    void SetWindowLong(int32_t hwnd, int32_t index, int32_t value) override;
    void SetWindowPos(int32_t hwnd, int32_t insertAfter, int32_t x, int32_t y, int32_t cx, int32_t cy,
                      uint32_t flags) override;

    std::optional<uint32_t> LastInputTime() override;

    ScreenRect ControlScreenRect(const Control& control) override;
    int32_t ShowBalloon(const Form& owner, ScreenRect target, const BalloonTip& tip) override;
    void MoveBalloon(const Form& owner, ScreenRect target) override;
    void HideBalloon(const Form& owner) override;
    // The balloon `owner` shows, or nullptr.
    BalloonTipWindow* BalloonOf(const Form& owner) const;

    static constexpr int32_t kOwnerIndex = -8;
    static constexpr int32_t kExtendedStyleIndex = -20;
    static constexpr int32_t kTopmostStyle = 8;
    static constexpr int32_t kInsertTopmost = -1;
    static constexpr int32_t kInsertNotTopmost = -2;
    static constexpr uint32_t kNoSize = 1;
    static constexpr uint32_t kNoMove = 2;
    static constexpr uint32_t kNoZOrder = 4;

  private:
    void SetOwner(QWidget* window, QWidget* owner);
    void SetTopmost(QWidget* window, bool topmost);

    std::shared_ptr<InputActivity> activity;
    std::map<int32_t, QPointer<QWidget>> windows;
    std::map<const Form*, std::unique_ptr<BalloonTipWindow>> balloons;
    int32_t nextHandle = 0x1000;
};

}  // namespace trovane::qt

#include "core/api_end.h"
