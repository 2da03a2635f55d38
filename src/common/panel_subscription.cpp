#include "common/panel_subscription.h"

#include <algorithm>
#include <exception>

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

SubscriptionRequest BuildSubscriptionRequest(const std::vector<std::string>& itemPaths) {
    VariantArray paths(ElementKind::String, 1, itemPaths.size());
    VariantArray handles(ElementKind::Long, 1, itemPaths.size());
    for (int32_t k = 1; k <= static_cast<int32_t>(itemPaths.size()); ++k) {
        paths.Set(k, itemPaths[static_cast<size_t>(k - 1)]);
        handles.Set(k, k);
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
                                 SysDataCallback& callback, int32_t updateRate) {
    std::vector<std::string> paths;
    for (const SubscribedItem& item : subscribedItems) paths.push_back(item.path);
    const SubscriptionRequest request = BuildSubscriptionRequest(paths);
    items = std::move(subscribedItems);
    subscriptionHandle = 0;
    subsServer = server;
    connection = ConnectionOf(subsServer);
    if (!connection) throw Error(ErrorNumber::ObjectNotSet, "subscription connection");
    Variant results;
    connection->AddItems(request.clientHandles, request.itemPaths, updateRate, subscriptionHandle, results);
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
        if (clientHandle < 1 || clientHandle > static_cast<int32_t>(items.size())) return;
        const SubscribedItem& item = items[static_cast<size_t>(clientHandle - 1)];
        if (item.onChange) item.onChange(value);
    });
}

}  // namespace trovane
