#include "sim/simulated_connection.h"

#include <algorithm>
#include <cstdint>

#include "core/conversions.h"
#include "core/error.h"
#include "platform/connection_support.h"
#include "sim/item_path.h"

namespace trovane::sim {

namespace {

constexpr int32_t kGoodQuality = 192;
constexpr int32_t kBadQuality = 0;

}  // namespace

SimulatedConnection::SimulatedConnection(std::shared_ptr<SimulatedServer> server)
    : server_(std::move(server)) {
    listenerId_ = server_->Database().AddChangeListener([this](const ItemKey& key) { OnChange(key); });
}

SimulatedConnection::~SimulatedConnection() {
    server_->Database().RemoveChangeListener(listenerId_);
}

void SimulatedConnection::ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                                         int32_t& status) {
    result.Clear();
    if (!ready_) {
        status = status::kNotReady;
        return;
    }
    if (application != server_->Database().App().number) {
        status = status::kUnknownObject;
        return;
    }
    result = server_->Execute(command, status);
}

SimulatedConnection::Item SimulatedConnection::MakeItem(int32_t clientHandle, const Variant& path,
                                                        int32_t& result) {
    Item item{clientHandle, std::nullopt};
    const auto parsed = path.IsString() ? ParseItemPath(path.AsString()) : std::nullopt;
    if (!parsed || parsed->application != server_->Database().App().number) {
        result = status::kUnknownObject;
        return item;
    }
    try {
        server_->Database().Read(parsed->key);
        item.key = parsed->key;
        result = 0;
    } catch (const VexlStatus& failure) {
        result = failure.Code();
    }
    return item;
}

void SimulatedConnection::AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t, int32_t,
                                   int32_t& subscriptionHandle, Variant& results) {
    const auto [handles, paths] = CheckedAddItemsArguments(clientHandles, itemPaths);
    Subscription subscription;
    VariantArray itemResults(ElementKind::Long, paths.LowerBound(), paths.Size());
    for (size_t i = 0; i < paths.Size(); ++i) {
        int32_t result = 0;
        subscription.items.push_back(MakeItem(ToInt32(handles.Elements()[i]), paths.Elements()[i], result));
        itemResults.Set(paths.LowerBound() + static_cast<int64_t>(i), result);
    }
    subscriptionHandle = NextNumber(nextHandle_);
    QueueAll(subscriptionHandle, subscription);
    subscriptions_.emplace(subscriptionHandle, std::move(subscription));
    results = Variant(std::move(itemResults));
}

void SimulatedConnection::SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) {
    const auto found = subscriptions_.find(subscriptionHandle);
    if (found == subscriptions_.end())
        throw Error(ErrorNumber::InvalidCall, "SetCallback: unknown subscription");
    found->second.callback = callback;
}

void SimulatedConnection::RemoveItems(int32_t subscriptionHandle) {
    subscriptions_.erase(subscriptionHandle);
    std::erase_if(pending_,
                  [&](const Pending& pending) { return pending.subscription == subscriptionHandle; });
}

void SimulatedConnection::RefreshItems(int32_t subscriptionHandle, int32_t, Variant& results) {
    results.Clear();
    const auto found = subscriptions_.find(subscriptionHandle);
    if (found == subscriptions_.end()) return;
    QueueAll(subscriptionHandle, found->second);
    results = Variant(VariantArray(ElementKind::Long, 1, found->second.items.size()));
}

void SimulatedConnection::QueueAll(int32_t handle, const Subscription& subscription) {
    for (size_t i = 0; i < subscription.items.size(); ++i)
        if (subscription.items[i].key) Queue({handle, i});
}

void SimulatedConnection::Queue(Pending pending) {
    if (std::find(pending_.begin(), pending_.end(), pending) == pending_.end()) pending_.push_back(pending);
}

void SimulatedConnection::OnChange(const ItemKey& key) {
    for (const auto& [handle, subscription] : subscriptions_)
        for (size_t i = 0; i < subscription.items.size(); ++i)
            if (subscription.items[i].key == key) Queue({handle, i});
}

int32_t SimulatedConnection::Pump() {
    std::vector<Pending> batch;
    batch.swap(pending_);
    // Items of subscriptions without a callback yet wait for it; the rest are grouped per subscription.
    std::map<int32_t, std::vector<size_t>> ready;
    for (const Pending& pending : batch) {
        const auto found = subscriptions_.find(pending.subscription);
        if (found == subscriptions_.end()) continue;
        if (!found->second.callback)
            pending_.push_back(pending);
        else
            ready[pending.subscription].push_back(pending.item);
    }
    int32_t delivered = 0;
    for (const auto& [handle, items] : ready) {
        // A callback may have removed this subscription meanwhile.
        if (!subscriptions_.contains(handle)) continue;
        Deliver(handle, items);
        delivered += static_cast<int32_t>(items.size());
    }
    return delivered;
}

void SimulatedConnection::Deliver(int32_t handle, const std::vector<size_t>& items) {
    const Subscription& subscription = subscriptions_.at(handle);
    DataChangeBatch batch(items.size());
    const Date now = server_->Now();
    for (size_t i = 0; i < items.size(); ++i) {
        const Item& item = subscription.items[items[i]];
        try {
            batch.Set(i, item.clientHandle, server_->Database().Read(*item.key), kGoodQuality, now);
        } catch (const VexlStatus&) {
            batch.Set(i, item.clientHandle, Variant(), kBadQuality, now);
        }
    }
    batch.Send(*subscription.callback, NextNumber(nextTransaction_), handle);
}

Variant SimulatedConnection::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (kind == CallKind::Method && EqualsIgnoringCase(member, "Pump")) return Pump();
    return Connection::Invoke(member, kind, args);
}

}  // namespace trovane::sim
