#include "qt/input_activity.h"

#include <QCoreApplication>
#include <QEvent>

namespace trovane::qt {

namespace {
bool IsOperatorInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
            return true;
        default:
            return false;
    }
}
}  // namespace

InputActivity::InputActivity(std::shared_ptr<Clock> clockIn, QObject* parent)
    : QObject(parent), clock(std::move(clockIn)) {
}

InputActivity::~InputActivity() {
    if (QCoreApplication* app = QCoreApplication::instance()) app->removeEventFilter(this);
}

void InputActivity::Install() {
    if (QCoreApplication* app = QCoreApplication::instance()) app->installEventFilter(this);
}

void InputActivity::NoteInput() {
    if (clock) lastInput = clock->TickCount();
}

bool InputActivity::eventFilter(QObject* watched, QEvent* event) {
    if (IsOperatorInput(event->type())) NoteInput();
    return QObject::eventFilter(watched, event);
}

}  // namespace trovane::qt
