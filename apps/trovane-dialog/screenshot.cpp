#include "screenshot.h"

#include <QApplication>
#include <QPixmap>
#include <QPushButton>
#include <QString>
#include <QWidget>

namespace trovane::dialog {

bool WriteScreenshot(QWidget& window, const std::string& fileName) {
    const QPixmap picture = window.grab();
    return !picture.isNull() && picture.save(QString::fromStdString(fileName), "PNG");
}

QWidget* OpenDialogWith(QWidget& window, const std::string& buttonName) {
    QPushButton* button = nullptr;
    for (QPushButton* candidate : window.findChildren<QPushButton*>(QString::fromStdString(buttonName)))
        if (candidate->isVisible() && candidate->isEnabled()) button = candidate;
    if (!button) return nullptr;
    const QWidgetList before = QApplication::topLevelWidgets();
    button->click();
    QCoreApplication::processEvents();
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget != &window && widget->isVisible() && !before.contains(widget)) return widget;
    return nullptr;
}

}  // namespace trovane::dialog
