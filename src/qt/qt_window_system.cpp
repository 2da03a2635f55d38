#include "qt/qt_window_system.h"

#include <cmath>
#include <limits>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "platform/headless_window_system.h"
#include "qt/form_view_lookup.h"
#include "qt/twips.h"

namespace trovane::qt {

namespace {
ScreenRect ToScreenRect(const QRect& rect) {
    // QRect's right() is the last pixel inside; the classic rectangle's right is one past it.
    return ScreenRect{rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

QRect ToQRect(const ScreenRect& rect) {
    return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
}

double SquaredDistance(const QRect& rect, const QPoint& point) {
    const double dx = point.x() < rect.left()    ? rect.left() - point.x()
                      : point.x() > rect.right() ? point.x() - rect.right()
                                                 : 0;
    const double dy = point.y() < rect.top()      ? rect.top() - point.y()
                      : point.y() > rect.bottom() ? point.y() - rect.bottom()
                                                  : 0;
    return dx * dx + dy * dy;
}

double PrimaryDpi(bool horizontal) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return 96.0;
    return horizontal ? screen->logicalDotsPerInchX() : screen->logicalDotsPerInchY();
}
}  // namespace

QtWindowSystem::QtWindowSystem(std::shared_ptr<InputActivity> activityIn) : activity(std::move(activityIn)) {
}

int32_t QtWindowSystem::HandleOf(QWidget* window) {
    if (!window) return 0;
    for (const auto& [handle, widget] : windows)
        if (widget == window) return handle;
    const int32_t handle = nextHandle++;
    windows[handle] = window;
    return handle;
}

QWidget* QtWindowSystem::WindowOf(int32_t hwnd) const {
    const auto found = windows.find(hwnd);
    return found == windows.end() ? nullptr : found->second.data();
}

ScreenPoint QtWindowSystem::CursorPosition() {
    const QPoint position = QCursor::pos();
    return ScreenPoint{position.x(), position.y()};
}

ScreenRect QtWindowSystem::NearestWorkArea(ScreenPoint point) {
    const QPoint target(point.x, point.y);
    const QScreen* nearest = nullptr;
    double best = std::numeric_limits<double>::max();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const double distance = SquaredDistance(screen->geometry(), target);
        if (distance < best) {
            best = distance;
            nearest = screen;
        }
    }
    return nearest ? ToScreenRect(nearest->availableGeometry()) : ScreenRect{};
}

double QtWindowSystem::TwipsPerPixelX() {
    return TwipsPerPixelAt(PrimaryDpi(true));
}

double QtWindowSystem::TwipsPerPixelY() {
    return TwipsPerPixelAt(PrimaryDpi(false));
}

int32_t QtWindowSystem::GetWindowLong(int32_t hwnd, int32_t index) {
    QWidget* window = WindowOf(hwnd);
    if (!window) return 0;
    if (index == kExtendedStyleIndex)
        return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) ? kTopmostStyle : 0;
    if (index == kOwnerIndex) {
        QWidget* owner = window->parentWidget();
        return owner ? HandleOf(owner->window()) : 0;
    }
    return 0;
}

void QtWindowSystem::SetWindowLong(int32_t hwnd, int32_t index, int32_t value) {
    QWidget* window = WindowOf(hwnd);
    if (!window) return;
    if (index == kOwnerIndex) SetOwner(window, WindowOf(value));
}

void QtWindowSystem::SetWindowPos(int32_t hwnd, int32_t insertAfter, int32_t x, int32_t y, int32_t cx,
                                  int32_t cy, uint32_t flags) {
    QWidget* window = WindowOf(hwnd);
    if (!window) return;
    if (!(flags & kNoZOrder)) {
        if (insertAfter == kInsertTopmost) SetTopmost(window, true);
        if (insertAfter == kInsertNotTopmost) SetTopmost(window, false);
        window->raise();
    }
    if (!(flags & kNoMove)) window->move(x, y);
    if (!(flags & kNoSize)) window->resize(cx, cy);
}

std::optional<uint32_t> QtWindowSystem::LastInputTime() {
    return activity ? activity->LastInputTime() : std::nullopt;
}

ScreenRect QtWindowSystem::ControlScreenRect(const Control& control) {
    if (const Form* form = control.ParentForm()) {
        const FormView* view = FindFormView(*form);
        if (const QWidget* widget = view ? view->WidgetOf(control) : nullptr)
            return ToScreenRect(QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()));
    }
    return ControlRectFromTwips(control, TwipsPerPixelX(), TwipsPerPixelY());
}

int32_t QtWindowSystem::ShowBalloon(const Form& owner, ScreenRect target, const BalloonTip& tip) {
    auto balloon = std::make_unique<BalloonTipWindow>(tip);
    balloon->PointAt(ToQRect(target));
    balloon->show();
    const int32_t handle = HandleOf(balloon.get());
    balloons[&owner] = std::move(balloon);  // the one shown before goes now
    return handle;
}

void QtWindowSystem::MoveBalloon(const Form& owner, ScreenRect target) {
    if (BalloonTipWindow* balloon = BalloonOf(owner)) balloon->PointAt(ToQRect(target));
}

void QtWindowSystem::HideBalloon(const Form& owner) {
    balloons.erase(&owner);
}

BalloonTipWindow* QtWindowSystem::BalloonOf(const Form& owner) const {
    const auto found = balloons.find(&owner);
    return found != balloons.end() ? found->second.get() : nullptr;
}

// Qt parenthood with the window flags kept: the dialog stays a top-level window of its own, and Qt
// keeps it above its owner and closes it with the owner. Re-parenting hides a widget, so a shown
// dialog is shown again.
void QtWindowSystem::SetOwner(QWidget* window, QWidget* owner) {
    if (owner == window || window->parentWidget() == owner) return;
    const bool wasVisible = window->isVisible();
    const Qt::WindowFlags flags = window->windowFlags() | Qt::Window;
    window->setParent(owner, flags);
    if (wasVisible) window->show();
}

void QtWindowSystem::SetTopmost(QWidget* window, bool topmost) {
    if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topmost) return;
    const bool wasVisible = window->isVisible();
    window->setWindowFlag(Qt::WindowStaysOnTopHint, topmost);
    if (wasVisible) window->show();
}

}  // namespace trovane::qt
