#include "qt/key_codes.h"

namespace trovane::qt {

int16_t ClassicKeyCode(int qtKey) {
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return static_cast<int16_t>(qtKey);  // same codes
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return static_cast<int16_t>(qtKey);
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return static_cast<int16_t>(112 + (qtKey - Qt::Key_F1));
    switch (qtKey) {
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return 9;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Shift:
            return 16;
        case Qt::Key_Control:
            return 17;
        case Qt::Key_Alt:
            return 18;
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Space:
            return 32;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_End:
            return 35;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_Left:
            return 37;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Right:
            return 39;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return 46;
        default:
            return 0;
    }
}

int16_t ClassicShiftState(Qt::KeyboardModifiers modifiers) {
    int16_t shift = 0;
    if (modifiers & Qt::ShiftModifier) shift |= 1;
    if (modifiers & Qt::ControlModifier) shift |= 2;
    if (modifiers & Qt::AltModifier) shift |= 4;
    return shift;
}

int16_t ClassicMouseButton(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return 1;
        case Qt::RightButton:
            return 2;
        case Qt::MiddleButton:
            return 4;
        default:
            return 0;
    }
}

// Characters beyond the 8-bit range have no classic code; control characters other than the three
// editing ones are not typed characters.
int16_t ClassicCharacterCode(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.size() != 1) return 0;
    const char16_t code = text.at(0).unicode();
    if (code == 8 || code == 13 || code == 27) return static_cast<int16_t>(code);
    if (code < 32 || code == 127 || code > 255) return 0;
    return static_cast<int16_t>(code);
}

bool IsNavigationKey(int16_t keyCode) {
    return keyCode >= 33 && keyCode <= 40;
}

}  // namespace trovane::qt
