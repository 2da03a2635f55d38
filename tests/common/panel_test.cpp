// The panel base and traced operations. The standard container members are
// checked through the demo host (tests/qt/demo_host_test.cpp) and every panel test's container.

#include <gtest/gtest.h>

#include "common/panel.h"
#include "common/traced_operation.h"
#include "core/conversions.h"
#include "platform/controls/controls.h"
#include "support/error_number.h"
#include "support/fake_container.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

// A small panel, written the way the architecture document shows, with one subscribed item.
class CounterPanel final : public Panel {
  public:
    CounterPanel() : Panel("Counter"), lblCount(Add<Label>("lblCount")) {
        lblCount.SetTag("270");
        Members().Method("Init", [this](std::span<Variant>) { return Init(); });
        Members().Property("Shown", [this] { return Variant(lblCount.Caption()); });
    }
    Variant Init() {
        Traced(
            "Init",
            [this] {
                SetUpControls();
                ShowCount();
                return true;
            },
            OnFailure::Raise);
        return Variant();
    }
    void Activate(const Variant& server) {
        subscription.Activate(server,
                              {{7, "\\\\APL\\1\\P\\ABC:CO",
                                [this](const Variant& v) {
                                    if (v.IsString()) throw Error(ErrorNumber::TypeMismatch);
                                    lblCount.SetCaption(ToString(v));
                                }}},
                              *this);
    }
    void ShowCount() { lblCount.SetCaption(ToString(RunVexlCmd("#return ABC:CO"))); }
    Variant Status(int32_t& status) { return RunVexlCmdWithStatus("#return ABC:CO", status); }
    bool Allowed() const { return IsAllowed("IsBlockingHandlingAllowed"); }
    Label& lblCount;
};

class PanelTest : public ::testing::Test {
  protected:
    void SetUp() override { panel->SetParent(container->AsVariant()); }
    FakeConnection& Connection() { return container->ConnectionObject(); }

    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<CounterPanel> panel = std::make_shared<CounterPanel>();
    TraceCapture trace;
};

TEST_F(PanelTest, InitTracesSetsCaptionsAndCharsetThenAsksTheContainerAndFailingNotificationsAreTraced) {
    Connection().QueueAnswer(Variant(int32_t{42}));
    CallMethod(Variant(ObjectRef(panel)), "Init");
    EXPECT_EQ(panel->lblCount.Caption(), "42");
    EXPECT_EQ(trace.Lines().front(), "-> Counter.Init");
    EXPECT_EQ(trace.Lines().back(), "<- Counter.Init");
    EXPECT_EQ(container->CallsOf("GetNlsString").size(), 1u);
    EXPECT_EQ(container->CallsOf("SetCharsetValues").size(), 1u);
    // Members registered by the panel answer first; the form's own still answer after them.
    EXPECT_EQ(GetProperty(Variant(ObjectRef(panel)), "Shown"), Variant("42"));
    EXPECT_EQ(GetProperty(Variant(ObjectRef(panel)), "Parent"), container->AsVariant());
    EXPECT_TRUE(GetProperty(Variant(ObjectRef(panel)), "lblCount").IsObject());
    // A failing notification is traced and goes no further.
    panel->Activate(Connection().AsVariant());
    Connection().Notify(1, {7}, {Variant(int32_t{5})});
    EXPECT_EQ(panel->lblCount.Caption(), "5");
    EXPECT_NO_THROW(Connection().Notify(1, {7}, {Variant("five")}));
    EXPECT_EQ(trace.Lines().back(), "<- Counter.ISysDataCallback_OnDataChange ERROR OCCURRED!!!");
}

TEST_F(PanelTest, TheContainerIsNotKeptAliveAndAGoneContainerIsNotSet) {
    std::weak_ptr<FakeContainer> watch = container;
    container.reset();
    EXPECT_TRUE(watch.expired());
    EXPECT_TRUE(panel->Parent().IsNothing());
    EXPECT_EQ(ErrorNumberOf([&] { panel->ShowCount(); }), 91);
    EXPECT_EQ(ErrorNumberOf([&] { panel->Init(); }), 91);
    EXPECT_EQ(trace.Lines().back(), "<- Counter.Init ERROR OCCURRED!!!");
}

TEST_F(PanelTest, StatusIsWrittenBackOnlyWhenACommandWasSentAndRightsAreAskedByName) {
    int32_t status = -7;
    Connection().SetReady(false);
    EXPECT_TRUE(panel->Status(status).IsEmpty());
    EXPECT_EQ(status, -7);
    Connection().SetReady(true);
    Connection().QueueAnswer(Variant(), 13);
    panel->Status(status);
    EXPECT_EQ(status, 13);

    EXPECT_TRUE(panel->Allowed());
    container->SetRight("IsBlockingHandlingAllowed", false);
    EXPECT_FALSE(panel->Allowed());
}

TEST(TracedOperationTest, ExitLinesAndWhatHappensToTheFailure) {
    const std::function<bool()> succeeds = [] { return true; }, returnsFalse = [] { return false; },
                                fails = []() -> bool { throw Error(ErrorNumber::Overflow); };
    const std::string failed = "<- X.Op ERROR OCCURRED!!!";
    const struct {
        std::function<bool()> body;
        OnFailure onFailure;
        int outcome;  // the result, or -1 when the error is raised
        std::string exitLine;
    } cases[] = {{succeeds, OnFailure::Stop, 1, "<- X.Op"},
                 {returnsFalse, OnFailure::Stop, 0, failed},
                 {fails, OnFailure::Stop, 0, failed},
                 {fails, OnFailure::Raise, -1, failed},
                 {returnsFalse, OnFailure::Raise, 1, "<- X.Op"}};  // raising panels ignore a false result
    for (const auto& c : cases) {
        TraceCapture trace;
        int outcome = -1;
        try {
            outcome = RunTraced("X.Op", "X.Op", c.onFailure, c.body) ? 1 : 0;
        } catch (const Error&) {
        }
        EXPECT_EQ(outcome, c.outcome) << c.exitLine;
        EXPECT_EQ(trace.Lines(), (std::vector<std::string>{"-> X.Op", c.exitLine}));
    }
    TraceCapture trace;  // entry and exit may be spelt differently
    RunTraced("Dialup.Init", "DialUp.Init", OnFailure::Stop, [] { return true; });
    EXPECT_EQ(trace.Lines(), (std::vector<std::string>{"-> Dialup.Init", "<- DialUp.Init"}));
}

}  // namespace
}  // namespace trovane::testing
