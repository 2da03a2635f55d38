#pragma once
// What the Qt benchmarks share: the end of a measured step, and letting a window go.

#include <QApplication>
#include <QWidget>

namespace trovane::bench {

// A step is done when Qt has handled what it posted and the window has been painted, so the
// operator could see the result.
inline void ProcessAndPaint(QWidget& window) {
    QCoreApplication::processEvents();
    window.repaint();
}

// Takes the keyboard focus away before a window goes: a form view torn down while one of its
// controls holds the focus hands the focus on from inside its own destruction.
inline void ReleaseFocus() {
    if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
}

}  // namespace trovane::bench
