#pragma once
// The simulated server on the broker: one application's process database serving any number of
// workstations.
//
// It takes the commands of its application's request topic (MQTT 5 request/response: the answer
// goes to the request's response topic with its correlation data), runs them in the simulated
// server and answers result and status. Every attribute a command changes is published, retained,
// on its item topic (topics.h) with the commanding user, before the answer leaves, so a workstation
// that receives its answer has its notifications on the way and a new subscriber gets the current
// value at once. An item is first published when a workstation asks for it ("ITEMS").
//
// All server work happens on the client's network thread, one message at a time, so the simulated
// server needs no locking. A message that cannot be decoded is dropped and logged.
//
// The server sets its own clock on the database (command_clock.h): a command sees the time it
// started, so a journalled command run again at its recorded time does the same.

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "net/command_clock.h"
#include "net/mqtt_client.h"
#include "net/wire_messages.h"
#include "sim/simulated_server.h"

namespace trovane::net {

// A command that changed the database, for whoever keeps the server's state (before the answer is
// sent): its user, text, the time it ran at and the items it changed that subscribers see.
struct CommandRecord {
    std::string user;
    std::string command;
    Date time;
    std::vector<sim::ItemKey> changes;
};

class NetworkServer {
  public:
    using Log = std::function<void(const std::string&)>;
    // Called with each command that changed anything, before its answer; a throw answers the command
    // as failed.
    using Journal = std::function<void(const CommandRecord&)>;

    NetworkServer(std::shared_ptr<sim::SimulatedServer> server, BrokerOptions broker, Log log = {});
    ~NetworkServer();
    NetworkServer(const NetworkServer&) = delete;
    NetworkServer& operator=(const NetworkServer&) = delete;

    void SetJournal(Journal journal) { journal_ = std::move(journal); }
    // The clock followed between commands (not owned); the system clock when never set.
    void SetClock(Clock* source) { clock_.SetSource(source); }
    // Runs a kept command again at its time, before Start: its changes keep the record's user and
    // are published when the server connects.
    void Replay(const CommandRecord& record);
    // Connects, subscribes and announces the server online; NetworkError when the broker refuses.
    void Start();
    // Announces the server offline and disconnects.
    void Stop();

    int16_t Application() const { return application_; }
    // The user of the last command that changed the item, empty when none did since the start.
    std::string LastUser(const sim::ItemKey& key) const;

  private:
    void OnConnect();
    void OnMessage(const MqttMessage& message);
    Response Handle(const Request& request);
    Response Execute(const Request& request);
    // Runs a command at `time`; answers whether it changed anything, its visible changes in `changes`.
    bool Run(const std::string& command, Date time, Response& response, std::vector<sim::ItemKey>& changes);
    Response CheckItems(const Request& request);
    void PublishItem(const sim::ItemKey& key, const std::string& user);

    std::shared_ptr<sim::SimulatedServer> server_;
    CommandClock clock_;
    int16_t application_;
    Log log_;
    Journal journal_;
    std::unique_ptr<MqttClient> client_;
    int32_t listenerId_ = 0;
    std::vector<sim::ItemKey> changes_;
    struct Published {
        sim::ItemKey key;
        std::string user;  // of the last change
    };
    std::map<std::string, Published> published_;  // by item topic
    mutable std::mutex usersMutex_;
};

}  // namespace trovane::net
