// The operation counter panel on a fake container: what it subscribes, how notifications show and
// what its writes send.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "opcounter/misc_functions.h"
#include "support/fake_container.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

class MiscFunctionsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Connection().RespondWith([this](int16_t, const std::string& command) -> FakeConnection::Answer {
            if (command.ends_with(":PPT")) return {objectType, 0, {}};
            return {Variant(), setStatus, {}};
        });
        panel = NewPanel();
    }
    std::shared_ptr<MiscFunctions> NewPanel() {
        auto counter = std::make_shared<MiscFunctions>();
        counter->SetParent(container->AsVariant());
        counter->objectIndex = 10;
        counter->Activate(1, "ABC", "operator", Connection().AsVariant());
        return counter;
    }
    FakeConnection& Connection() { return container->ConnectionObject(); }
    std::vector<std::string> Writes() {
        std::vector<std::string> writes;
        for (const std::string& command : Connection().Commands())
            if (command.starts_with("#SET")) writes.push_back(command);
        return writes;
    }
    // Delivers a notification to the latest subscription.
    void Notify(std::vector<int32_t> handles, std::vector<Variant> values) {
        ASSERT_TRUE(Connection().Notify(static_cast<int32_t>(Connection().subscriptions.size()),
                                        std::move(handles), std::move(values)));
    }
    void InitWith(int16_t type, std::vector<int32_t> handles, std::vector<Variant> values) {
        objectType = Variant(type);
        panel->Init();
        Notify(std::move(handles), std::move(values));
    }
    void TypeLimitAndSet(const std::string& text) {
        panel->txtOpCntLimit.SetText(text);
        panel->btnSetOpcCntLimit.Click();
    }

    Variant objectType = Variant(12);
    int32_t setStatus = 0;
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<MiscFunctions> panel;
};

TEST_F(MiscFunctionsTest, TheObjectTypeChoosesTheAttributesTheirHandlesAndIndexedItemPaths) {
    TraceCapture trace;
    panel->Init();
    objectType = Variant("3");
    panel->Init();
    ASSERT_EQ(Connection().Commands().front(), "#RETURN ABC:PPT");
    ASSERT_EQ(Connection().subscriptions.size(), 2u);
    const std::string path = "\\\\APL\\1\\P\\ABC\\10:";
    const auto& doubleBinary = Connection().subscriptions[0];
    EXPECT_EQ(doubleBinary.itemPaths,
              MakeStringArray({path + "CO", path + "CV", path + "CE", path + "CL"}, 1));
    EXPECT_EQ(doubleBinary.clientHandles, MakeLongArray({1, 2, 3, 4}, 1));
    EXPECT_TRUE(doubleBinary.removed);  // the second Init replaced it
    EXPECT_EQ(Connection().subscriptions[1].itemPaths,
              MakeStringArray({path + "AZ", path + "IU", path + "HI"}, 1));
    EXPECT_EQ(Connection().subscriptions[1].clientHandles, MakeLongArray({1, 3, 4}, 1));
    EXPECT_EQ(panel->chkCounterInUse.Caption(), "Operation counter in use");
    EXPECT_TRUE(trace.Contains("<- MiscFunctions.Init"));
}

// CO is a Boolean for double-binary objects; other types report an alarm zone, of which only 2
// is an overflow. The status text goes to the host only when it changes.
TEST_F(MiscFunctionsTest, OverflowRulesByTypeAndTheStatusTextReportedOnChangeOnly) {
    struct Case {
        int16_t type;
        Variant value;
        bool overflow;
    };
    const Case cases[] = {{12, Variant(1), true},  {12, Variant(2), true}, {12, Variant(0), false},
                          {3, Variant(1), false},  {3, Variant(2), true},  {9, Variant(2.0), true},
                          {3, Variant("2"), true}, {3, Variant(3), false}};
    for (const Case& c : cases) {
        panel = NewPanel();
        const size_t reports = container->CallsOf("updatestatustext").size();
        InitWith(c.type, {1, 3}, {c.value, Variant(1)});
        Notify({1}, {c.value});
        EXPECT_EQ(panel->lblOverFlow.Visible(), c.overflow) << c.type << " " << ToString(c.value);
        EXPECT_EQ(container->CallsOf("updatestatustext").size(), reports + (c.overflow ? 1 : 0));
    }
    Notify({1}, {Variant(0)});
    EXPECT_EQ(panel->statusText, "");
}

TEST_F(MiscFunctionsTest, ANotificationShowsTheValuesSendsNothingAndSkipsABadItemAlone) {
    InitWith(12, {1, 2, 3, 4}, {Variant(0), Variant(998), Variant(1), Variant(1000)});
    EXPECT_EQ(panel->lblOperationCount.Caption(), "998");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "1000");
    EXPECT_EQ(panel->chkCounterInUse.Value(), 1);
    Notify({2, 3, 4, 2}, {Variant("many"), Variant(0), Variant(MakeVariantArray({1})), Variant(999)});
    EXPECT_EQ(panel->chkCounterInUse.Value(), 0);
    EXPECT_EQ(panel->lblOperationCount.Caption(), "999");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "1000");
    EXPECT_TRUE(panel->txtOpCntLimit.Enabled());  // double binary: usage does not lock the fields
    EXPECT_TRUE(Writes().empty());
    EXPECT_FALSE(panel->isUpdating);

    objectType = Variant("breaker");  // a type that is no number ends Init quietly, unsubscribed
    EXPECT_NO_THROW(panel->Init());
    EXPECT_EQ(Connection().subscriptions.size(), 1u);
}

TEST_F(MiscFunctionsTest, OtherTypesShowDashesAndLockTheFieldsWhileTheCounterIsNotInUse) {
    InitWith(3, {1, 3, 4}, {Variant(0), Variant(0), Variant(60)});
    EXPECT_EQ(panel->lblOperationCount.Caption(), "-");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "-");
    EXPECT_FALSE(panel->txtOpCntLimit.Enabled() || panel->btnOpCntReset.Enabled());
    Notify({3}, {Variant(1)});
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "60");
    EXPECT_TRUE(panel->txtOpCntLimit.Enabled() && panel->btnOpCntReset.Enabled());
    container->SetRight("IsUserAuthorized", false);
    Notify({3}, {Variant(1)});
    EXPECT_FALSE(panel->txtOpCntLimit.Enabled() || panel->btnOpCntReset.Enabled());
}

TEST_F(MiscFunctionsTest, WritesNameTheAttributeWithTheIndexAndSetFollowsChangedTextAndRights) {
    InitWith(12, {4}, {Variant(1000)});
    panel->btnOpCntReset.Click();
    panel->chkCounterInUse.Click();
    panel->GetExtraInfo();
    EXPECT_EQ(Connection().Commands().back(), R"(#return do(BGU_CONTROL:C, ("ABC",10),"GET_EXTRA_INFO"))");
    panel->txtOpCntLimit.SetText("1000");
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());
    TypeLimitAndSet("1e3");
    EXPECT_EQ(Writes(),
              (std::vector<std::string>{"#SET ABC:PCV10=0", "#SET ABC:PCE10=1", "#SET ABC:PCL10=1e3"}));
    EXPECT_EQ(container->CallsOf("RunVexlCmdWithStatus").size(), 1u);
    EXPECT_TRUE(container->shownErrors.empty() && Connection().refreshes.empty());
    container->SetRight("IsUserAuthorized", false);
    panel->txtOpCntLimit.SetText("1200");
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());
}

// Refused before sending: not a positive 32-bit float. Refused by the server: a non-zero status.
TEST_F(MiscFunctionsTest, RefusedLimitsShow403AndRefreshTheSubscription) {
    InitWith(12, {4}, {Variant(1000)});
    for (const char* typed : {"0", "-5", "abc", "1e40", "-0.0"}) TypeLimitAndSet(typed);
    EXPECT_TRUE(Writes().empty());
    setStatus = 13;
    TypeLimitAndSet("0.5");
    EXPECT_EQ(Writes(), std::vector<std::string>{"#SET ABC:PCL10=0.5"});
    EXPECT_EQ(container->shownErrors, std::vector<std::string>(6, "Value is not acceptable"));
    EXPECT_EQ(Connection().refreshes.size(), 6u);
}

}  // namespace
}  // namespace trovane::testing
