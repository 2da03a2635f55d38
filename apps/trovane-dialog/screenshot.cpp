#include "screenshot.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace trovane::dialog {

bool WriteScreenshot(QWidget& window, const std::string& fileName) {
    const QPixmap picture = window.grab();
    return !picture.isNull() && picture.save(QString::fromStdString(fileName), "PNG");
}

}  // namespace trovane::dialog
