#pragma once
// Writing a picture of a window, rendered off-screen.

#include <string>

class QWidget;

namespace trovane::dialog {

// Renders the window with everything in it and writes it as PNG; false when the file cannot be
// written.
bool WriteScreenshot(QWidget& window, const std::string& fileName);

}  // namespace trovane::dialog
