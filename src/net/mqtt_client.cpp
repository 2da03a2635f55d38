#include "net/mqtt_client.h"

#include <mosquitto.h>
#include <mqtt_protocol.h>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <random>

namespace trovane::net {

namespace {

constexpr int kKeepAliveSeconds = 10;
constexpr int kQos = 1;

// The library is set up once per process and never torn down: clients may live in statics.
void InitialiseLibrary() {
    static const int once = [] { return mosquitto_lib_init(); }();
    (void)once;
}

std::string UniqueClientId() {
    static std::atomic<unsigned> counter{0};
    std::random_device random;
    // Only letters, digits and "_": the id appears unescaped in its reply topic, which the access
    // list matches by client id.
    return "trovane_" + std::to_string(random()) + "_" + std::to_string(counter++);
}

std::string ReasonText(int reason) {
    switch (reason) {
        case MQTT_RC_BAD_USERNAME_OR_PASSWORD:
            return "the user name or password was not accepted";
        case MQTT_RC_NOT_AUTHORIZED:
            // What the broker answers a wrong password with, too.
            return "the user name or password was not accepted, or the user may not connect";
        default:
            return mosquitto_reason_string(reason);
    }
}

std::string ReadString(const mosquitto_property* properties, int identifier) {
    char* value = nullptr;
    if (!mosquitto_property_read_string(properties, identifier, &value, false) || !value) return {};
    std::string text(value);
    std::free(value);
    return text;
}

}  // namespace

std::string ParseBrokerUrl(std::string_view url, BrokerOptions& options) {
    std::string_view rest;
    if (url.starts_with("mqtt://")) {
        options.tls = false;
        options.port = 1883;
        rest = url.substr(7);
    } else if (url.starts_with("mqtts://")) {
        options.tls = true;
        options.port = 8883;
        rest = url.substr(8);
    } else {
        return "the broker address must start with mqtt:// or mqtts://, not \"" + std::string(url) + "\"";
    }
    if (const size_t query = rest.find('?'); query != std::string_view::npos) {
        const std::string_view parameter = rest.substr(query + 1);
        if (!parameter.starts_with("cafile=") || parameter.size() == 7)
            return "the broker address understands only ?cafile=FILE, not \"" + std::string(parameter) + "\"";
        options.caFile = parameter.substr(7);
        rest = rest.substr(0, query);
    }
    if (!rest.empty() && rest.back() == '/') rest.remove_suffix(1);
    if (const size_t at = rest.rfind('@'); at != std::string_view::npos) {
        const std::string_view credentials = rest.substr(0, at);
        const size_t colon = credentials.find(':');
        options.user = credentials.substr(0, colon);
        options.password =
            colon == std::string_view::npos ? std::string() : std::string(credentials.substr(colon + 1));
        if (options.user.empty()) return "no broker user before the @ in the broker address";
        rest = rest.substr(at + 1);
    }
    const size_t colon = rest.rfind(':');
    std::string_view host = rest.substr(0, colon);
    if (colon != std::string_view::npos) {
        const std::string_view port = rest.substr(colon + 1);
        int value = 0;
        const auto [end, failure] = std::from_chars(port.data(), port.data() + port.size(), value);
        if (failure != std::errc() || end != port.data() + port.size() || value < 1 || value > 65535)
            return "the broker port must be a number from 1 to 65535, not \"" + std::string(port) + "\"";
        options.port = value;
    }
    if (host.empty() || host.find_first_of("/@ ") != std::string_view::npos)
        return "no broker host in \"" + std::string(url) + "\"";
    options.host = host;
    return {};
}

MqttClient::MqttClient(BrokerOptions options, Handlers handlers)
    : options_(std::move(options)), handlers_(std::move(handlers)) {
    InitialiseLibrary();
    if (options_.clientId.empty()) options_.clientId = UniqueClientId();
    handle_ = mosquitto_new(options_.clientId.c_str(), true, this);
    if (!handle_) throw NetworkError("cannot create a broker client");
    mosquitto_int_option(handle_, MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V5);
    // A request or answer is a small packet written right after the acknowledgement of the one
    // before; held back for the peer's delayed acknowledgement it would wait tens of milliseconds.
    mosquitto_int_option(handle_, MOSQ_OPT_TCP_NODELAY, 1);
    mosquitto_connect_v5_callback_set(handle_, &MqttClient::OnConnect);
    mosquitto_disconnect_v5_callback_set(handle_, &MqttClient::OnDisconnect);
    mosquitto_message_v5_callback_set(handle_, &MqttClient::OnMessage);
    mosquitto_log_callback_set(handle_, &MqttClient::OnLog);
    mosquitto_publish_v5_callback_set(handle_, &MqttClient::OnPublished);
    mosquitto_subscribe_v5_callback_set(handle_, &MqttClient::OnSubscribed);
    // Back-off after a lost connection: 1 s, 2 s, 4 s ... at most 8 s between attempts.
    mosquitto_reconnect_delay_set(handle_, 1, 8, true);
    if (!options_.user.empty())
        mosquitto_username_pw_set(handle_, options_.user.c_str(),
                                  options_.password.empty() ? nullptr : options_.password.c_str());
    if (options_.tls) {
        const int rc = mosquitto_tls_set(handle_, options_.caFile.empty() ? nullptr : options_.caFile.c_str(),
                                         options_.caFile.empty() ? "/etc/ssl/certs" : nullptr, nullptr,
                                         nullptr, nullptr);
        if (rc != MOSQ_ERR_SUCCESS) {
            mosquitto_destroy(handle_);
            throw NetworkError("TLS set-up failed (" + options_.caFile + "): " + mosquitto_strerror(rc));
        }
    }
}

MqttClient::~MqttClient() {
    Disconnect();
    mosquitto_destroy(handle_);
}

std::string MqttClient::Describe() const {
    return std::string(options_.tls ? "mqtts://" : "mqtt://") + options_.host + ":" +
           std::to_string(options_.port);
}

void MqttClient::SetWill(const std::string& topic, std::string_view payload) {
    mosquitto_will_set_v5(handle_, topic.c_str(), static_cast<int>(payload.size()), payload.data(), kQos,
                          true, nullptr);
}

void MqttClient::Connect() {
    {
        std::lock_guard lock(mutex_);
        refusal_.reset();
        lastError_.clear();
    }
    int rc = mosquitto_connect_bind_v5(handle_, options_.host.c_str(), options_.port, kKeepAliveSeconds,
                                       nullptr, nullptr);
    if (rc == MOSQ_ERR_ERRNO)
        throw NetworkError("cannot reach the broker at " + Describe() + ": " + std::strerror(errno));
    if (rc != MOSQ_ERR_SUCCESS)
        throw NetworkError("cannot connect to the broker at " + Describe() + ": " + mosquitto_strerror(rc));
    rc = mosquitto_loop_start(handle_);
    if (rc != MOSQ_ERR_SUCCESS)
        throw NetworkError(std::string("no network thread: ") + mosquitto_strerror(rc));
    started_ = true;
    std::unique_lock lock(mutex_);
    const bool answered = changed_.wait_for(lock, options_.connectTimeout,
                                            [this] { return connected_ || refusal_.has_value(); });
    if (connected_) return;
    const std::string reason =
        refusal_ ? "the broker at " + Describe() + " refused the connection: " + ReasonText(*refusal_)
                 : "no answer from the broker at " + Describe() + " within " +
                       std::to_string(options_.connectTimeout.count()) + " ms" +
                       (lastError_.empty() ? "" : " (" + lastError_ + ")");
    (void)answered;
    lock.unlock();
    Disconnect();
    throw NetworkError(reason);
}

void MqttClient::Disconnect() {
    if (!started_) return;
    mosquitto_disconnect_v5(handle_, MQTT_RC_NORMAL_DISCONNECTION, nullptr);
    mosquitto_loop_stop(handle_, false);
    started_ = false;
    std::lock_guard lock(mutex_);
    connected_ = false;
}

bool MqttClient::Publish(const std::string& topic, std::string_view payload, bool retain,
                         const MqttMessage* properties) {
    mosquitto_property* list = nullptr;
    if (properties) {
        if (!properties->responseTopic.empty())
            mosquitto_property_add_string(&list, MQTT_PROP_RESPONSE_TOPIC, properties->responseTopic.c_str());
        if (!properties->correlation.empty())
            mosquitto_property_add_binary(&list, MQTT_PROP_CORRELATION_DATA, properties->correlation.data(),
                                          static_cast<uint16_t>(properties->correlation.size()));
        if (!properties->user.empty())
            mosquitto_property_add_string_pair(&list, MQTT_PROP_USER_PROPERTY, "user",
                                               properties->user.c_str());
    }
    int mid = 0;
    const int rc = mosquitto_publish_v5(handle_, &mid, topic.c_str(), static_cast<int>(payload.size()),
                                        payload.data(), kQos, retain, list);
    mosquitto_property_free_all(&list);
    if (rc == MOSQ_ERR_SUCCESS && handlers_.onRefused) Track(mid, "publish on " + topic);
    return rc == MOSQ_ERR_SUCCESS;
}

bool MqttClient::Subscribe(const std::string& topic) {
    int mid = 0;
    const int rc = mosquitto_subscribe_v5(handle_, &mid, topic.c_str(), kQos, 0, nullptr);
    if (rc == MOSQ_ERR_SUCCESS && handlers_.onRefused) Track(mid, "read " + topic);
    return rc == MOSQ_ERR_SUCCESS;
}

void MqttClient::Track(int mid, std::string what) {
    // The acknowledgement may come before the id is tracked: a refusal seen first waits here.
    // Ids are reused after 65535; an entry whose acknowledgement was lost with a connection is
    // simply overwritten.
    {
        std::lock_guard lock(mutex_);
        if (!refusedFirst_.erase(mid)) {
            pending_[mid] = std::move(what);
            return;
        }
    }
    Refuse(what);
}

void MqttClient::Refused(int mid) {
    if (!handlers_.onRefused) return;
    std::string what;
    {
        std::lock_guard lock(mutex_);
        const auto found = pending_.find(mid);
        if (found == pending_.end()) {
            refusedFirst_.insert(mid);
            return;
        }
        what = std::move(found->second);
        pending_.erase(found);
    }
    Refuse(what);
}

void MqttClient::Refuse(const std::string& what) {
    const std::string user = options_.user.empty() ? "an anonymous client" : "the user " + options_.user;
    handlers_.onRefused("the broker at " + Describe() + " does not allow " + user + " to " + what);
}

void MqttClient::OnPublished(mosquitto*, void* self, int mid, int reason, const mosquitto_property*) {
    auto& client = *static_cast<MqttClient*>(self);
    if (reason >= 0x80) return client.Refused(mid);
    std::lock_guard lock(client.mutex_);
    client.pending_.erase(mid);
}

void MqttClient::OnSubscribed(mosquitto*, void* self, int mid, int count, const int* granted,
                              const mosquitto_property*) {
    auto& client = *static_cast<MqttClient*>(self);
    for (int i = 0; i < count; ++i)
        if (granted[i] >= 0x80) return client.Refused(mid);
    std::lock_guard lock(client.mutex_);
    client.pending_.erase(mid);
    ++client.subscriptionsGranted_;
    client.changed_.notify_all();
}

bool MqttClient::WaitForSubscriptions(size_t count, std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, patience, [&] { return subscriptionsGranted_ >= count; });
}

bool MqttClient::Unsubscribe(const std::string& topic) {
    return mosquitto_unsubscribe_v5(handle_, nullptr, topic.c_str(), nullptr) == MOSQ_ERR_SUCCESS;
}

bool MqttClient::Connected() const {
    std::lock_guard lock(mutex_);
    return connected_;
}

void MqttClient::OnConnect(mosquitto*, void* self, int reason, int, const mosquitto_property*) {
    auto& client = *static_cast<MqttClient*>(self);
    {
        std::lock_guard lock(client.mutex_);
        if (reason == 0)
            client.connected_ = true;
        else if (!client.refusal_)
            client.refusal_ = reason;
    }
    client.changed_.notify_all();
    if (reason == 0 && client.handlers_.onConnect) client.handlers_.onConnect();
}

void MqttClient::OnDisconnect(mosquitto*, void* self, int, const mosquitto_property*) {
    auto& client = *static_cast<MqttClient*>(self);
    {
        std::lock_guard lock(client.mutex_);
        client.connected_ = false;
    }
    client.changed_.notify_all();
    if (client.handlers_.onDisconnect) client.handlers_.onDisconnect();
}

void MqttClient::OnMessage(mosquitto*, void* self, const mosquitto_message* message,
                           const mosquitto_property* properties) {
    auto& client = *static_cast<MqttClient*>(self);
    if (!client.handlers_.onMessage) return;
    MqttMessage received;
    received.topic = message->topic;
    if (message->payloadlen > 0)
        received.payload.assign(static_cast<const char*>(message->payload),
                                static_cast<size_t>(message->payloadlen));
    received.retained = message->retain;
    received.responseTopic = ReadString(properties, MQTT_PROP_RESPONSE_TOPIC);
    void* correlation = nullptr;
    uint16_t size = 0;
    if (mosquitto_property_read_binary(properties, MQTT_PROP_CORRELATION_DATA, &correlation, &size, false) &&
        correlation) {
        received.correlation.assign(static_cast<const char*>(correlation), size);
        std::free(correlation);
    }
    bool skipFirst = false;
    for (const mosquitto_property* at = properties; at; skipFirst = true) {
        char* name = nullptr;
        char* value = nullptr;
        at = mosquitto_property_read_string_pair(at, MQTT_PROP_USER_PROPERTY, &name, &value, skipFirst);
        if (at && name && value && std::string_view(name) == "user") received.user = value;
        std::free(name);
        std::free(value);
    }
    client.handlers_.onMessage(received);
}

void MqttClient::OnLog(mosquitto*, void* self, int level, const char* text) {
    if (level != MOSQ_LOG_ERR || !text) return;
    auto& client = *static_cast<MqttClient*>(self);
    std::lock_guard lock(client.mutex_);
    client.lastError_ = text;
}

}  // namespace trovane::net
