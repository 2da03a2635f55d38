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

// The three editing controls are typed characters; the other control characters (Ctrl+V gives
// 22) are shortcuts, and DEL (127, Ctrl+Backspace) types nothing. A key held with Control or Alt
// alone is a shortcut whatever text it carries; with both (AltGr on some systems) it types.
char32_t TypedCharacter(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (held != Qt::NoModifier && held != (Qt::ControlModifier | Qt::AltModifier)) return 0;
    const QString text = event.text();
    if (text.isEmpty()) return 0;
    const char32_t code = text.at(0).isHighSurrogate() && text.size() == 2
                              ? QChar::surrogateToUcs4(text.at(0), text.at(1))
                              : text.at(0).unicode();
    if (text.size() != (QChar::requiresSurrogates(code) ? 2 : 1)) return 0;
    if (code == 8 || code == 13 || code == 27) return code;
    if (code < 32 || code == 127 || QChar::isSurrogate(code)) return 0;
    return code;
}

bool IsNavigationKey(int16_t keyCode) {
    return keyCode >= 33 && keyCode <= 40;
}

}  // namespace trovane::qt
