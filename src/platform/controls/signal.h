#pragma once
// Signal: the one event type of the headless controls.
//
// A control raises an event by emitting its signal; panels, front ends and tests connect plain
// functions to it. Handlers run in the order they were connected, on the caller's thread (the
// host's one UI thread). An event whose handler may answer back (a typed character that may be
// discarded, a form unload that may be cancelled) takes that argument by reference. Emitting works
// on a snapshot of the handler list, so a handler may connect further handlers without disturbing
// the running emission.

#include <functional>
#include <vector>

namespace trovane {

template <typename... Args>
class Signal {
  public:
    using Handler = std::function<void(Args...)>;

    void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }
    void DisconnectAll() { handlers_.clear(); }
    bool IsConnected() const { return !handlers_.empty(); }

    void Emit(Args... args) const {
        if (handlers_.empty()) return;
        const std::vector<Handler> snapshot = handlers_;
        for (const Handler& handler : snapshot) handler(args...);
    }

  private:
    std::vector<Handler> handlers_;
};

}  // namespace trovane
