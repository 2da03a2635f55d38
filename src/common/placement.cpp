// Dialog placement on the operator's monitor, window ownership and stacking, operator activity.

#include "common/common_functions.h"
#include "core/checked_int.h"
#include "core/conversions.h"
#include "platform/controls/form.h"

namespace trovane {

namespace {

constexpr int32_t kOwnerIndex = -8;
constexpr int32_t kExtendedStyleIndex = -20;
constexpr int32_t kTopmostStyle = 8;
constexpr int32_t kTopmostBand = -1;
constexpr uint32_t kNoSize = 1;
constexpr uint32_t kNoMove = 2;
constexpr uint32_t kNoZOrderChange = 4;
constexpr uint32_t kFrameChanged = 32;
constexpr int32_t kActiveUseMilliseconds = 1000;

void BringToTopmostBand(WindowSystem& windows, int32_t hwnd) {
    windows.SetWindowPos(hwnd, kTopmostBand, 0, 0, 0, 0, kNoSize | kNoMove);
}

// Redraws the window's frame with its current styles; the stacking order stays.
void RefreshFrame(WindowSystem& windows, int32_t hwnd) {
    windows.SetWindowPos(hwnd, kTopmostBand, 0, 0, 0, 0, kNoSize | kNoMove | kNoZOrderChange | kFrameChanged);
}

// An owned dialog follows its owner: it only joins the topmost band when the frame is there itself,
// so that it never floats above other programs the operator brought forward. A dialog without owner
// has nothing to follow and always goes to the top.
void ApplyOwnerAndOrder(WindowSystem& windows, bool setOwner, int32_t hwnd, int32_t frameHandle) {
    if (setOwner) {
        windows.SetWindowLong(hwnd, kOwnerIndex, frameHandle);
        if ((windows.GetWindowLong(frameHandle, kExtendedStyleIndex) & kTopmostStyle) == 0) return;
    }
    BringToTopmostBand(windows, hwnd);
    RefreshFrame(windows, hwnd);
}

// One edge per axis: a form that starts before the lower limit is moved to it, otherwise one that
// ends beyond the upper limit is moved back. A form larger than the area therefore ends aligned to
// the upper edge and may start before the lower one; the far edge is never checked a second time.
int32_t WithinLimits(int32_t position, int32_t size, int32_t lowerLimit, int32_t upperLimit) {
    if (position < lowerLimit) return lowerLimit;
    if (CheckedAdd(position, size) > upperLimit) return CheckedSubtract(upperLimit, size);
    return position;
}

}  // namespace

// The dialog opens on the monitor where the operator is working: the one nearest the cursor, not
// the one that holds the host frame.
void CommonFunctions::CheckDialogPosition(Form& frm) {
    WindowSystem& windows = *platform_.windows;
    const ScreenRect area = windows.NearestWorkArea(windows.CursorPosition());
    const double twipsX = windows.TwipsPerPixelX();
    const double twipsY = windows.TwipsPerPixelY();
    const int32_t left = WithinLimits(frm.Left(), frm.Width(), RoundToInt32(area.left * twipsX),
                                      RoundToInt32(area.right * twipsX));
    const int32_t top = WithinLimits(frm.Top(), frm.Height(), RoundToInt32(area.top * twipsY),
                                     RoundToInt32(area.bottom * twipsY));
    frm.Move(left, top, frm.Width(), frm.Height());
}

void CommonFunctions::SetWindowOwner(bool SetOwner) {
    setOwner = SetOwner;
}

void CommonFunctions::SetWindowOrder(int32_t hwnd) {
    const bool ownerWanted = ToBool(GetListItem(startInfo, "SET_OWNER"));
    const int32_t frameHandle = ToInt32(GetListItem(startInfo, "FRAME_HANDLE"));
    ApplyOwnerAndOrder(*platform_.windows, ownerWanted, hwnd, frameHandle);
}

void CommonFunctions::SetWindowOrder2(int32_t hwnd, int32_t frameHandle) {
    ApplyOwnerAndOrder(*platform_.windows, setOwner, hwnd, frameHandle);
}

// The tick counter and the last-input time are read as signed numbers; when they lie on opposite
// sides of the signed range the subtraction overflows, and that is raised rather than wrapped.
bool CommonFunctions::IsWorkstationInActiveUse() {
    const std::optional<uint32_t> lastInput = platform_.windows->LastInputTime();
    if (!lastInput) return false;
    const auto now = static_cast<int32_t>(platform_.clock->TickCount());
    const int32_t idle = CheckedSubtract<int32_t>(now, static_cast<int32_t>(*lastInput));
    return idle < kActiveUseMilliseconds;
}

}  // namespace trovane
