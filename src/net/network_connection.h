#pragma once
// The workstation's connection to a server on the broker (network_server.h), as the platform's
// Connection.
//
// IsReady is true while the broker connection stands and the server has answered a ping since it
// last came online. ExecuteCommand publishes the command on the application's request topic with
// the operator's user name and waits for the answer; when none comes within the command time-out,
// or the broker connection or the server goes away meanwhile, it raises an error, which the
// command channel traces as its failed line and turns into Empty.
//
// Subscriptions map to item topics: AddItems asks the server for a result per path and subscribes
// the topics of the known ones; the broker then sends each retained current value. Values arrive on
// the network thread and are only queued there; Pump, on the host's UI thread, delivers them, one
// OnDataChange per subscription, an item changed twice since the last pump once with its latest
// value, as the in-process connection does. After a lost broker connection the library reconnects
// with back-off and the connection subscribes everything again; when the server comes back online
// it is pinged and asked for the items again, so values flow without reopening anything.

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "net/mqtt_client.h"
#include "net/wire_messages.h"
#include "platform/connection.h"

namespace trovane::net {

struct NetworkConnectionOptions {
    BrokerOptions broker;
    int16_t application = 1;
    std::string user;  // the operator; travels with every command
    std::chrono::milliseconds commandTimeout{10000};
    std::function<void(const std::string&)> log;  // dropped messages; standard error when empty
};

// The error number of a command that got no answer (the classic runtime's automation error).
inline constexpr int32_t kNoAnswerError = 440;

class NetworkConnection final : public Connection {
  public:
    // Connects to the broker; NetworkError when it refuses or does not answer (see MqttClient).
    explicit NetworkConnection(NetworkConnectionOptions options);
    ~NetworkConnection() override;
    NetworkConnection(const NetworkConnection&) = delete;
    NetworkConnection& operator=(const NetworkConnection&) = delete;

    std::string ClassName() const override { return "NetworkConnection"; }

    // Waits until IsReady or the time is up; answers IsReady. NetworkError when the broker's access
    // list refuses what the workstation needs (its request topic, its reply topic, the items).
    bool WaitUntilReady(std::chrono::milliseconds patience);

    bool IsReady() override;
    void ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                        int32_t& status) override;
    void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                  int32_t updateRate, int32_t& subscriptionHandle, Variant& results) override;
    void SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) override;
    void RemoveItems(int32_t subscriptionHandle) override;
    void RefreshItems(int32_t subscriptionHandle, int32_t source, Variant& results) override;

    // Delivers what arrived since the last pump; returns the number of items delivered.
    int32_t Pump();
    // Waits (on the UI thread) until something is queued for a pump or the time is up.
    bool WaitForNotifications(std::chrono::milliseconds patience);
    size_t SubscriptionCount() const { return subscriptions_.size(); }

    // Adds "Pump" to the connection's members by name.
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

  private:
    struct Item {
        int32_t clientHandle = 0;
        std::string path;
        std::optional<std::string> topic;  // nothing for an item the server does not know
    };
    struct Subscription {
        std::vector<Item> items;
        SysDataCallback* callback = nullptr;
        std::set<size_t> pending;  // items to deliver from the cache at the next pump
    };
    struct Waiting {
        std::optional<Response> response;
        std::string failure;
    };

    // Runs one request and waits for its answer; raises on time-out or loss.
    Response Ask(int16_t application, Request request);
    bool Send(int16_t application, const Request& request, const std::string& correlation);
    void OnConnect();
    void OnDisconnect();
    void OnMessage(const MqttMessage& message);
    void OnRefused(const std::string& refusal);
    void FailWaiting(const std::string& why);
    void Deliver(int32_t handle, const std::vector<size_t>& items,
                 const std::map<std::string, Variant>& values);
    void Log(const std::string& line) const;

    NetworkConnectionOptions options_;
    std::string replyTopic_;
    std::unique_ptr<MqttClient> client_;

    // Shared with the network thread, under mutex_.
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    bool serverAnswered_ = false;
    std::string accessError_;                        // the first refusal of the broker's access list
    std::map<std::string, Waiting> waiting_;         // by correlation
    std::map<std::string, int> topicUsers_;          // subscribed item topics and how many items use each
    std::map<std::string, std::string> topicPaths_;  // an item path per topic, to ask the server again
    std::map<std::string, Variant> values_;          // the latest value of each subscribed topic
    std::set<std::string> arrived_;                  // topics with a value not yet pumped
    uint64_t nextCorrelation_ = 1;

    // UI thread only.
    std::map<int32_t, Subscription> subscriptions_;
    int32_t nextHandle_ = 1;
    int32_t nextTransaction_ = 1;
};

}  // namespace trovane::net
