// The broker's security as workstations meet it: the demo access list (users with passwords, each
// workstation limited to its request topic, its own reply topic and the items) and TLS with a
// certificate made for the test.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <mutex>

#include "core/error.h"
#include "net/network_connection.h"
#include "net/network_server.h"
#include "net/topics.h"
#include "net/wire_messages.h"
#include "sim/scenario.h"
#include "support/mosquitto_broker.h"

namespace trovane::net {
namespace {

constexpr auto kPatience = std::chrono::seconds(30);

// A directory of the test's own for passwords and certificates, made before the broker starts.
std::filesystem::path MakeDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "trovane-security-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary directory");
    return pattern;
}

bool RunQuietly(const std::string& command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

std::unique_ptr<NetworkServer> StartServer(BrokerOptions options) {
    auto server =
        std::make_unique<NetworkServer>(std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()),
                                        std::move(options), [](const std::string&) {});
    server->Start();
    return server;
}

NetworkConnectionOptions Workstation(const std::string& url) {
    NetworkConnectionOptions options;
    EXPECT_EQ(ParseBrokerUrl(url, options.broker), "");
    options.user = options.broker.user.empty() ? "operator" : options.broker.user;
    options.log = [](const std::string&) {};
    return options;
}

// The refusals a bare client of the broker was told about.
struct RefusalLog {
    std::vector<std::string> Lines() {
        std::lock_guard lock(mutex);
        return lines;
    }
    bool WaitFor(size_t count) {
        std::unique_lock lock(mutex);
        return arrived.wait_for(lock, kPatience, [&] { return lines.size() >= count; });
    }
    std::function<void(const std::string&)> Handler() {
        return [this](const std::string& line) {
            std::lock_guard lock(mutex);
            lines.push_back(line);
            arrived.notify_all();
        };
    }
    std::mutex mutex;
    std::condition_variable arrived;
    std::vector<std::string> lines;
};

class DemoAccessList : public trovane::testing::BrokerTest {
  protected:
    void SetUp() override {
        if (!std::filesystem::exists(PasswordTool()))
            GTEST_SKIP() << "mosquitto_passwd is not installed; access list tests skipped";
        BrokerTest::SetUp();
    }
    void TearDown() override {
        broker.reset();
        if (!directory.empty()) std::filesystem::remove_all(directory);
    }
    static std::filesystem::path PasswordTool() {
        return std::filesystem::path(trovane::testing::MosquittoBroker::Binary())
                   .parent_path()
                   .parent_path() /
               "bin" / "mosquitto_passwd";
    }
    std::string BrokerConfig() override {
        directory = MakeDirectory();
        const auto passwords = directory / "passwords";
        // The demo's users, and one the access list does not know.
        std::filesystem::copy_file(std::string(TROVANE_SOURCE_DIR) + "/scripts/demo_broker/passwords",
                                   passwords);
        std::ofstream(passwords, std::ios::app) << "visitor:visitor-secret\n";
        if (!RunQuietly(PasswordTool().string() + " -U " + passwords.string()))
            throw std::runtime_error("mosquitto_passwd failed");
        return "allow_anonymous false\npassword_file " + passwords.string() + "\nacl_file " +
               TROVANE_SOURCE_DIR + "/scripts/demo_broker/acl\n";
    }
    std::string Url(const std::string& credentials) const {
        return "mqtt://" + credentials + "@127.0.0.1:" + std::to_string(broker->Port());
    }
    std::filesystem::path directory;
};

TEST_F(DemoAccessList, WorkstationsReachTheServerAndNothingElse) {
    BrokerOptions serverOptions;
    ASSERT_EQ(ParseBrokerUrl(Url("trovane-server:server-secret"), serverOptions), "");
    const auto server = StartServer(serverOptions);
    NetworkConnection anna(Workstation(Url("anna:anna-secret")));
    ASSERT_TRUE(anna.WaitUntilReady(kPatience));
    Variant result;
    int32_t status = -1;
    anna.ExecuteCommand(1, "#SET ABC:PGC=\"through the access list\"", result, status);
    EXPECT_EQ(status, 0);

    // Anna's own client may not publish values as if it were the server, nor listen to the other
    // workstations' commands: its ping's answer comes back, its ping itself does not.
    RefusalLog refusals;
    std::mutex mutex;
    std::condition_variable arrived;
    std::vector<std::string> topics;
    BrokerOptions options;
    ASSERT_EQ(ParseBrokerUrl(Url("anna:anna-secret"), options), "");
    options.clientId = "snoop";
    MqttClient snoop(options, {{},
                               {},
                               [&](const MqttMessage& message) {
                                   std::lock_guard lock(mutex);
                                   topics.push_back(message.topic);
                                   arrived.notify_all();
                               },
                               refusals.Handler()});
    snoop.Connect();
    snoop.Publish(ItemTopic(1, {"ABC", std::nullopt, "GC"}), "forged", true);
    ASSERT_TRUE(refusals.WaitFor(1));
    EXPECT_EQ(refusals.Lines(), std::vector<std::string>{"the broker at " + broker->Url() +
                                                         " does not allow the user anna to publish on "
                                                         "trovane/1/item/ABC/-/GC"});
    snoop.Subscribe(RequestTopic(1));
    snoop.Subscribe(ReplyTopic(1, "snoop"));
    MqttMessage ping;
    ping.responseTopic = ReplyTopic(1, "snoop");
    ping.correlation = "1";
    snoop.Publish(RequestTopic(1), EncodeRequest({RequestKind::Ping, "anna", "", {}}), false, &ping);
    std::unique_lock lock(mutex);
    ASSERT_TRUE(arrived.wait_for(lock, kPatience, [&] { return !topics.empty(); }));
    EXPECT_EQ(topics, std::vector<std::string>{ReplyTopic(1, "snoop")});
}

TEST_F(DemoAccessList, AWrongPasswordOrAUserWithoutRightsIsAClearErrorAtStart) {
    BrokerOptions serverOptions;
    ASSERT_EQ(ParseBrokerUrl(Url("trovane-server:server-secret"), serverOptions), "");
    const auto server = StartServer(serverOptions);
    try {
        NetworkConnection connection(Workstation(Url("anna:wrong")));
        ADD_FAILURE() << "a wrong password was accepted";
    } catch (const NetworkError& error) {
        EXPECT_NE(std::string(error.what())
                      .find("refused the connection: the user name or password was not accepted"),
                  std::string::npos)
            << error.what();
    }
    // The visitor is let in but may not send a command: the refused ping ends the wait at once.
    NetworkConnection visitor(Workstation(Url("visitor:visitor-secret")));
    try {
        EXPECT_FALSE(visitor.WaitUntilReady(kPatience)) << "the visitor got an answer";
        ADD_FAILURE() << "no refusal within the patience";
    } catch (const NetworkError& error) {
        EXPECT_NE(
            std::string(error.what()).find("does not allow the user visitor to publish on trovane/1/request"),
            std::string::npos)
            << error.what();
    }
    Variant result;
    int32_t status = 0;
    EXPECT_THROW(visitor.ExecuteCommand(1, "#return 1", result, status), Error);
}

// A broker with TLS only, its certificate signed by an authority made for the test.
class TlsBroker : public trovane::testing::BrokerTest {
  protected:
    void SetUp() override {
        if (!RunQuietly("openssl version")) GTEST_SKIP() << "openssl is not installed; TLS tests skipped";
        BrokerTest::SetUp();
    }
    void TearDown() override {
        broker.reset();
        if (!directory.empty()) std::filesystem::remove_all(directory);
    }
    std::string BrokerConfig() override {
        directory = MakeDirectory();
        const std::string d = directory.string();
        const std::string key = " -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes";
        std::ofstream(directory / "names.ext") << "subjectAltName=IP:127.0.0.1\n";
        if (!RunQuietly("openssl req -x509" + key + " -keyout " + d + "/ca.key -out " + d +
                        "/ca.crt -days 2 -subj /CN=trovane-test-authority") ||
            !RunQuietly("openssl req" + key + " -keyout " + d + "/broker.key -out " + d +
                        "/broker.csr -subj /CN=127.0.0.1") ||
            !RunQuietly("openssl x509 -req -in " + d + "/broker.csr -CA " + d + "/ca.crt -CAkey " + d +
                        "/ca.key -CAcreateserial -days 2 -extfile " + d + "/names.ext -out " + d +
                        "/broker.crt"))
            throw std::runtime_error("openssl could not make the test certificates");
        return "allow_anonymous true\ncertfile " + d + "/broker.crt\nkeyfile " + d + "/broker.key\n";
    }
    std::string Url() const { return broker->Url("mqtts") + "/?cafile=" + (directory / "ca.crt").string(); }
    std::filesystem::path directory;
};

TEST_F(TlsBroker, WorkstationAndServerWorkOverMqttsWithTheAuthorityAndRefuseAnUnknownCertificate) {
    BrokerOptions serverOptions;
    ASSERT_EQ(ParseBrokerUrl(Url(), serverOptions), "");
    ASSERT_TRUE(serverOptions.tls);
    const auto server = StartServer(serverOptions);
    NetworkConnection workstation(Workstation(Url()));
    ASSERT_TRUE(workstation.WaitUntilReady(kPatience));
    Variant result;
    int32_t status = -1;
    workstation.ExecuteCommand(1, "#return ABC:PGC", result, status);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(result.IsString());

    // The system's authorities do not know the test's: the connection is refused, not hung.
    NetworkConnectionOptions untrusting = Workstation(broker->Url("mqtts"));
    untrusting.broker.connectTimeout = std::chrono::seconds(2);
    try {
        NetworkConnection connection(untrusting);
        ADD_FAILURE() << "an unknown certificate was accepted";
    } catch (const NetworkError& error) {
        EXPECT_NE(std::string(error.what()).find(broker->Url("mqtts")), std::string::npos) << error.what();
    }
}

TEST(BrokerUrl, CarriesTheUserThePasswordAndTheAuthority) {
    struct Case {
        const char* url;
        std::string error, host, user, password, caFile;
        int port;
        bool tls;
    };
    const Case cases[] = {
        {"mqtt://127.0.0.1", "", "127.0.0.1", "", "", "", 1883, false},
        {"mqtts://anna:s3:cret@host:9000/?cafile=/etc/ca.crt", "", "host", "anna", "s3:cret", "/etc/ca.crt",
         9000, true},
        {"mqtt://ben@host", "", "host", "ben", "", "", 1883, false},
        {"mqtt://:pw@host", "no broker user before the @ in the broker address", "", "", "", "", 0, false},
        {"mqtts://host/?ca=x", "the broker address understands only ?cafile=FILE, not \"ca=x\"", "", "", "",
         "", 0, false},
        {"mqtt://host:0", "the broker port must be a number from 1 to 65535, not \"0\"", "", "", "", "", 0,
         false},
    };
    for (const Case& c : cases) {
        BrokerOptions options;
        EXPECT_EQ(ParseBrokerUrl(c.url, options), c.error) << c.url;
        if (!c.error.empty()) continue;
        EXPECT_EQ(options.host, c.host) << c.url;
        EXPECT_EQ(options.user, c.user) << c.url;
        EXPECT_EQ(options.password, c.password) << c.url;
        EXPECT_EQ(options.caFile, c.caFile) << c.url;
        EXPECT_EQ(options.port, c.port) << c.url;
        EXPECT_EQ(options.tls, c.tls) << c.url;
    }
}

}  // namespace
}  // namespace trovane::net
