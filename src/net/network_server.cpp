#include "net/network_server.h"

#include <algorithm>
#include <iostream>

#include "net/state_digest.h"
#include "net/topics.h"
#include "net/variant_wire.h"
#include "sim/item_path.h"

namespace trovane::net {

namespace {
void LogToStandardError(const std::string& line) {
    std::cerr << "trovane-server: " << line << std::endl;
}
}  // namespace

NetworkServer::NetworkServer(std::shared_ptr<sim::SimulatedServer> server, BrokerOptions broker, Log log)
    : server_(std::move(server)),
      application_(server_->Database().App().number),
      log_(log ? std::move(log) : Log(LogToStandardError)) {
    if (broker.clientId.empty()) broker.clientId = "trovane-server-" + std::to_string(application_);
    client_ = std::make_unique<MqttClient>(
        std::move(broker), MqttClient::Handlers{[this] { OnConnect(); },
                                                {},
                                                [this](const MqttMessage& message) { OnMessage(message); },
                                                [this](const std::string& refusal) { log_(refusal); }});
    client_->SetWill(ServerStatusTopic(application_), kServerOffline);
    server_->Database().SetClock(&clock_);
    listenerId_ = server_->Database().AddChangeListener([this](const sim::ItemKey& key) {
        if (std::find(changes_.begin(), changes_.end(), key) == changes_.end()) changes_.push_back(key);
    });
}

NetworkServer::~NetworkServer() {
    Stop();
    client_.reset();
    server_->Database().RemoveChangeListener(listenerId_);
    server_->Database().SetClock(nullptr);
}

// Returns once the broker has the server's request subscription: a request published before that
// would be lost, and only a workstation's ping asks again.
void NetworkServer::Start() {
    client_->Connect();
    if (!client_->WaitForSubscriptions(1, client_->Options().connectTimeout))
        log_("the broker did not confirm the request subscription in time");
}

void NetworkServer::Stop() {
    if (!client_->Connected()) return client_->Disconnect();
    client_->Publish(ServerStatusTopic(application_), kServerOffline, true);
    client_->Disconnect();
}

std::string NetworkServer::LastUser(const sim::ItemKey& key) const {
    std::lock_guard lock(usersMutex_);
    const auto found = published_.find(ItemTopic(application_, key));
    return found == published_.end() ? std::string() : found->second.user;
}

void NetworkServer::OnConnect() {
    // After every (re)connection: the broker may have lost the subscription and the status.
    client_->Subscribe(RequestTopic(application_));
    // A broker that restarted without persistence has forgotten the retained values.
    std::vector<Published> items;
    {
        std::lock_guard lock(usersMutex_);
        for (const auto& [topic, item] : published_) items.push_back(item);
    }
    for (const Published& item : items) PublishItem(item.key, item.user);
    client_->Publish(ServerStatusTopic(application_), kServerOnline, true);
}

void NetworkServer::OnMessage(const MqttMessage& message) {
    if (message.topic != RequestTopic(application_)) return;
    if (message.responseTopic.empty()) {
        log_("dropped a request without a response topic");
        return;
    }
    Request request;
    try {
        request = DecodeRequest(message.payload);
    } catch (const WireError& error) {
        log_(std::string("dropped a malformed request: ") + error.what());
        return;
    }
    if (request.user.empty()) request.user = message.user;
    const Response response = Handle(request);
    std::string payload;
    try {
        payload = EncodeResponse(response);
    } catch (const WireError& error) {
        log_(std::string("answer cannot travel: ") + error.what());
        payload = EncodeResponse({Variant(), sim::status::kProcedureFailed});
    }
    MqttMessage properties;
    properties.correlation = message.correlation;
    client_->Publish(message.responseTopic, payload, false, &properties);
}

Response NetworkServer::Handle(const Request& request) {
    switch (request.kind) {
        case RequestKind::Ping:
            return {};
        case RequestKind::Items:
            return CheckItems(request);
        case RequestKind::Execute:
            return Execute(request);
    }
    return {};
}

bool NetworkServer::Run(const std::string& command, Date time, Response& response,
                        std::vector<sim::ItemKey>& changes) {
    const uint64_t before = StateDigest(server_->Database());
    changes_.clear();
    clock_.Pin(time);
    struct Unpin {
        CommandClock& clock;
        ~Unpin() { clock.Unpin(); }
    } unpin{clock_};
    response.result = server_->Execute(command, response.status);
    changes.swap(changes_);
    return !changes.empty() || StateDigest(server_->Database()) != before;
}

void NetworkServer::Replay(const CommandRecord& record) {
    Response response;
    std::vector<sim::ItemKey> changes;
    Run(record.command, record.time, response, changes);
    std::lock_guard lock(usersMutex_);
    for (const sim::ItemKey& key : changes) {
        Published& item = published_[ItemTopic(application_, key)];
        item.key = key;
        if (!record.user.empty()) item.user = record.user;
    }
}

Response NetworkServer::Execute(const Request& request) {
    Response response;
    std::vector<sim::ItemKey> changes;
    const Date time = clock_.Now();
    const bool changed = Run(request.command, time, response, changes);
    if (changed && journal_) {
        try {
            journal_({request.user, request.command, time, changes});
        } catch (const std::exception& error) {
            // The change is in memory but not kept: the operator must not take it as done.
            log_(std::string("could not keep the state: ") + error.what());
            response = {Variant(), sim::status::kProcedureFailed};
        }
    }
    for (const sim::ItemKey& key : changes) PublishItem(key, request.user);
    return response;
}

Response NetworkServer::CheckItems(const Request& request) {
    VariantArray results(ElementKind::Long, 0, request.paths.size());
    for (size_t i = 0; i < request.paths.size(); ++i) {
        int32_t result = sim::status::kUnknownObject;
        const auto parsed = sim::ParseItemPath(request.paths[i]);
        if (parsed && parsed->application == application_) {
            try {
                server_->Database().Read(parsed->key);
                result = 0;
                bool known = false;
                {
                    std::lock_guard lock(usersMutex_);
                    known = published_.contains(ItemTopic(application_, parsed->key));
                }
                if (!known) PublishItem(parsed->key, {});
            } catch (const sim::VexlStatus& failure) {
                result = failure.Code();
            }
        }
        results.Set(static_cast<int64_t>(i), result);
    }
    return {Variant(std::move(results)), 0};
}

void NetworkServer::PublishItem(const sim::ItemKey& key, const std::string& user) {
    std::string payload;
    try {
        payload = EncodeVariant(server_->Database().Read(key));
    } catch (const sim::VexlStatus&) {
        return;  // an item that went away has nothing to show
    } catch (const WireError& error) {
        log_(std::string("item value cannot travel: ") + error.what());
        return;
    }
    const std::string topic = ItemTopic(application_, key);
    {
        std::lock_guard lock(usersMutex_);
        Published& item = published_[topic];
        item.key = key;
        if (!user.empty()) item.user = user;
    }
    MqttMessage properties;
    properties.user = user;
    client_->Publish(topic, payload, true, &properties);
}

}  // namespace trovane::net
