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
        panel->SetParent(container->AsVariant());
        panel->objectIndex = 10;
        panel->Activate(1, "ABC", "operator", Connection().AsVariant());
    }

    FakeConnection& Connection() { return container->ConnectionObject(); }
    std::vector<std::string> Commands() { return Connection().Commands(); }
    std::vector<std::string> Writes() {
        std::vector<std::string> writes;
        for (const std::string& command : Commands())
            if (command.starts_with("#SET")) writes.push_back(command);
        return writes;
    }
    // Delivers one notification of the panel's subscription.
    void Notify(std::vector<int32_t> handles, std::vector<Variant> values) {
        ASSERT_TRUE(Connection().Notify(1, std::move(handles), std::move(values)));
    }
    void InitDoubleBinary(Variant overflow = 0, Variant count = 998, Variant inUse = 1,
                          Variant limit = 1000) {
        objectType = Variant(12);
        panel->Init();
        Notify({1, 2, 3, 4}, {overflow, count, inUse, limit});
    }
    size_t StatusTextCalls() const { return container->CallsOf("updatestatustext").size(); }

    Variant objectType = Variant(12);
    int32_t setStatus = 0;
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<MiscFunctions> panel = std::make_shared<MiscFunctions>();
};

TEST_F(MiscFunctionsTest, TheObjectTypeChoosesTheAttributesTheirHandlesAndIndexedItemPaths) {
    TraceCapture trace;
    panel->Init();
    objectType = Variant("3");
    panel->Init();

    ASSERT_EQ(Commands().front(), "#RETURN ABC:PPT");
    ASSERT_EQ(Connection().subscriptions.size(), 2u);
    const auto& doubleBinary = Connection().subscriptions[0];
    EXPECT_EQ(doubleBinary.itemPaths,
              MakeStringArray({"\\\\APL\\1\\P\\ABC\\10:CO", "\\\\APL\\1\\P\\ABC\\10:CV",
                               "\\\\APL\\1\\P\\ABC\\10:CE", "\\\\APL\\1\\P\\ABC\\10:CL"},
                              1));
    EXPECT_EQ(doubleBinary.clientHandles, MakeLongArray({1, 2, 3, 4}, 1));
    EXPECT_TRUE(doubleBinary.removed);  // the second Init replaced it
    const auto& other = Connection().subscriptions[1];
    EXPECT_EQ(other.itemPaths, MakeStringArray({"\\\\APL\\1\\P\\ABC\\10:AZ", "\\\\APL\\1\\P\\ABC\\10:IU",
                                                "\\\\APL\\1\\P\\ABC\\10:HI"},
                                               1));
    EXPECT_EQ(other.clientHandles, MakeLongArray({1, 3, 4}, 1));
    EXPECT_EQ(other.updateRate, 200);
    EXPECT_EQ(panel->lblOpCntTitle.Caption(), "Operation counter value");
    EXPECT_EQ(panel->chkCounterInUse.Caption(), "Operation counter in use");
    EXPECT_TRUE(trace.Contains("-> MiscFunctions.Init"));
    EXPECT_TRUE(trace.Contains("<- MiscFunctions.Init"));
}

TEST_F(MiscFunctionsTest, OverflowIsCoAsBooleanForDoubleBinaryAndOnlyAzTwoOtherwise) {
    struct Case {
        int16_t type;
        Variant value;
        bool overflow;
    };
    const Case cases[] = {{12, Variant(1), true},  {12, Variant(0), false}, {12, Variant(2), true},
                          {3, Variant(1), false},  {3, Variant(2), true},   {9, Variant(2.0), true},
                          {3, Variant("2"), true}, {3, Variant(3), false}};
    for (const Case& c : cases) {
        auto fresh = std::make_shared<MiscFunctions>();
        fresh->SetParent(container->AsVariant());
        fresh->Activate(1, "ABC", "operator", Connection().AsVariant());
        objectType = Variant(c.type);
        fresh->Init();
        const int32_t handle = static_cast<int32_t>(Connection().subscriptions.size());
        ASSERT_TRUE(Connection().Notify(handle, {1, 3}, {c.value, Variant(1)}));
        EXPECT_EQ(fresh->isOverflow, c.overflow) << "type " << c.type << " value " << ToString(c.value);
        EXPECT_EQ(fresh->lblOverFlow.Visible(), c.overflow)
            << "type " << c.type << " value " << ToString(c.value);
        fresh->Deactivate();
    }
}

TEST_F(MiscFunctionsTest, StatusTextIsReportedOnlyWhenItChanges) {
    InitDoubleBinary();
    EXPECT_EQ(StatusTextCalls(), 0u);  // empty as before
    Notify({1}, {Variant(1)});
    EXPECT_EQ(panel->statusText, "Operation counter limit reached");
    EXPECT_EQ(StatusTextCalls(), 1u);
    Notify({2}, {Variant(1001)});
    EXPECT_EQ(StatusTextCalls(), 1u);
    Notify({1}, {Variant(0)});
    EXPECT_EQ(panel->statusText, "");
    EXPECT_EQ(StatusTextCalls(), 2u);
}

TEST_F(MiscFunctionsTest, ANotificationShowsTheValuesWithoutSendingAnythingAndABadItemIsSkippedAlone) {
    InitDoubleBinary(0, 998, 1, 1000);
    EXPECT_EQ(panel->lblOperationCount.Caption(), "998");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "1000");
    EXPECT_EQ(panel->chkCounterInUse.Value(), 1);
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());

    Notify({2, 3, 4, 2}, {Variant("many"), Variant(0), Variant(MakeVariantArray({1})), Variant(999)});
    EXPECT_EQ(panel->chkCounterInUse.Value(), 0);  // the check box's Click sent nothing
    EXPECT_EQ(panel->lblOperationCount.Caption(), "999");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "1000");
    EXPECT_TRUE(panel->txtOpCntLimit.Enabled());  // double binary: usage does not lock the fields
    EXPECT_TRUE(Writes().empty());
    EXPECT_FALSE(panel->isUpdating);
}

TEST_F(MiscFunctionsTest, OtherTypesShowDashesAndLockTheFieldsWhileTheCounterIsNotInUse) {
    objectType = Variant(3);
    panel->Init();
    Notify({1, 3, 4}, {Variant(0), Variant(0), Variant(60)});
    EXPECT_EQ(panel->lblOperationCount.Caption(), "-");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "-");
    EXPECT_FALSE(panel->txtOpCntLimit.Enabled());
    EXPECT_FALSE(panel->btnOpCntReset.Enabled());
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());

    Notify({3}, {Variant(1)});
    EXPECT_EQ(panel->lblOperationCount.Caption(), "0");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "60");
    EXPECT_TRUE(panel->txtOpCntLimit.Enabled());
    EXPECT_TRUE(panel->btnOpCntReset.Enabled());

    container->SetRight("IsUserAuthorized", false);
    Notify({3}, {Variant(1)});
    EXPECT_FALSE(panel->txtOpCntLimit.Enabled());
    EXPECT_FALSE(panel->btnOpCntReset.Enabled());
    EXPECT_TRUE(Writes().empty());
}

TEST_F(MiscFunctionsTest, TheOperatorsWritesNameTheAttributeWithTheIndexAndTheCheckBoxValue) {
    InitDoubleBinary();
    panel->btnOpCntReset.Click();
    panel->chkCounterInUse.Click();
    panel->chkCounterInUse.Click();
    EXPECT_EQ(Writes(),
              (std::vector<std::string>{"#SET ABC:PCV10=0", "#SET ABC:PCE10=0", "#SET ABC:PCE10=1"}));
    EXPECT_EQ(panel->GetExtraInfo(), Variant());
    EXPECT_EQ(Commands().back(), R"(#return do(BGU_CONTROL:C, ("ABC",10),"GET_EXTRA_INFO"))");

    objectType = Variant(9);
    panel->Init();
    panel->chkCounterInUse.Click();
    EXPECT_EQ(Writes().back(), "#SET ABC:PIU10=0");
}

TEST_F(MiscFunctionsTest, SetIsEnabledOnlyForChangedTextOfAnAuthorisedUser) {
    InitDoubleBinary();
    panel->txtOpCntLimit.EnterText("1");
    EXPECT_TRUE(panel->btnSetOpcCntLimit.Enabled());
    panel->txtOpCntLimit.SetText("1000");
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());
    container->SetRight("IsUserAuthorized", false);
    panel->txtOpCntLimit.SetText("1200");
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());
}

TEST_F(MiscFunctionsTest, LimitsThatAreNotPositiveFloatsAreRefusedUnsentWith403AndARefresh) {
    InitDoubleBinary();
    for (const char* typed : {"0", "-5", "abc", "1e40", "", "-0.0"}) {
        const size_t refreshes = Connection().refreshes.size();
        panel->txtOpCntLimit.SetText(typed);
        panel->btnSetOpcCntLimit.Click();
        EXPECT_EQ(Connection().refreshes.size(), refreshes + 1) << typed;
    }
    EXPECT_TRUE(Writes().empty());
    EXPECT_EQ(container->shownErrors, std::vector<std::string>(6, "Value is not acceptable"));
}

TEST_F(MiscFunctionsTest, AcceptedLimitIsSentAsTypedAndANonZeroStatusIsRefusedToo) {
    InitDoubleBinary();
    panel->txtOpCntLimit.SetText("1e3");
    panel->btnSetOpcCntLimit.Click();
    EXPECT_EQ(Writes(), std::vector<std::string>{"#SET ABC:PCL10=1e3"});
    EXPECT_TRUE(container->shownErrors.empty());
    EXPECT_TRUE(Connection().refreshes.empty());
    EXPECT_EQ(container->CallsOf("RunVexlCmdWithStatus").size(), 1u);

    setStatus = 13;
    panel->txtOpCntLimit.SetText("0.5");
    panel->btnSetOpcCntLimit.Click();
    EXPECT_EQ(Writes().back(), "#SET ABC:PCL10=0.5");
    EXPECT_EQ(container->shownErrors, std::vector<std::string>{"Value is not acceptable"});
    EXPECT_EQ(Connection().refreshes.size(), 1u);
}

TEST_F(MiscFunctionsTest, ATypeThatIsNotANumberEndsInitQuietlyWithoutSubscribing) {
    objectType = Variant("breaker");
    TraceCapture trace;
    EXPECT_NO_THROW(panel->Init());
    EXPECT_TRUE(Connection().subscriptions.empty());
    EXPECT_TRUE(trace.Contains("<- MiscFunctions.Init ERROR OCCURRED!!!"));
}

}  // namespace
}  // namespace trovane::testing
