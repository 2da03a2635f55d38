#include <gtest/gtest.h>

#include "support/mosquitto_broker.h"

namespace trovane::testing {
namespace {

class BrokerFixture : public BrokerTest {};

TEST_F(BrokerFixture, ListensOnLoopbackAndRestartsOnTheSamePort) {
    const int port = broker->Port();
    EXPECT_TRUE(LoopbackPortAccepts(port));
    EXPECT_EQ(broker->Url(), "mqtt://127.0.0.1:" + std::to_string(port));
    broker->Stop();
    EXPECT_FALSE(LoopbackPortAccepts(port));
    broker->Start();
    EXPECT_EQ(broker->Port(), port);
    EXPECT_TRUE(LoopbackPortAccepts(port));
}

TEST(BrokerFixtureConfig, ABrokerThatCannotStartReportsItsLog) {
    if (MosquittoBroker::Binary().empty()) GTEST_SKIP() << "mosquitto is not installed";
    try {
        MosquittoBroker broken("no_such_option 1\n");
        ADD_FAILURE() << "started";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("no_such_option"), std::string::npos) << error.what();
    }
}

}  // namespace
}  // namespace trovane::testing
