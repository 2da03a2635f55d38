#pragma once
// HeadlessWindowSystem: a window system without a screen.
//
// It stands in for the real one where nothing is shown (the default of PlatformServices, and every
// test): monitors are rectangles with a work area, the cursor is a point that the host or a test
// moves, and windows are records of their long values (owner, extended style) and of every
// position request. Ordering requests take effect as they would on a screen: a request for the
// topmost band (insert-after -1 without the "no z-order change" flag) sets the window's topmost bit
// in its extended style. Operator input is a tick count recorded with RecordInput; until the first
// one the last-input time cannot be read. Balloons are records per owning form, each with a handle
// of its own; a control's screen rectangle is its geometry in twips (inside its frames, on its
// form, whose position is a screen position) divided by the twips per pixel.
//
// Out of the box there is one monitor of 1920 x 1080 pixels with a 40-pixel task bar at the bottom,
// the cursor at its centre, and 15 twips per pixel in both directions.

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/window_system.h"
#include "core/api_begin.h"

namespace trovane {

class HeadlessWindowSystem final : public WindowSystem {
  public:
    struct Monitor {
        ScreenRect area;
        ScreenRect workArea;
    };
    struct PositionRequest {
        int32_t hwnd;
        int32_t insertAfter;
        int32_t x, y, cx, cy;
        uint32_t flags;
    };

    static constexpr int32_t kOwnerIndex = -8;
    static constexpr int32_t kExtendedStyleIndex = -20;
    static constexpr int32_t kTopmostStyle = 8;

    HeadlessWindowSystem();

    // ---- Set-up by the host or a test --------------------------------------------------------
    void SetMonitors(std::vector<Monitor> monitors);
    void MoveCursor(ScreenPoint point) { cursor_ = point; }
    void SetTwipsPerPixel(double x, double y);
    void RecordInput(uint32_t tickCount) { lastInput_ = tickCount; }
    void ForgetInput() { lastInput_.reset(); }

    // ---- What happened to the windows ----------------------------------------------------------
    const std::vector<PositionRequest>& PositionRequests() const { return positionRequests_; }
    bool IsTopmost(int32_t hwnd);
    int32_t OwnerOf(int32_t hwnd) { return GetWindowLong(hwnd, kOwnerIndex); }

    struct Balloon {
        int32_t hwnd;
        ScreenRect target;
        BalloonTip tip;
    };
    // The balloon `owner` shows, or nullptr.
    const Balloon* BalloonOf(const Form& owner) const;
    size_t BalloonCount() const { return balloons_.size(); }

    // ---- WindowSystem ------------------------------------------------------------------------
    ScreenPoint CursorPosition() override { return cursor_; }
    ScreenRect NearestWorkArea(ScreenPoint point) override;
    double TwipsPerPixelX() override { return twipsPerPixelX_; }
    double TwipsPerPixelY() override { return twipsPerPixelY_; }
    int32_t GetWindowLong(int32_t hwnd, int32_t index) override;
    void SetWindowLong(int32_t hwnd, int32_t index, int32_t value) override;
    void SetWindowPos(int32_t hwnd, int32_t insertAfter, int32_t x, int32_t y, int32_t cx, int32_t cy,
                      uint32_t flags) override;
    std::optional<uint32_t> LastInputTime() override { return lastInput_; }
    ScreenRect ControlScreenRect(const Control& control) override;
    int32_t ShowBalloon(const Form& owner, ScreenRect target, const BalloonTip& tip) override;
    void MoveBalloon(const Form& owner, ScreenRect target) override;
    void HideBalloon(const Form& owner) override;

  private:
    std::vector<Monitor> monitors_;
    ScreenPoint cursor_;
    double twipsPerPixelX_ = 15;
    double twipsPerPixelY_ = 15;
    std::map<std::pair<int32_t, int32_t>, int32_t> windowLongs_;
    std::vector<PositionRequest> positionRequests_;
    std::optional<uint32_t> lastInput_;
    std::map<const Form*, Balloon> balloons_;
    int32_t nextBalloonHandle_ = 0x4000;
};

// A control's rectangle from its twips geometry: its own position inside its frames, on its form,
// whose position is taken as the screen position of its client area.
ScreenRect ControlRectFromTwips(const Control& control, double twipsPerPixelX, double twipsPerPixelY);

}  // namespace trovane

#include "core/api_end.h"
