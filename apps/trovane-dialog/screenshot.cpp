#include "screenshot.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
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

bool ClickListRow(QWidget& window, int row) {
    for (QAbstractItemView* list : window.findChildren<QAbstractItemView*>()) {
        if (!list->isVisible() || !list->model() || row >= list->model()->rowCount()) continue;
        const QModelIndex index = list->model()->index(row, 0);
        list->scrollTo(index);
        // A click as the operator makes it, so the panel hears it the same way.
        const QPoint centre = list->visualRect(index).center();
        for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, centre, list->viewport()->mapToGlobal(centre), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(list->viewport(), &event);
        }
        QCoreApplication::processEvents();
        return true;
    }
    return false;
}

}  // namespace trovane::dialog
