#pragma once
// PanelSubscription: a panel's subscription to the server attributes it shows.
//
// Every subscribing panel follows the same contract. Activate builds a fresh request from the
// panel's items, item k carrying client handle k (both lists indexed 1 to n), subscribes it with
// the connection at update rate 200 and routes its changes to the panel's callback. The panel's
// OnDataChange hands the batch to Dispatch, which finds each item by its client handle, never by
// its position in the batch, and calls that item's handler in batch order (so a later value for
// the same item wins); handles the panel does not know are ignored. Deactivate ends the
// subscription (errors of the connection suppressed: the panel is going away anyway) and releases
// the connection. Refresh asks the server to send the current values again, after a write.
//
// A panel uses it like this:
//
//     void Panel::Activate(int16_t App, const std::string& name, const Variant& server) {
//         subscription.Activate(server, {{ItemPath(App, name, "GC"), [this](const Variant& v) {
//         ShowComment(v); }}},
//                               *this);
//     }
//     void Panel::OnDataChange(int32_t, int32_t, int32_t count, const Variant& handles, const Variant&
//     values,
//                              const Variant&, const Variant&) {
//         subscription.Dispatch(count, handles, values);
//     }
//     void Panel::Deactivate() { subscription.Deactivate(); }
//
// A second Activate without Deactivate subscribes again and forgets the first subscription, which
// then stays with the server: hosts deactivate first. Destroying an active PanelSubscription
// deactivates it, so that the connection never calls back into a panel that is gone.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/variant.h"
#include "platform/connection.h"
#include "platform/data_callback.h"

namespace trovane {

struct SubscribedItem {
    std::string path;
    std::function<void(const Variant& value)> onChange;
};

// The two parallel lists the connection takes: item paths ("String()") and client handles
// ("Long()"), both with lower bound 1; item k carries client handle k.
struct SubscriptionRequest {
    Variant itemPaths;
    Variant clientHandles;
};
SubscriptionRequest BuildSubscriptionRequest(const std::vector<std::string>& itemPaths);

// Calls handler(client handle, new value) for each of the `count` changes of a batch, in order.
// The batch is walked with a 16-bit counter (a batch of more than 32767 changes overflows), and a
// count larger than the arrays stops at their end.
void ForEachChange(int32_t count, const Variant& clientHandles, const Variant& values,
                   const std::function<void(int32_t clientHandle, const Variant& value)>& handler);

class PanelSubscription {
  public:
    static constexpr int32_t kUpdateRate = 200;

    PanelSubscription() = default;
    PanelSubscription(const PanelSubscription&) = delete;
    PanelSubscription& operator=(const PanelSubscription&) = delete;
    ~PanelSubscription();

    // Keeps the connection, subscribes the items and sets the callback. A connection that is
    // Nothing raises "object not set" (91); the connection's own errors reach the caller too.
    // A panel whose item changes often may ask for a slower update rate (the alarm panel's 500).
    void Activate(const Variant& subsServer, std::vector<SubscribedItem> subscribedItems,
                  SysDataCallback& callback, int32_t updateRate = kUpdateRate);
    void Deactivate();
    // Asks for the current values again; nothing happens while inactive.
    void Refresh();
    void Dispatch(int32_t count, const Variant& clientHandles, const Variant& values) const;

    bool IsActive() const { return connection != nullptr; }
    int32_t SubscriptionHandle() const { return subscriptionHandle; }
    // The connection object as the host handed it (Nothing while inactive).
    const Variant& Server() const { return subsServer; }

  private:
    Variant subsServer = Variant::Nothing();
    std::shared_ptr<Connection> connection;
    int32_t subscriptionHandle = 0;
    std::vector<SubscribedItem> items;
};

}  // namespace trovane
