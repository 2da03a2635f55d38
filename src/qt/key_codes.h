#pragma once
// Qt input as the classic event arguments.
//
// The panels are written against the classic key codes (38 up, 40 down, 33/34 page up/down, 36/35
// home/end, 13 Enter, 27 Escape, 65..90 letters, 48..57 digits, 112.. function keys), the shift
// state as a bit set (1 shift, 2 control, 4 alt), and mouse buttons as 1 left, 2 right, 4 middle.
// Typed characters go to the model as Unicode code points; the model gives its KeyPress handlers
// their classic codes. These functions translate Qt's events into those numbers; a key without a
// classic code, or a key that types no single character, translates to 0, which the bindings do
// not pass on.

#include <cstdint>

#include <QKeyEvent>
#include <QMouseEvent>
#include "core/api_begin.h"

namespace trovane::qt {

int16_t ClassicKeyCode(int qtKey);
int16_t ClassicShiftState(Qt::KeyboardModifiers modifiers);
int16_t ClassicMouseButton(Qt::MouseButton button);
// The character a key press types (8 backspace, 13 Enter, 27 Escape, any printable character), or
// 0 for other control characters and for text of more than one character.
char32_t TypedCharacter(const QKeyEvent& event);
bool IsNavigationKey(int16_t keyCode);

}  // namespace trovane::qt

#include "core/api_end.h"
