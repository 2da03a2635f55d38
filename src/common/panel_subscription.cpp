#include "common/panel_subscription.h"

#include <algorithm>
#include <exception>
#include <string>

#include "core/checked_int.h"
#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

namespace {
constexpr int32_t kRefreshFromDevice = 1;

int32_t ElementsFromZero(const Variant& array) {
    if (!array.IsArray() || array.AsArray().LowerBound() > 0) return 0;
    return array.AsArray().UpperBound() + 1;
}
}  // namespace

SubscriptionRequest BuildSubscriptionRequest(const std::vector<SubscribedItem>& items) {
    VariantArray paths(ElementKind::String, 1, items.size());
    VariantArray handles(ElementKind::Long, 1, items.size());
    for (size_t k = 0; k < items.size(); ++k) {
        paths.Set(static_cast<int64_t>(k) + 1, items[k].path);
        handles.Set(static_cast<int64_t>(k) + 1, items[k].clientHandle);
    }
    return {Variant(std::move(paths)), Variant(std::move(handles))};
}

void ForEachChange(int32_t count, const Variant& clientHandles, const Variant& values,
                   const std::function<void(int32_t clientHandle, const Variant& value)>& handler) {
    const int32_t available = std::min({count, ElementsFromZero(clientHandles), ElementsFromZero(values)});
    if (available <= 0) return;
    const VariantArray& handles = clientHandles.AsArray();
    const VariantArray& newValues = values.AsArray();
    for (Counter16 i; i < available; ++i) handler(ToInt32(handles.At(i)), newValues.At(i));
}

PanelSubscription::~PanelSubscription() {
    Deactivate();
}

void PanelSubscription::Activate(const Variant& server, std::vector<SubscribedItem> subscribedItems,
                                 SysDataCallback& callback, SubscriptionOptions options) {
    for (size_t i = 0; i < subscribedItems.size(); ++i)
        for (size_t j = i + 1; j < subscribedItems.size(); ++j)
            if (subscribedItems[i].clientHandle == subscribedItems[j].clientHandle)
                throw Error(ErrorNumber::InvalidCall, "two subscribed items share client handle " +
                                                          std::to_string(subscribedItems[i].clientHandle));
    const SubscriptionRequest request = BuildSubscriptionRequest(subscribedItems);
    items = std::move(subscribedItems);
    subscriptionHandle = 0;
    subsServer = server;
    connection = ConnectionOf(subsServer);
    if (!connection) throw Error(ErrorNumber::ObjectNotSet, "subscription connection");
    Variant results;
    connection->AddItems(request.clientHandles, request.itemPaths, options.itemType, options.updateRate,
                         subscriptionHandle, results);
    connection->SetCallback(&callback, subscriptionHandle);
}

void PanelSubscription::Deactivate() {
    if (!connection) return;
    if (subscriptionHandle != 0) {
        try {
            connection->RemoveItems(subscriptionHandle);
        } catch (const std::exception&) {
            // The subscription may already be gone with the server; the panel is leaving regardless.
        }
    }
    subscriptionHandle = 0;
    connection.reset();
    subsServer = Variant::Nothing();
}

void PanelSubscription::Refresh() {
    if (!connection) return;
    Variant results;
    connection->RefreshItems(subscriptionHandle, kRefreshFromDevice, results);
}

void PanelSubscription::Dispatch(int32_t count, const Variant& clientHandles, const Variant& values) const {
    ForEachChange(count, clientHandles, values, [this](int32_t clientHandle, const Variant& value) {
        if (const SubscribedItem* item = Find(clientHandle)) Apply(*item, value);
    });
    if (afterBatch) afterBatch();
}

const SubscribedItem* PanelSubscription::Find(int32_t clientHandle) const {
    for (const SubscribedItem& item : items)
        if (item.clientHandle == clientHandle) return &item;
    return nullptr;
}

void PanelSubscription::Apply(const SubscribedItem& item, const Variant& value) const {
    if (!item.onChange) return;
    if (!item.isolated) return item.onChange(value);
    try {
        item.onChange(value);
    } catch (const std::exception& failure) {
        if (onIsolatedFailure) onIsolatedFailure(item, failure);
    }
}

}  // namespace trovane
