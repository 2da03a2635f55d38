#include "qt/qt_message_box.h"

#include <QMessageBox>
#include <QString>

namespace trovane::qt {

namespace {
QMessageBox::Icon QtIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}
}  // namespace

void QtMessageBox::Show(const std::string& text, const std::string& title, MessageIcon icon) {
    QMessageBox box(QtIcon(icon), QString::fromStdString(title), QString::fromStdString(text),
                    QMessageBox::Ok);
    box.exec();
}

}  // namespace trovane::qt
