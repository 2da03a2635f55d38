#include "platform/headless_window_system.h"

#include <cmath>
#include <limits>

#include "platform/controls/form.h"
#include "platform/controls/frame.h"

namespace trovane {

namespace {

constexpr int32_t kTopmostBand = -1;
constexpr uint32_t kNoZOrderChange = 4;

// How far a point lies outside a rectangle (0 inside), as the square of the distance.
int64_t DistanceSquared(const ScreenRect& rect, ScreenPoint point) {
    const int64_t dx = point.x < rect.left     ? rect.left - point.x
                       : point.x >= rect.right ? point.x - rect.right + 1
                                               : 0;
    const int64_t dy = point.y < rect.top       ? rect.top - point.y
                       : point.y >= rect.bottom ? point.y - rect.bottom + 1
                                                : 0;
    return dx * dx + dy * dy;
}

}  // namespace

HeadlessWindowSystem::HeadlessWindowSystem() {
    monitors_ = {{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}}};
    cursor_ = {960, 540};
}

void HeadlessWindowSystem::SetMonitors(std::vector<Monitor> monitors) {
    if (!monitors.empty()) monitors_ = std::move(monitors);
}

void HeadlessWindowSystem::SetTwipsPerPixel(double x, double y) {
    twipsPerPixelX_ = x;
    twipsPerPixelY_ = y;
}

// The monitor that contains the point, else the one closest to it; the first one wins a tie.
ScreenRect HeadlessWindowSystem::NearestWorkArea(ScreenPoint point) {
    const Monitor* nearest = &monitors_.front();
    int64_t best = std::numeric_limits<int64_t>::max();
    for (const Monitor& monitor : monitors_) {
        const int64_t distance = DistanceSquared(monitor.area, point);
        if (distance < best) {
            best = distance;
            nearest = &monitor;
        }
    }
    return nearest->workArea;
}

int32_t HeadlessWindowSystem::GetWindowLong(int32_t hwnd, int32_t index) {
    const auto found = windowLongs_.find({hwnd, index});
    return found != windowLongs_.end() ? found->second : 0;
}

void HeadlessWindowSystem::SetWindowLong(int32_t hwnd, int32_t index, int32_t value) {
    windowLongs_[{hwnd, index}] = value;
}

void HeadlessWindowSystem::SetWindowPos(int32_t hwnd, int32_t insertAfter, int32_t x, int32_t y, int32_t cx,
                                        int32_t cy, uint32_t flags) {
    positionRequests_.push_back({hwnd, insertAfter, x, y, cx, cy, flags});
    // Handle 0 names no window: the request is recorded but changes nothing.
    if (hwnd == 0 || insertAfter != kTopmostBand || (flags & kNoZOrderChange) != 0) return;
    windowLongs_[{hwnd, kExtendedStyleIndex}] |= kTopmostStyle;
}

bool HeadlessWindowSystem::IsTopmost(int32_t hwnd) {
    return (GetWindowLong(hwnd, kExtendedStyleIndex) & kTopmostStyle) != 0;
}

ScreenRect HeadlessWindowSystem::ControlScreenRect(const Control& control) {
    return ControlRectFromTwips(control, twipsPerPixelX_, twipsPerPixelY_);
}

const HeadlessWindowSystem::Balloon* HeadlessWindowSystem::BalloonOf(const Form& owner) const {
    const auto found = balloons_.find(&owner);
    return found != balloons_.end() ? &found->second : nullptr;
}

int32_t HeadlessWindowSystem::ShowBalloon(const Form& owner, ScreenRect target, const BalloonTip& tip) {
    const int32_t hwnd = nextBalloonHandle_++;
    balloons_[&owner] = Balloon{hwnd, target, tip};
    return hwnd;
}

void HeadlessWindowSystem::MoveBalloon(const Form& owner, ScreenRect target) {
    const auto found = balloons_.find(&owner);
    if (found != balloons_.end()) found->second.target = target;
}

void HeadlessWindowSystem::HideBalloon(const Form& owner) {
    balloons_.erase(&owner);
}

ScreenRect ControlRectFromTwips(const Control& control, double twipsPerPixelX, double twipsPerPixelY) {
    // Sums in 64 bits: a position far out on a large form cannot overflow on the way.
    int64_t left = control.Left();
    int64_t top = control.Top();
    for (const Frame* frame = control.Container(); frame != nullptr; frame = frame->Container()) {
        left += frame->Left();
        top += frame->Top();
    }
    if (const Form* form = control.ParentForm()) {
        left += form->Left();
        top += form->Top();
    }
    const auto pixels = [](int64_t twips, double twipsPerPixel) {
        return static_cast<int32_t>(std::lround(static_cast<double>(twips) / twipsPerPixel));
    };
    return ScreenRect{pixels(left, twipsPerPixelX), pixels(top, twipsPerPixelY),
                      pixels(left + control.Width(), twipsPerPixelX),
                      pixels(top + control.Height(), twipsPerPixelY)};
}

}  // namespace trovane
