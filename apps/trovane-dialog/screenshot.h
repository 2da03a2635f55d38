#pragma once
// Writing a picture of a window, rendered off-screen.

#include <string>

class QWidget;

namespace trovane::dialog {

// Renders the window with everything in it and writes it as PNG; false when the file cannot be
// written.
bool WriteScreenshot(QWidget& window, const std::string& fileName);

// Presses the visible button named `buttonName` in `window` and answers the window it opened (the
// newest other visible top-level window), or nullptr when there is no such button or no new window.
QWidget* OpenDialogWith(QWidget& window, const std::string& buttonName);

}  // namespace trovane::dialog
