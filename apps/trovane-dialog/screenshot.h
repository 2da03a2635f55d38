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

// Clicks row `row` (from 0) of the first visible list in `window`; false when there is none that long.
bool ClickListRow(QWidget& window, int row);

}  // namespace trovane::dialog
