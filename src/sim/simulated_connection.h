#pragma once
// The in-process connection to the simulated server: commands and subscriptions.
//
// Commands run synchronously in the server. Subscriptions watch item paths (item_path.h); when a
// command changes a watched attribute, or when a subscription is made or refreshed, the item is
// queued, and the values are delivered only when the host's event loop (or a test) calls Pump,
// never from inside ExecuteCommand, so a panel is not re-entered while it waits for an answer.
// An item queued twice before a pump is delivered once, with the value it has at the pump. One
// pump makes one OnDataChange call per subscription; what the callbacks change is queued for the
// next pump.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/connection.h"
#include "sim/simulated_server.h"
#include "core/api_begin.h"

namespace trovane::sim {

class SimulatedConnection final : public Connection {
  public:
    explicit SimulatedConnection(std::shared_ptr<SimulatedServer> server);
    ~SimulatedConnection() override;
    SimulatedConnection(const SimulatedConnection&) = delete;
    SimulatedConnection& operator=(const SimulatedConnection&) = delete;

    std::string ClassName() const override { return "SimulatedConnection"; }

    SimulatedServer& Server() { return *server_; }
    // A connection that is not ready refuses commands (status VEXL_SERVER_NOT_READY).
    void SetReady(bool ready) { ready_ = ready; }

    bool IsReady() override { return ready_; }
    void ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                        int32_t& status) override;
    // The item type and update rate are accepted and not needed: the simulation reports every
    // change at the next Pump.
    void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                  int32_t updateRate, int32_t& subscriptionHandle, Variant& results) override;
    void SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) override;
    void RemoveItems(int32_t subscriptionHandle) override;
    void RefreshItems(int32_t subscriptionHandle, int32_t source, Variant& results) override;

    // Delivers the queued notifications; returns the number of items delivered.
    int32_t Pump();
    size_t PendingCount() const { return pending_.size(); }
    // The subscriptions not yet removed.
    size_t SubscriptionCount() const { return subscriptions_.size(); }

    // Adds "Pump" to the connection's members by name.
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

  private:
    struct Item {
        int32_t clientHandle = 0;
        std::optional<ItemKey> key;  // nothing for a path the server does not know
    };
    struct Subscription {
        std::vector<Item> items;
        SysDataCallback* callback = nullptr;
    };
    struct Pending {
        int32_t subscription = 0;
        size_t item = 0;
        friend bool operator==(const Pending&, const Pending&) = default;
    };

    Item MakeItem(int32_t clientHandle, const Variant& path, int32_t& result);
    void OnChange(const ItemKey& key);
    void QueueAll(int32_t handle, const Subscription& subscription);
    void Queue(Pending pending);
    void Deliver(int32_t handle, const std::vector<size_t>& items);

    std::shared_ptr<SimulatedServer> server_;
    int32_t listenerId_ = 0;
    std::map<int32_t, Subscription> subscriptions_;
    std::vector<Pending> pending_;
    int32_t nextHandle_ = 1;
    int32_t nextTransaction_ = 1;
    bool ready_ = true;
};

}  // namespace trovane::sim

#include "core/api_end.h"
