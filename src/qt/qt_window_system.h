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

#include <cstdint>
#include <map>
#include <memory>

#include <QPointer>
#include <QWidget>

#include "platform/window_system.h"
#include "qt/input_activity.h"

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
    int32_t nextHandle = 0x1000;
};

}  // namespace trovane::qt
