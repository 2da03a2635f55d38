#pragma once
// A connection object for tests: scripted command answers and recorded subscriptions.
//
// Commands: IsReady answers what SetReady said (or throws after ThrowOnIsReady). ExecuteCommand
// records the application number and the command, then answers from the queue (QueueAnswer,
// QueueError), else from the responder function (RespondWith), else Empty with status 0.
// Subscriptions: AddItems hands out handles 1, 2, ... and records the items; SetCallback,
// RemoveItems and RefreshItems are recorded; Notify delivers a change to the callback registered for
// a handle, as the real connection does when the server's value changes.

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/error.h"
#include "core/variant.h"
#include "platform/connection.h"

namespace trovane::testing {

class FakeConnection : public Connection {
  public:
    struct Answer {
        Variant result;
        int32_t status = 0;
        std::optional<Error> error;
    };
    struct SentCommand {
        int16_t application;
        std::string command;
    };
    struct Subscription {
        int32_t handle = 0;
        Variant clientHandles;
        Variant itemPaths;
        int32_t itemType = 0;
        int32_t updateRate = 0;
        SysDataCallback* callback = nullptr;
        bool removed = false;
    };
    struct Refresh {
        int32_t handle;
        int32_t source;
    };

    // The connection as the host hands it over: an object inside a variant.
    Variant AsVariant() { return Variant(shared_from_this()); }

    void SetReady(bool ready) { ready_ = ready; }
    void ThrowOnIsReady(bool fail = true) { failReady_ = fail; }
    void QueueAnswer(Variant result, int32_t status = 0) {
        answers_.push_back(Answer{std::move(result), status, {}});
    }
    void QueueError(Error error) { answers_.push_back(Answer{Variant(), 0, std::move(error)}); }
    void RespondWith(std::function<Answer(int16_t application, const std::string& command)> responder) {
        responder_ = std::move(responder);
    }

    bool IsReady() override {
        ++readyReads;
        if (failReady_) throw Error(ErrorNumber::MemberNotSupported, "IsReady");
        return ready_;
    }

    void ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                        int32_t& status) override {
        sent.push_back(SentCommand{application, command});
        Answer answer = NextAnswer(application, command);
        if (answer.error) throw *answer.error;
        result = std::move(answer.result);
        status = answer.status;
    }

    // The command texts in the order they were sent.
    std::vector<std::string> Commands() const {
        std::vector<std::string> texts;
        for (const SentCommand& command : sent) texts.push_back(command.command);
        return texts;
    }

    void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                  int32_t updateRate, int32_t& subscriptionHandle, Variant& results) override {
        subscriptionHandle = static_cast<int32_t>(subscriptions.size()) + 1;
        subscriptions.push_back(
            Subscription{subscriptionHandle, clientHandles, itemPaths, itemType, updateRate, nullptr, false});
        const size_t count = itemPaths.IsArray() ? itemPaths.AsArray().Size() : 0;
        results = MakeLongArray(std::vector<int32_t>(count, 0));
    }

    void SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) override {
        if (Subscription* subscription = Find(subscriptionHandle)) subscription->callback = callback;
    }

    void RemoveItems(int32_t subscriptionHandle) override {
        removedHandles.push_back(subscriptionHandle);
        if (Subscription* subscription = Find(subscriptionHandle)) {
            subscription->removed = true;
            subscription->callback = nullptr;
        }
    }

    void RefreshItems(int32_t subscriptionHandle, int32_t source, Variant& results) override {
        refreshes.push_back(Refresh{subscriptionHandle, source});
        results = Variant();
        if (onRefresh) onRefresh(subscriptionHandle);
    }

    Subscription* Find(int32_t handle) {
        if (handle < 1 || handle > static_cast<int32_t>(subscriptions.size())) return nullptr;
        return &subscriptions[static_cast<size_t>(handle - 1)];
    }

    // Delivers a change of the given client handles to the subscription's callback; false when the
    // handle has no live callback.
    bool Notify(int32_t handle, std::vector<int32_t> clientHandles, std::vector<Variant> values) {
        Subscription* subscription = Find(handle);
        if (subscription == nullptr || subscription->callback == nullptr) return false;
        const auto count = static_cast<int32_t>(clientHandles.size());
        const Variant qualities = MakeLongArray(std::vector<int32_t>(clientHandles.size(), 192));
        const Variant stamps = MakeVariantArray(std::vector<Variant>(clientHandles.size(), Variant(Date{})));
        subscription->callback->OnDataChange(0, handle, count, MakeLongArray(std::move(clientHandles)),
                                             MakeVariantArray(std::move(values)), qualities, stamps);
        return true;
    }

    int32_t readyReads = 0;
    std::vector<SentCommand> sent;
    std::vector<Subscription> subscriptions;
    std::vector<int32_t> removedHandles;
    std::vector<Refresh> refreshes;
    std::function<void(int32_t handle)> onRefresh;  // e.g. Notify the current values again

  private:
    Answer NextAnswer(int16_t application, const std::string& command) {
        if (!answers_.empty()) {
            Answer answer = std::move(answers_.front());
            answers_.pop_front();
            return answer;
        }
        if (responder_) return responder_(application, command);
        return Answer{};
    }

    bool ready_ = true;
    bool failReady_ = false;
    std::deque<Answer> answers_;
    std::function<Answer(int16_t, const std::string&)> responder_;
};

}  // namespace trovane::testing
