#pragma once
// A broker of the test's own: mosquitto on a free port of 127.0.0.1 with a generated configuration
// in a temporary directory, stopped and removed with the object. Tests that need one use
// BrokerTest, which skips them (with the reason) only when mosquitto is not installed.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "support/child_process.h"

namespace trovane::testing {

class MosquittoBroker {
  public:
    // The broker executable (TROVANE_MOSQUITTO, else /usr/sbin/mosquitto or the PATH), or empty.
    static std::string Binary();

    // `listenerConfig` is added under the listener: authentication, TLS. Anonymous clients are
    // allowed unless it says otherwise. Throws when the broker does not come up.
    explicit MosquittoBroker(std::string listenerConfig = "allow_anonymous true\n");
    ~MosquittoBroker();
    MosquittoBroker(const MosquittoBroker&) = delete;
    MosquittoBroker& operator=(const MosquittoBroker&) = delete;

    int Port() const { return port_; }
    std::string Url(const std::string& scheme = "mqtt") const;
    // A directory of the test's own, removed with the broker (configuration, certificates, logs).
    const std::filesystem::path& Directory() const { return directory_; }
    std::string Log() const;

    // Stops the broker (all clients lose their connection) and starts it again on the same port.
    void Stop();
    void Start();

  private:
    bool TryStart();
    std::filesystem::path directory_;
    std::string listenerConfig_;
    int port_ = 0;
    ChildProcess process_;
};

class BrokerTest : public ::testing::Test {
  protected:
    void SetUp() override {
        if (MosquittoBroker::Binary().empty())
            GTEST_SKIP() << "mosquitto is not installed (scripts/deps.sh installs it); broker tests skipped";
        broker = std::make_unique<MosquittoBroker>(BrokerConfig());
    }
    virtual std::string BrokerConfig() { return "allow_anonymous true\n"; }

    std::unique_ptr<MosquittoBroker> broker;
};

}  // namespace trovane::testing
