#pragma once
// HostFeed: a subscription the host keeps for a panel that has none of its own.
//
// The operator place and dial-up panels show what their host puts into them; the host learns of
// the server's changes by subscribing the attributes itself, and refills the panel when they
// change. The items are declared as a panel declares its own (client handle, item path, what to
// do with the value), `afterBatch` runs once after each notification, and a failure while applying
// a batch is traced, never passed to the connection.

#include <functional>
#include <vector>

#include "common/panel_subscription.h"

namespace trovane::dialog {

class HostFeed final : public SysDataCallback {
  public:
    void Start(const Variant& connection, std::vector<SubscribedItem> items,
               std::function<void()> afterBatch);
    void Stop() { subscription.Deactivate(); }

    void OnDataChange(int32_t transactionId, int32_t subscriptionHandle, int32_t count,
                      const Variant& clientHandles, const Variant& values, const Variant& qualities,
                      const Variant& timeStamps) override;

  private:
    PanelSubscription subscription;
};

}  // namespace trovane::dialog
