#pragma once
// PanelSubscription: a panel's subscription to the server attributes it shows.
//
// A panel declares its items as (client handle, item path, what to do with a new value). The
// handles are the panel's own choice: they need not be consecutive (the operation counter leaves
// one out for some kinds of object), and they are how a change finds its item, never its position
// in a notification batch. Activate subscribes the items with the connection and routes their
// changes to the panel's callback; the panel's OnDataChange hands each batch to Dispatch, which
// applies the changes in batch order (so a later value for the same item wins), ignores handles the
// panel did not declare, and then runs the after-batch hook once.
//
// An item whose handler fails stops the batch and the failure goes on to the caller, unless the
// item is declared isolated: then the failure is reported to `onIsolatedFailure` and the remaining
// changes still apply. Deactivate ends the subscription (the connection's errors suppressed: the
// panel is going away anyway) and releases the connection; with no subscription handle it removes
// nothing. Refresh asks the server to send the current values again, after a write.
//
// A second Activate without Deactivate subscribes again and forgets the first subscription, which
// then stays with the server: hosts deactivate first. Destroying an active PanelSubscription
// deactivates it, so that the connection never calls back into a panel that is gone.

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/variant.h"
#include "platform/connection.h"
#include "platform/data_callback.h"
#include "core/api_begin.h"

namespace trovane {

struct SubscribedItem {
    int32_t clientHandle = 0;
    std::string path;
    std::function<void(const Variant& value)> onChange;
    // A failure of this item is reported and the rest of the batch still applies.
    bool isolated = false;
};

struct SubscriptionOptions {
    static constexpr int32_t kUpdateRate = 200;

    int32_t itemType = 0;  // plain attribute values
    int32_t updateRate = kUpdateRate;
};

// The two parallel lists the connection takes: item paths ("String()") and client handles
// ("Long()"), both with lower bound 1, in the order the items were declared.
struct SubscriptionRequest {
    Variant itemPaths;
    Variant clientHandles;
};
SubscriptionRequest BuildSubscriptionRequest(const std::vector<SubscribedItem>& items);

// Calls handler(client handle, new value) for each of the `count` changes of a batch, in order.
// The batch is walked with a 16-bit counter (a batch of more than 32767 changes overflows), and a
// count larger than the arrays stops at their end.
void ForEachChange(int32_t count, const Variant& clientHandles, const Variant& values,
                   const std::function<void(int32_t clientHandle, const Variant& value)>& handler);

class PanelSubscription {
  public:
    PanelSubscription() = default;
    PanelSubscription(const PanelSubscription&) = delete;
    PanelSubscription& operator=(const PanelSubscription&) = delete;
    ~PanelSubscription();

    // Keeps the connection, subscribes the items and sets the callback. Two items with the same
    // client handle are refused (5) before anything is sent; a connection that is Nothing raises
    // "object not set" (91); the connection's own errors reach the caller too.
    void Activate(const Variant& subsServer, std::vector<SubscribedItem> subscribedItems,
                  SysDataCallback& callback, SubscriptionOptions options = {});
    void Deactivate();
    // Asks for the current values again; nothing happens while inactive.
    void Refresh();
    void Dispatch(int32_t count, const Variant& clientHandles, const Variant& values) const;

    bool IsActive() const { return connection != nullptr; }
    int32_t SubscriptionHandle() const { return subscriptionHandle; }
    // The connection object as the host handed it (Nothing while inactive).
    const Variant& Server() const { return subsServer; }

    // Runs once after every batch that Dispatch applied to its end.
    std::function<void()> afterBatch;
    // Hears the failures of isolated items (the item, the failure); without it they are dropped.
    std::function<void(const SubscribedItem&, const std::exception&)> onIsolatedFailure;

  private:
    const SubscribedItem* Find(int32_t clientHandle) const;
    void Apply(const SubscribedItem& item, const Variant& value) const;

    Variant subsServer = Variant::Nothing();
    std::shared_ptr<Connection> connection;
    int32_t subscriptionHandle = 0;
    std::vector<SubscribedItem> items;
};

}  // namespace trovane

#include "core/api_end.h"
