// Two workstations with their panels on one server through the test's broker: what one operator
// does reaches the other's panels by notification, and both recover when the server is killed and
// restarted, then the broker.

#include <gtest/gtest.h>

#include "blocking/blocking.h"
#include "indication/indication_bar.h"
#include "net/network_server.h"
#include "network_host.h"
#include "sim/scenario.h"
#include "support/child_process.h"
#include "support/mosquitto_broker.h"

namespace trovane::net {
namespace {

using testing::NetworkHost;
using testing::WorkstationOptions;

constexpr auto kPatience = std::chrono::seconds(30);

// The host's own subscription of the control blocking, which refreshes its blocking panel.
class BlockingFeed final : public SysDataCallback {
  public:
    BlockingFeed(NetworkHost& host, Blocking& panel) : host_(host), panel_(panel) {
        Variant results;
        host_.Connection().AddItems(MakeLongArray({1}), MakeStringArray({"\\\\APL\\1\\P\\ABC\\10:CB"}), 0, 0,
                                    handle_, results);
        host_.Connection().SetCallback(this, handle_);
    }
    ~BlockingFeed() override { host_.Connection().RemoveItems(handle_); }
    void OnDataChange(int32_t, int32_t, int32_t, const Variant&, const Variant&, const Variant&,
                      const Variant&) override {
        panel_.RefreshStates();
        ++notifications;
    }
    int notifications = 0;

  private:
    NetworkHost& host_;
    Blocking& panel_;
    int32_t handle_ = 0;
};

struct Workstation {
    Workstation(int port, const std::string& user,
                std::chrono::milliseconds timeout = std::chrono::seconds(20))
        : host(NetworkHost::Make(WorkstationOptions(port, user, timeout))) {
        EXPECT_TRUE(host->Connection().WaitUntilReady(kPatience));
        blocking->SetParent(host->AsVariant());
        blocking->logicalName = "ABC";
        blocking->baseIndex = 10;
        blocking->Init();
        indication->SetParent(host->AsVariant());
        indication->Activate(1, "ABC", user, host->Server());
        feed = std::make_unique<BlockingFeed>(*host, *blocking);
    }
    ~Workstation() {
        feed.reset();
        indication->Deactivate();
    }
    void WriteComment(const std::string& text) {
        indication->btnIndication.Click();
        indication->CommentDialog()->txtComment.SetText(text);
        indication->CommentDialog()->btnOK.Click();
    }
    bool Shows(const std::string& comment) {
        return host->PumpUntil([&] { return indication->commentText == comment; });
    }

    std::shared_ptr<NetworkHost> host;
    std::shared_ptr<Blocking> blocking = std::make_shared<Blocking>();
    std::shared_ptr<IndicationBar> indication = std::make_shared<IndicationBar>();
    std::unique_ptr<BlockingFeed> feed;
};

class TwoWorkstations : public trovane::testing::BrokerTest {};

TEST_F(TwoWorkstations, ABlockingAndACommentMadeOnOneShowOnTheOtherAfterItsNotification) {
    BrokerOptions options;
    options.port = broker->Port();
    NetworkServer server(std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()), options,
                         [](const std::string&) {});
    server.Start();
    Workstation a(broker->Port(), "op-a");
    Workstation b(broker->Port(), "op-b");
    ASSERT_EQ(b.blocking->Control(), 0);

    a.blocking->KindCheckBox(2).Click();
    a.blocking->btnOK.Click();
    EXPECT_EQ(b.blocking->Control(), 0);  // nothing before B's pump
    EXPECT_TRUE(b.host->PumpUntil([&] { return b.blocking->Control() == 1; }));
    EXPECT_EQ(b.blocking->KindCheckBox(2).Value(), 1);

    a.WriteComment("Earthed, see the permit");
    EXPECT_TRUE(b.Shows("Earthed, see the permit"));
    EXPECT_EQ(b.indication->commentAuthor, "op-a");
    EXPECT_EQ(server.LastUser({"ABC", std::nullopt, "GC"}), "op-a");
}

#ifdef TROVANE_SERVER_BINARY
TEST_F(TwoWorkstations, BothRecoverFromAKilledServerAndThenARestartedBroker) {
    trovane::testing::ChildProcess server;
    const auto startServer = [&] {
        server.Start({TROVANE_SERVER_BINARY, "--broker", broker->Url()}, broker->Directory() / "server.log");
    };
    startServer();
    Workstation a(broker->Port(), "op-a", std::chrono::seconds(2));
    Workstation b(broker->Port(), "op-b");
    a.WriteComment("before the kill");
    ASSERT_TRUE(b.Shows("before the kill"));

    server.Kill();
    // The broker publishes the server's will: neither workstation sends commands to nobody.
    ASSERT_TRUE(a.host->PumpUntil([&] { return !a.host->Connection().IsReady(); }));
    ASSERT_TRUE(b.host->PumpUntil([&] { return !b.host->Connection().IsReady(); }));
    {
        // A command already on its way when the server dies fails within the command time-out.
        Variant result;
        int32_t status = 0;
        EXPECT_THROW(a.host->Connection().ExecuteCommand(1, "#return 1", result, status), Error);
    }

    // The blocking panel refreshed while the server was gone and failed; when the server is back,
    // its items come again and the next notification refreshes the panel.
    const int seenByA = a.feed->notifications;
    startServer();
    ASSERT_TRUE(a.host->Connection().WaitUntilReady(kPatience));
    ASSERT_TRUE(b.host->Connection().WaitUntilReady(kPatience));
    ASSERT_TRUE(a.host->PumpUntil([&] { return a.feed->notifications > seenByA; }));
    a.WriteComment("after the server came back");
    EXPECT_TRUE(b.Shows("after the server came back"));

    broker->Stop();
    broker->Start();
    ASSERT_TRUE(a.host->Connection().WaitUntilReady(kPatience));
    ASSERT_TRUE(b.host->Connection().WaitUntilReady(kPatience));
    a.blocking->KindCheckBox(2).Click();
    a.blocking->btnOK.Click();
    EXPECT_TRUE(b.host->PumpUntil([&] { return b.blocking->Control() == 1; }));
    a.WriteComment("after the broker came back");
    EXPECT_TRUE(b.Shows("after the broker came back"));
}
#endif

}  // namespace
}  // namespace trovane::net
