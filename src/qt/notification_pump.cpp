#include "qt/notification_pump.h"

#include <exception>
#include <string>

#include "platform/trace.h"

namespace trovane::qt {

NotificationPump::NotificationPump(std::function<void()> deliverIn, int intervalMilliseconds, QObject* parent)
    : QObject(parent), deliver(std::move(deliverIn)) {
    timer.setInterval(intervalMilliseconds);
    QObject::connect(&timer, &QTimer::timeout, this, [this] { DeliverNow(); });
}

void NotificationPump::Start() {
    timer.start();
}

void NotificationPump::Stop() {
    timer.stop();
}

// A callback may open a modal message box, which runs a nested event loop and so ticks this timer
// again; the guard keeps one delivery from starting inside another. An exception must not unwind
// through the event loop, so a failing callback is traced and the next tick carries on.
void NotificationPump::DeliverNow() {
    if (delivering || !deliver) return;
    delivering = true;
    try {
        deliver();
    } catch (const std::exception& failure) {
        DebugInfo("NotificationPump: a data-change callback failed: ", failure.what());
    } catch (...) {
        DebugInfo("NotificationPump: a data-change callback failed.");
    }
    delivering = false;
}

}  // namespace trovane::qt
