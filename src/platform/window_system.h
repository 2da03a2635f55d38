#pragma once
// What dialog placement and window ordering need of the window system.
//
// Window handles are the platform's 32-bit handles as the host passes them ("FRAME_HANDLE"). The
// style and order operations keep the numeric form of the classic calls (owner index -8, extended
// style index -20, topmost bit 8, insert-after -1, position flags 1/2/4/32) so that the rules read
// as they are written; a front end maps them to its own notion of owners and stacking.

#include <cstdint>
#include <optional>

namespace trovane {

struct ScreenPoint {
    int32_t x = 0;
    int32_t y = 0;
};

struct ScreenRect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;
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
};

}  // namespace trovane
