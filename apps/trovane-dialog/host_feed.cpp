#include "host_feed.h"

#include <exception>

#include "platform/trace.h"

namespace trovane::dialog {

void HostFeed::Start(const Variant& connection, std::vector<SubscribedItem> items,
                     std::function<void()> afterBatch) {
    subscription.Deactivate();
    subscription.afterBatch = std::move(afterBatch);
    subscription.Activate(connection, std::move(items), *this);
}

void HostFeed::OnDataChange(int32_t, int32_t, int32_t count, const Variant& clientHandles,
                            const Variant& values, const Variant&, const Variant&) {
    try {
        subscription.Dispatch(count, clientHandles, values);
    } catch (const std::exception& failure) {
        DebugInfo("Host: a change could not be shown: ", failure.what());
    }
}

}  // namespace trovane::dialog
