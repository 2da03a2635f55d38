#pragma once
// Delivery of connection notifications on the UI thread, between events.
//
// The in-process server queues its data-change notifications when a command changes its database;
// nothing may call a panel back in the middle of the command that caused the change. The pump is a
// timer on the UI thread's event loop: each tick hands the queued notifications to their callbacks,
// so they arrive between operator events, never inside one, and never from another thread.

#include <functional>

#include <QObject>
#include <QTimer>
#include "core/api_begin.h"

namespace trovane::qt {

class NotificationPump final : public QObject {
  public:
    // `deliver` hands over whatever is queued (the connection's Pump); it is called on every tick.
    explicit NotificationPump(std::function<void()> deliver, int intervalMilliseconds = 20,
                              QObject* parent = nullptr);

    void Start();
    void Stop();
    bool IsRunning() const { return timer.isActive(); }
    // Delivers what is queued now, as a tick would (tests and shutdown use it).
    void DeliverNow();

  private:
    std::function<void()> deliver;
    QTimer timer;
    bool delivering = false;
};

}  // namespace trovane::qt

#include "core/api_end.h"
