#pragma once
// What dialog placement and window ordering need of the window system.
//
// Window handles are the platform's 32-bit handles as the host passes them ("FRAME_HANDLE"). The
// style and order operations keep the numeric form of the classic calls (owner index -8, extended
// style index -20, topmost bit 8, insert-after -1, position flags 1/2/4/32) so that the rules read
// as they are written; a front end maps them to its own notion of owners and stacking.
//
// A balloon tip is a small window with an icon, a title and a text that points at a rectangle on
// the screen (a control's) and stays until it is hidden: the operator moving the mouse does not
// close it. Each form has one balloon at most; showing another for the same form replaces it with
// a new window. The icons keep the classic tooltip numbers.

#include <cstdint>
#include <optional>
#include <string>
#include "core/api_begin.h"

namespace trovane {

class Control;
class Form;

struct ScreenPoint {
    int32_t x = 0;
    int32_t y = 0;
    friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

struct ScreenRect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;
    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

struct BalloonTip {
    static constexpr int32_t kNoIcon = 0;
    static constexpr int32_t kInfoIcon = 1;
    static constexpr int32_t kWarningIcon = 2;
    static constexpr int32_t kErrorIcon = 3;

    std::string title;
    int32_t icon = kNoIcon;  // another number shows no icon
    std::string text;
};

class WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    virtual ScreenPoint CursorPosition() = 0;
    // The work area (monitor less task bars) of the monitor nearest to a point, in pixels.
    virtual ScreenRect NearestWorkArea(ScreenPoint point) = 0;
    virtual double TwipsPerPixelX() = 0;
    virtual double TwipsPerPixelY() = 0;

    virtual int32_t GetWindowLong(int32_t hwnd, int32_t index) = 0;
    virtual void SetWindowLong(int32_t hwnd, int32_t index, int32_t value) = 0;
    virtual void SetWindowPos(int32_t hwnd, int32_t insertAfter, int32_t x, int32_t y, int32_t cx, int32_t cy,
                              uint32_t flags) = 0;

    // The tick count of the operator's last input, or nothing when it cannot be read.
    virtual std::optional<uint32_t> LastInputTime() = 0;

    // Where a control is on the screen, in pixels.
    virtual ScreenRect ControlScreenRect(const Control& control) = 0;

    // Shows `owner`'s balloon pointing at `target` (replacing the one it had) and answers the
    // balloon's window handle.
    virtual int32_t ShowBalloon(const Form& owner, ScreenRect target, const BalloonTip& tip) = 0;
    // Points `owner`'s balloon at a new rectangle; without a balloon nothing happens.
    virtual void MoveBalloon(const Form& owner, ScreenRect target) = 0;
    virtual void HideBalloon(const Form& owner) = 0;
};

}  // namespace trovane

#include "core/api_end.h"
