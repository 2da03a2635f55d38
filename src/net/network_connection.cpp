#include "net/network_connection.h"

#include <iostream>

#include "core/conversions.h"
#include "core/error.h"
#include "net/topics.h"
#include "net/variant_wire.h"
#include "platform/clock.h"
#include "platform/connection_support.h"

namespace trovane::net {

namespace {

constexpr int32_t kGoodQuality = 192;
constexpr std::string_view kPingPrefix = "ping-";
constexpr std::string_view kItemsPrefix = "items-";

}  // namespace

NetworkConnection::NetworkConnection(NetworkConnectionOptions options) : options_(std::move(options)) {
    client_ = std::make_unique<MqttClient>(
        options_.broker, MqttClient::Handlers{[this] { OnConnect(); }, [this] { OnDisconnect(); },
                                              [this](const MqttMessage& message) { OnMessage(message); },
                                              [this](const std::string& refusal) { OnRefused(refusal); }});
    replyTopic_ = ReplyTopic(options_.application, client_->Options().clientId);
    client_->Connect();
}

NetworkConnection::~NetworkConnection() {
    client_->Disconnect();
}

void NetworkConnection::Log(const std::string& line) const {
    if (options_.log)
        options_.log(line);
    else
        std::cerr << "trovane network: " << line << std::endl;
}

bool NetworkConnection::WaitUntilReady(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    const bool ready = changed_.wait_for(lock, patience, [this] {
        return (serverAnswered_ && client_->Connected()) || !accessError_.empty();
    });
    if (!accessError_.empty()) throw NetworkError(accessError_);
    return ready;
}

void NetworkConnection::OnRefused(const std::string& refusal) {
    Log(refusal);
    {
        std::lock_guard lock(mutex_);
        if (accessError_.empty()) accessError_ = refusal;
    }
    // A command already sent is not answered when its request or its answer was refused.
    FailWaiting(refusal);
}

bool NetworkConnection::IsReady() {
    std::lock_guard lock(mutex_);
    return serverAnswered_ && client_->Connected();
}

bool NetworkConnection::Send(int16_t application, const Request& request, const std::string& correlation) {
    MqttMessage properties;
    properties.responseTopic = ReplyTopic(application, client_->Options().clientId);
    properties.correlation = correlation;
    properties.user = options_.user;
    return client_->Publish(RequestTopic(application), EncodeRequest(request), false, &properties);
}

Response NetworkConnection::Ask(int16_t application, Request request) {
    request.user = options_.user;
    {
        std::lock_guard lock(mutex_);
        if (!accessError_.empty()) throw Error(kNoAnswerError, accessError_);
    }
    if (application != options_.application) {
        // Answers for another application come on that application's reply topic.
        client_->Subscribe(ReplyTopic(application, client_->Options().clientId));
    }
    std::unique_lock lock(mutex_);
    const std::string correlation = "cmd-" + std::to_string(nextCorrelation_++);
    waiting_[correlation];
    lock.unlock();
    if (!Send(application, request, correlation)) {
        lock.lock();
        waiting_.erase(correlation);
        throw Error(kNoAnswerError, "not connected to the broker at " + client_->Describe());
    }
    lock.lock();
    const bool answered = changed_.wait_for(lock, options_.commandTimeout, [&] {
        const Waiting& waiting = waiting_.at(correlation);
        return waiting.response.has_value() || !waiting.failure.empty();
    });
    Waiting waiting = std::move(waiting_.at(correlation));
    waiting_.erase(correlation);
    if (waiting.response) return std::move(*waiting.response);
    std::string why = waiting.failure;
    if (!answered) {
        why = "the server did not answer within " + std::to_string(options_.commandTimeout.count()) + " ms";
        // Not ready until the server proves itself again.
        serverAnswered_ = false;
        lock.unlock();
        Send(options_.application, {RequestKind::Ping, options_.user, "", {}},
             std::string(kPingPrefix) + "again");
    }
    throw Error(kNoAnswerError, why);
}

void NetworkConnection::ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                                       int32_t& status) {
    result.Clear();
    Response response = Ask(application, {RequestKind::Execute, options_.user, command, {}});
    result = std::move(response.result);
    status = response.status;
}

void NetworkConnection::AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t, int32_t,
                                 int32_t& subscriptionHandle, Variant& results) {
    const auto [handles, paths] = CheckedAddItemsArguments(clientHandles, itemPaths);
    Subscription subscription;
    Request request{RequestKind::Items, options_.user, "", {}};
    for (size_t i = 0; i < paths.Size(); ++i) {
        const Variant& path = paths.Elements()[i];
        subscription.items.push_back(
            {ToInt32(handles.Elements()[i]), path.IsString() ? path.AsString() : "", {}});
        request.paths.push_back(subscription.items.back().path);
    }
    const Response answer = Ask(options_.application, request);
    const bool shaped = answer.result.IsArray() && answer.result.AsArray().Size() == paths.Size();
    VariantArray itemResults(ElementKind::Long, paths.LowerBound(), paths.Size());
    std::vector<std::string> newTopics;
    {
        std::lock_guard lock(mutex_);
        for (size_t i = 0; i < paths.Size(); ++i) {
            Item& item = subscription.items[i];
            const int32_t result = shaped ? ToInt32(answer.result.AsArray().Elements()[i]) : answer.status;
            itemResults.Set(paths.LowerBound() + static_cast<int64_t>(i), result);
            if (result != 0) continue;
            item.topic = ItemPathTopic(item.path);
            if (!item.topic) continue;
            if (topicUsers_[*item.topic]++ == 0) {
                newTopics.push_back(*item.topic);
                topicPaths_[*item.topic] = item.path;
            } else if (values_.contains(*item.topic)) {
                subscription.pending.insert(i);
            }
        }
    }
    for (const std::string& topic : newTopics) client_->Subscribe(topic);
    subscriptionHandle = NextNumber(nextHandle_);
    subscriptions_.emplace(subscriptionHandle, std::move(subscription));
    results = Variant(std::move(itemResults));
}

void NetworkConnection::SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) {
    const auto found = subscriptions_.find(subscriptionHandle);
    if (found == subscriptions_.end())
        throw Error(ErrorNumber::InvalidCall, "SetCallback: unknown subscription");
    found->second.callback = callback;
}

void NetworkConnection::RemoveItems(int32_t subscriptionHandle) {
    const auto found = subscriptions_.find(subscriptionHandle);
    if (found == subscriptions_.end()) return;
    std::vector<std::string> unused;
    {
        std::lock_guard lock(mutex_);
        for (const Item& item : found->second.items) {
            if (!item.topic) continue;
            if (--topicUsers_[*item.topic] > 0) continue;
            topicUsers_.erase(*item.topic);
            topicPaths_.erase(*item.topic);
            // Unsubscribed, the value would go stale; the broker sends it again on a new subscription.
            values_.erase(*item.topic);
            arrived_.erase(*item.topic);
            unused.push_back(*item.topic);
        }
    }
    subscriptions_.erase(found);
    for (const std::string& topic : unused) client_->Unsubscribe(topic);
}

void NetworkConnection::RefreshItems(int32_t subscriptionHandle, int32_t, Variant& results) {
    results.Clear();
    const auto found = subscriptions_.find(subscriptionHandle);
    if (found == subscriptions_.end()) return;
    for (size_t i = 0; i < found->second.items.size(); ++i)
        if (found->second.items[i].topic) found->second.pending.insert(i);
    results = Variant(VariantArray(ElementKind::Long, 1, found->second.items.size()));
}

bool NetworkConnection::WaitForNotifications(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, patience, [this] { return !arrived_.empty(); });
}

int32_t NetworkConnection::Pump() {
    std::set<std::string> arrived;
    std::map<std::string, Variant> values;
    {
        std::lock_guard lock(mutex_);
        arrived.swap(arrived_);
        values = values_;
    }
    std::map<int32_t, std::vector<size_t>> ready;
    for (auto& [handle, subscription] : subscriptions_) {
        for (size_t i = 0; i < subscription.items.size(); ++i) {
            const auto& topic = subscription.items[i].topic;
            if (topic && (arrived.contains(*topic) || subscription.pending.contains(i)) &&
                values.contains(*topic)) {
                if (subscription.callback)
                    ready[handle].push_back(i);
                else
                    subscription.pending.insert(i);  // waits for its callback
            }
        }
        if (subscription.callback) subscription.pending.clear();
    }
    int32_t delivered = 0;
    for (const auto& [handle, items] : ready) {
        // A callback may have removed this subscription meanwhile.
        if (!subscriptions_.contains(handle)) continue;
        Deliver(handle, items, values);
        delivered += static_cast<int32_t>(items.size());
    }
    return delivered;
}

void NetworkConnection::Deliver(int32_t handle, const std::vector<size_t>& items,
                                const std::map<std::string, Variant>& values) {
    const Subscription& subscription = subscriptions_.at(handle);
    DataChangeBatch batch(items.size());
    const Date now = SystemClock().Now();
    for (size_t i = 0; i < items.size(); ++i) {
        const Item& item = subscription.items[items[i]];
        batch.Set(i, item.clientHandle, values.at(*item.topic), kGoodQuality, now);
    }
    batch.Send(*subscription.callback, NextNumber(nextTransaction_), handle);
}

void NetworkConnection::OnConnect() {
    client_->Subscribe(replyTopic_);
    std::vector<std::string> topics;
    {
        std::lock_guard lock(mutex_);
        for (const auto& [topic, users] : topicUsers_) topics.push_back(topic);
    }
    for (const std::string& topic : topics) client_->Subscribe(topic);
    // The retained status says whether a server is there; its arrival starts the ping.
    client_->Subscribe(ServerStatusTopic(options_.application));
    // A ping now as well: a broker that refuses the request topic says so at once, even to a
    // workstation that may not read the status either.
    Send(options_.application, {RequestKind::Ping, options_.user, "", {}},
         std::string(kPingPrefix) + "connect");
}

void NetworkConnection::OnDisconnect() {
    {
        std::lock_guard lock(mutex_);
        serverAnswered_ = false;
    }
    FailWaiting("the connection to the broker was lost");
}

void NetworkConnection::FailWaiting(const std::string& why) {
    {
        std::lock_guard lock(mutex_);
        for (auto& [correlation, waiting] : waiting_)
            if (!waiting.response) waiting.failure = why;
    }
    changed_.notify_all();
}

void NetworkConnection::OnMessage(const MqttMessage& message) {
    if (message.topic == ServerStatusTopic(options_.application)) {
        if (message.payload == kServerOnline) {
            Send(options_.application, {RequestKind::Ping, options_.user, "", {}},
                 std::string(kPingPrefix) + "online");
            // A server that restarted may not have published our items yet.
            Request items{RequestKind::Items, options_.user, "", {}};
            {
                std::lock_guard lock(mutex_);
                for (const auto& [topic, path] : topicPaths_) items.paths.push_back(path);
            }
            if (!items.paths.empty()) Send(options_.application, items, std::string(kItemsPrefix) + "online");
        } else {
            {
                std::lock_guard lock(mutex_);
                serverAnswered_ = false;
            }
            FailWaiting("the server went offline");
        }
        return;
    }
    if (message.topic.starts_with(ApplicationTopic(options_.application) + "item/")) {
        Variant value;
        try {
            value = DecodeVariant(message.payload);
        } catch (const WireError& error) {
            Log("dropped a malformed value on " + message.topic + ": " + error.what());
            return;
        }
        {
            std::lock_guard lock(mutex_);
            if (!topicUsers_.contains(message.topic)) return;  // unsubscribed meanwhile
            values_[message.topic] = std::move(value);
            arrived_.insert(message.topic);
        }
        changed_.notify_all();
        return;
    }
    if (message.correlation.starts_with(kPingPrefix)) {
        {
            std::lock_guard lock(mutex_);
            serverAnswered_ = true;
        }
        changed_.notify_all();
        return;
    }
    if (message.correlation.starts_with(kItemsPrefix)) return;
    Response response;
    try {
        response = DecodeResponse(message.payload);
    } catch (const WireError& error) {
        Log("dropped a malformed answer on " + message.topic + ": " + error.what());
        return;
    }
    {
        std::lock_guard lock(mutex_);
        const auto found = waiting_.find(message.correlation);
        if (found == waiting_.end()) return;  // an answer that came too late
        found->second.response = std::move(response);
        // Any answer proves the server is there.
        serverAnswered_ = true;
    }
    changed_.notify_all();
}

Variant NetworkConnection::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (kind == CallKind::Method && EqualsIgnoringCase(member, "Pump")) return Pump();
    return Connection::Invoke(member, kind, args);
}

}  // namespace trovane::net
