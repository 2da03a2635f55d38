#pragma once
// Signal: the one event type of the headless controls.
//
// A control raises an event by emitting its signal; panels, front ends and tests connect plain
// functions to it. Handlers run in the order they were connected, on the caller's thread (the
// host's one UI thread). An event whose handler may answer back (a typed character that may be
// discarded, a form unload that may be cancelled) takes that argument by reference.
//
// Connect answers a SignalConnection, which a caller may ignore (the handler then lives as long as
// the signal) or keep to disconnect later; a ScopedConnection disconnects when it goes away, so an
// object that connects its own members never outlives its handlers. Emission is safe against what
// handlers do meanwhile: a handler connected during an emission first runs in the next one, a
// handler disconnected during an emission is not called afterwards in it, and the signal's owner
// may even be destroyed by a handler. A disconnected handler is released at once, or, when its
// signal is emitting, as soon as that emission ends, so that a handler never destroys itself while
// it runs.

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

namespace signal_detail {

struct SlotListBase;

struct SlotBase {
    virtual ~SlotBase() = default;
    bool connected = true;
    std::weak_ptr<SlotListBase> list;
};

struct SlotListBase {
    virtual ~SlotListBase() = default;
    virtual void Prune() = 0;
    int emitting = 0;
};

}  // namespace signal_detail

// One handler's link to its signal; empty (connected to nothing) when default-constructed.
class SignalConnection {
  public:
    SignalConnection() = default;
    explicit SignalConnection(std::weak_ptr<signal_detail::SlotBase> slot) : slot_(std::move(slot)) {}

    bool Connected() const {
        const auto slot = slot_.lock();
        return slot && slot->connected;
    }
    void Disconnect() {
        const auto slot = slot_.lock();
        slot_.reset();
        if (!slot || !slot->connected) return;
        slot->connected = false;
        if (const auto list = slot->list.lock(); list && list->emitting == 0) list->Prune();
    }

  private:
    std::weak_ptr<signal_detail::SlotBase> slot_;
};

// Disconnects its handler when it is destroyed or assigned another connection.
class ScopedConnection {
  public:
    ScopedConnection() = default;
    ScopedConnection(SignalConnection connection) : connection_(std::move(connection)) {}  // NOLINT
    ScopedConnection(const ScopedConnection&) = delete;
    ScopedConnection& operator=(const ScopedConnection&) = delete;
    ScopedConnection(ScopedConnection&& other) noexcept : connection_(std::exchange(other.connection_, {})) {}
    ScopedConnection& operator=(ScopedConnection&& other) noexcept {
        if (this != &other) {
            connection_.Disconnect();
            connection_ = std::exchange(other.connection_, {});
        }
        return *this;
    }
    ~ScopedConnection() { connection_.Disconnect(); }

    bool Connected() const { return connection_.Connected(); }
    void Disconnect() { connection_.Disconnect(); }

  private:
    SignalConnection connection_;
};

template <typename... Args>
class Signal {
  public:
    using Handler = std::function<void(Args...)>;

    Signal() = default;
    // A copy would share or drop the handlers of controls that are not meant to be copied.
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    ~Signal() { DisconnectAll(); }

    SignalConnection Connect(Handler handler) {
        if (!list_) list_ = std::make_shared<SlotList>();
        auto slot = std::make_shared<Slot>();
        slot->handler = std::move(handler);
        slot->list = list_;
        list_->entries.push_back(slot);
        return SignalConnection(slot);
    }

    void DisconnectAll() {
        if (!list_) return;
        for (const auto& slot : list_->entries) slot->connected = false;
        if (list_->emitting == 0) list_->Prune();
    }

    bool IsConnected() const {
        if (!list_) return false;
        for (const auto& slot : list_->entries)
            if (slot->connected) return true;
        return false;
    }

    void Emit(Args... args) const {
        if (!list_ || list_->entries.empty()) return;
        // The list, not the signal, carries the emission: a handler may destroy the signal's owner.
        const std::shared_ptr<SlotList> list = list_;
        const Emitting emitting(*list);
        const size_t count = list->entries.size();  // handlers connected meanwhile wait for the next one
        for (size_t i = 0; i < count; ++i) {
            const std::shared_ptr<Slot> slot = list->entries[i];
            if (slot->connected) slot->handler(args...);
        }
    }

  private:
    struct Slot final : signal_detail::SlotBase {
        Handler handler;
    };

    struct SlotList final : signal_detail::SlotListBase {
        // The released handlers are destroyed only once the list is whole again: destroying what
        // they captured may disconnect further handlers of this very list.
        void Prune() override {
            std::vector<std::shared_ptr<Slot>> released;
            std::erase_if(entries, [&](const std::shared_ptr<Slot>& slot) {
                if (slot->connected) return false;
                released.push_back(slot);
                return true;
            });
        }
        std::vector<std::shared_ptr<Slot>> entries;
    };

    // Counts a running emission and releases the handlers disconnected during it once the
    // outermost one ends, whether it ends normally or a handler threw.
    class Emitting {
      public:
        explicit Emitting(SlotList& list) : list_(list) { ++list_.emitting; }
        Emitting(const Emitting&) = delete;
        Emitting& operator=(const Emitting&) = delete;
        ~Emitting() {
            if (--list_.emitting == 0) list_.Prune();
        }

      private:
        SlotList& list_;
    };

    std::shared_ptr<SlotList> list_;
};

}  // namespace trovane

#include "core/api_end.h"
