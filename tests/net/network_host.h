#pragma once
// A workstation for the network tests: the library's standard container with a real
// CommonFunctions over a NetworkConnection to a server on the test's broker, every right granted
// and the host actions recorded. The test pumps it as the host's event loop would.

#include <memory>
#include <string>

#include "common/standard_container.h"
#include "net/network_connection.h"
#include "support/recording_host_actions.h"

namespace trovane::net::testing {

inline NetworkConnectionOptions WorkstationOptions(
    int port, std::string user, std::chrono::milliseconds commandTimeout = std::chrono::seconds(20)) {
    NetworkConnectionOptions options;
    options.broker.port = port;
    options.user = std::move(user);
    options.commandTimeout = commandTimeout;
    return options;
}

class NetworkHost : public StandardContainer {
  public:
    static std::shared_ptr<NetworkHost> Make(NetworkConnectionOptions options) {
        const std::string user = options.user;
        return std::shared_ptr<NetworkHost>(
            new NetworkHost(std::make_shared<NetworkConnection>(std::move(options)), user));
    }

    Variant AsVariant() { return Variant(shared_from_this()); }
    Variant Server() { return Variant(ObjectRef(connection_)); }
    NetworkConnection& Connection() { return *connection_; }

    // Pumps until `done` holds, waiting for notifications in between; false after the patience.
    template <typename Done>
    bool PumpUntil(Done done, std::chrono::milliseconds patience = std::chrono::seconds(30)) {
        const auto deadline = std::chrono::steady_clock::now() + patience;
        for (;;) {
            connection_->Pump();
            if (done()) return true;
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0) return false;
            connection_->WaitForNotifications(left);
        }
    }

    std::shared_ptr<trovane::testing::RecordingHostActions> actions =
        std::make_shared<trovane::testing::RecordingHostActions>();

  private:
    NetworkHost(std::shared_ptr<NetworkConnection> connection, const std::string& user)
        : StandardContainer("frmControlDialog", std::make_shared<CommonFunctions>(),
                            ContainerSettings{Variant(ObjectRef(connection)), 1, user, UserRights::All()}),
          connection_(std::move(connection)) {
        AnswerHostActions(*this, actions);
    }

    std::shared_ptr<NetworkConnection> connection_;
};

}  // namespace trovane::net::testing
