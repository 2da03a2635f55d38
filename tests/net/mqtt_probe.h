#pragma once
// A bare broker client for the network tests: publishes requests as a workstation would and keeps
// every message it receives, for the test to wait for (with a generous time-out, never a fixed
// sleep).

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

#include "net/mqtt_client.h"
#include "net/topics.h"
#include "net/wire_messages.h"

namespace trovane::net::testing {

inline constexpr auto kPatience = std::chrono::seconds(30);

class MqttProbe {
  public:
    explicit MqttProbe(int port, std::string clientId = "probe") {
        BrokerOptions options;
        options.port = port;
        options.clientId = std::move(clientId);
        client_ = std::make_unique<MqttClient>(options, MqttClient::Handlers{{},
                                                                             {},
                                                                             [this](const MqttMessage& m) {
                                                                                 std::lock_guard lock(mutex_);
                                                                                 messages_.push_back(m);
                                                                                 arrived_.notify_all();
                                                                             },
                                                                             {}});
        client_->Connect();
    }

    MqttClient& Client() { return *client_; }

    // Subscribes and waits until the broker has confirmed it (by a round trip of our own).
    void Subscribe(const std::string& topic) {
        client_->Subscribe(topic);
        Sync();
    }
    // Publishes a marker to ourselves and waits for it: everything queued before it has arrived.
    void Sync() {
        const std::string marker = "probe-sync/" + client_->Options().clientId;
        client_->Subscribe(marker);
        const std::string token = std::to_string(++syncs_);
        client_->Publish(marker, token, false);
        Take([&](const MqttMessage& m) { return m.topic == marker && m.payload == token; });
    }

    // Sends a request and waits for its answer.
    Response Ask(const Request& request, int32_t application = 1) {
        return AskRaw(EncodeRequest(request), application).value();
    }
    std::optional<Response> AskRaw(const std::string& payload, int32_t application = 1,
                                   std::chrono::milliseconds patience = kPatience) {
        const std::string reply = ReplyTopic(application, client_->Options().clientId);
        if (!subscribedReply_) {
            Subscribe(reply);
            subscribedReply_ = true;
        }
        MqttMessage properties;
        properties.responseTopic = reply;
        properties.correlation = std::to_string(++requests_);
        client_->Publish(RequestTopic(application), payload, false, &properties);
        const auto answer = TakeWithin(
            [&](const MqttMessage& m) { return m.topic == reply && m.correlation == properties.correlation; },
            patience);
        if (!answer) return std::nullopt;
        return DecodeResponse(answer->payload);
    }

    // Waits for (and removes) the first message that satisfies `match`; fails the test after kPatience.
    template <typename Match>
    MqttMessage Take(Match match) {
        auto message = TakeWithin(match, kPatience);
        if (!message) {
            ADD_FAILURE() << "no such message arrived";
            return {};
        }
        return *message;
    }
    MqttMessage TakeTopic(const std::string& topic) {
        return Take([&](const MqttMessage& m) { return m.topic == topic; });
    }
    template <typename Match>
    std::optional<MqttMessage> TakeWithin(Match match, std::chrono::milliseconds patience) {
        std::unique_lock lock(mutex_);
        std::optional<MqttMessage> found;
        arrived_.wait_for(lock, patience, [&] {
            for (auto it = messages_.begin(); it != messages_.end(); ++it)
                if (match(*it)) {
                    found = *it;
                    messages_.erase(it);
                    return true;
                }
            return false;
        });
        return found;
    }
    // Waits until `done` holds for everything received and not taken; false after the patience.
    template <typename Done>
    bool WaitUntil(Done done, std::chrono::milliseconds patience = kPatience) {
        std::unique_lock lock(mutex_);
        return arrived_.wait_for(lock, patience, [&] { return done(std::as_const(messages_)); });
    }
    std::deque<MqttMessage> Messages() {
        std::lock_guard lock(mutex_);
        return messages_;
    }
    void Forget() {
        std::lock_guard lock(mutex_);
        messages_.clear();
    }
    size_t Count(const std::string& topic) {
        std::lock_guard lock(mutex_);
        return static_cast<size_t>(std::count_if(messages_.begin(), messages_.end(),
                                                 [&](const MqttMessage& m) { return m.topic == topic; }));
    }

  private:
    std::unique_ptr<MqttClient> client_;
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<MqttMessage> messages_;
    int syncs_ = 0;
    int requests_ = 0;
    bool subscribedReply_ = false;
};

}  // namespace trovane::net::testing
