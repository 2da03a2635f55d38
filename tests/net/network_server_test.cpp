#include "net/network_server.h"

#include <gtest/gtest.h>

#include "mqtt_probe.h"
#include "net/variant_wire.h"
#include "sim/scenario.h"
#include "support/mosquitto_broker.h"

namespace trovane::net {
namespace {

using testing::MqttProbe;

std::shared_ptr<sim::SimulatedServer> DemoServer() {
    auto database = std::make_unique<sim::ProcessDatabase>();
    sim::LoadScenario(sim::DemoScenarioText(), *database);
    return std::make_shared<sim::SimulatedServer>(std::move(database));
}

class NetworkServerTest : public trovane::testing::BrokerTest {
  protected:
    void SetUp() override {
        BrokerTest::SetUp();
        if (IsSkipped()) return;
        BrokerOptions options;
        options.port = broker->Port();
        server = std::make_unique<NetworkServer>(DemoServer(), options, [this](const std::string& line) {
            std::lock_guard lock(logMutex);
            log.push_back(line);
        });
        server->Start();
        probe = std::make_unique<MqttProbe>(broker->Port());
    }
    std::vector<std::string> Log() {
        std::lock_guard lock(logMutex);
        return log;
    }

    std::unique_ptr<NetworkServer> server;
    std::unique_ptr<MqttProbe> probe;
    std::mutex logMutex;
    std::vector<std::string> log;
};

const sim::ItemKey kComment{"ABC", std::nullopt, "GC"};

TEST_F(NetworkServerTest, AnswersCommandsAndPublishesEachChangeRetainedWithItsUser) {
    probe->Subscribe(ServerStatusTopic(1));
    EXPECT_EQ(probe->TakeTopic(ServerStatusTopic(1)).payload, "online");

    // Item checks: a result per path, and the known item's value waits on its topic.
    const Response items = probe->Ask({RequestKind::Items,
                                       "op1",
                                       "",
                                       {"\\\\APL\\1\\P\\ABC:GC", "\\\\APL\\1\\P\\NOPE:GC",
                                        "\\\\APL\\2\\P\\ABC:GC", "garbage", "\\\\APL\\1\\P\\ABC:ZZ"}});
    EXPECT_EQ(items.status, 0);
    ASSERT_TRUE(items.result.IsArray());
    const std::vector<Variant> results(items.result.AsArray().Elements().begin(),
                                       items.result.AsArray().Elements().end());
    EXPECT_EQ(results, (std::vector<Variant>{0, sim::status::kUnknownObject, sim::status::kUnknownObject,
                                             sim::status::kUnknownObject, sim::status::kUnknownAttribute}));
    const std::string topic = ItemTopic(1, kComment);
    probe->Subscribe(topic);
    const MqttMessage initial = probe->TakeTopic(topic);
    EXPECT_TRUE(initial.retained);

    const Response write = probe->Ask({RequestKind::Execute, "op1", "#SET ABC:PGC=\"hello\"", {}});
    EXPECT_EQ(write.status, 0);
    const MqttMessage changed = probe->TakeTopic(topic);
    EXPECT_EQ(DecodeVariant(changed.payload), Variant("hello"));
    EXPECT_EQ(changed.user, "op1");
    EXPECT_EQ(server->LastUser(kComment), "op1");

    const Response read = probe->Ask({RequestKind::Execute, "op2", "#return ABC:PGC", {}});
    EXPECT_EQ(read.result, Variant("hello"));
    const Response failed = probe->Ask({RequestKind::Execute, "op2", "#return (", {}});
    EXPECT_EQ(failed.status, sim::status::kSyntaxError);
    EXPECT_TRUE(failed.result.IsEmpty());
    EXPECT_EQ(probe->Ask({RequestKind::Ping, "op2", "", {}}).status, 0);

    // A workstation that comes later gets the current value at once.
    MqttProbe late(broker->Port(), "late");
    late.Subscribe(topic);
    const MqttMessage current = late.TakeTopic(topic);
    EXPECT_TRUE(current.retained);
    EXPECT_EQ(DecodeVariant(current.payload), Variant("hello"));
    EXPECT_EQ(current.user, "op1");
}

TEST_F(NetworkServerTest, MalformedRequestsAreDroppedAndLoggedAndTheServerGoesOn) {
    // Requests are handled one at a time in order: once the ping is answered, the rest was handled.
    MqttMessage reply;
    reply.responseTopic = ReplyTopic(1, "probe");
    probe->Client().Publish(RequestTopic(1), "not a value", false, &reply);
    probe->Client().Publish(RequestTopic(1), EncodeVariant(MakeVariantArray({"EXECUTE"})), false, &reply);
    probe->Client().Publish(RequestTopic(1), EncodeRequest({RequestKind::Ping, "", "", {}}), false);
    EXPECT_EQ(probe->Ask({RequestKind::Ping, "op", "", {}}).status, 0);
    const auto lines = Log();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_NE(lines[0].find("dropped a malformed request: malformed value at byte 0: not a value message"),
              std::string::npos);
    EXPECT_NE(lines[1].find("a request is not a Variant() array of 4 elements"), std::string::npos);
    EXPECT_EQ(lines[2], "dropped a request without a response topic");
}

TEST_F(NetworkServerTest, ARestartedBrokerGetsTheRetainedValuesAndTheStatusBack) {
    EXPECT_EQ(probe->Ask({RequestKind::Execute, "op1", "#SET ABC:PGC=\"kept\"", {}}).status, 0);
    probe.reset();
    broker->Stop();
    broker->Start();
    MqttProbe after(broker->Port(), "after");
    after.Subscribe(ServerStatusTopic(1));
    after.Take([](const MqttMessage& m) { return m.topic == ServerStatusTopic(1) && m.payload == "online"; });
    after.Subscribe(ItemTopic(1, kComment));
    EXPECT_EQ(DecodeVariant(after.TakeTopic(ItemTopic(1, kComment)).payload), Variant("kept"));
}

}  // namespace
}  // namespace trovane::net
