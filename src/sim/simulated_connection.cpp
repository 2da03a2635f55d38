#include "sim/simulated_connection.h"

#include <algorithm>
#include <cstdint>

#include "core/conversions.h"
#include "core/error.h"
#include "sim/item_path.h"

namespace trovane::sim {

namespace {

constexpr int32_t kGoodQuality = 192;
constexpr int32_t kBadQuality = 0;

const VariantArray& ArrayArgument(const Variant& value, const char* what) {
    if (!value.IsArray())
        throw Error(ErrorNumber::InvalidCall, std::string("AddItems: ") + what + " must be an array");
    return value.AsArray();
}

// Handles and transaction numbers count from 1 and start over rather than overflow.
int32_t NextNumber(int32_t& counter) {
    const int32_t number = counter;
    counter = counter == INT32_MAX ? 1 : counter + 1;
    return number;
}

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
    const VariantArray& handles = ArrayArgument(clientHandles, "the client handles");
    const VariantArray& paths = ArrayArgument(itemPaths, "the item paths");
    if (handles.Size() != paths.Size())
        throw Error(ErrorNumber::InvalidCall, "AddItems: as many client handles as item paths are needed");
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
    const size_t count = items.size();
    VariantArray clientHandles(ElementKind::Long, 0, count);
    VariantArray values(ElementKind::Variant, 0, count);
    VariantArray qualities(ElementKind::Long, 0, count);
    VariantArray timeStamps(ElementKind::Date, 0, count);
    const Date now = server_->Now();
    for (size_t i = 0; i < count; ++i) {
        const Item& item = subscription.items[items[i]];
        const auto position = static_cast<int64_t>(i);
        clientHandles.Set(position, item.clientHandle);
        timeStamps.Set(position, now);
        try {
            values.Set(position, server_->Database().Read(*item.key));
            qualities.Set(position, kGoodQuality);
        } catch (const VexlStatus&) {
            qualities.Set(position, kBadQuality);
        }
    }
    subscription.callback->OnDataChange(NextNumber(nextTransaction_), handle, static_cast<int32_t>(count),
                                        Variant(std::move(clientHandles)), Variant(std::move(values)),
                                        Variant(std::move(qualities)), Variant(std::move(timeStamps)));
}

Variant SimulatedConnection::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (kind == CallKind::Method && EqualsIgnoringCase(member, "Pump")) return Pump();
    return Connection::Invoke(member, kind, args);
}

}  // namespace trovane::sim
