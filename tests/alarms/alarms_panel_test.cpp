#include "alarms_fixture.h"
#include "core/error.h"

namespace trovane::testing {
namespace {

TEST_F(AlarmsPanelTest, RefreshShowsKnownStatesInServerOrder) {
    SetSignals({Signal("ABC", 10, "PERSISTING", true), Signal("ABC", 11, "FLEETING", false),
                Signal("ABC", 12, "normal"), Signal("ABC", 13, "OS_10")});
    panel->RefreshAlarms();

    ListView& list = panel->ListView1;
    ASSERT_EQ(list.ItemCount(), 3);
    EXPECT_EQ(panel->RowIdentities(), (std::vector<std::string>{"ABC:10", "ABC:11", "ABC:13"}));
    EXPECT_EQ(list.Column(2).text, "Object text");
    EXPECT_EQ(list.Column(3).text, "Alarm state");
    EXPECT_EQ(list.Item(1).Key(), "ABC:PAR10");
    EXPECT_EQ(list.Item(1).Tag(), "True");
    EXPECT_EQ(list.Item(1).SubItem(2), "Persisting");
    EXPECT_EQ(list.Item(2).SmallIcon(), 2);
    EXPECT_TRUE(list.Item(2).Ghosted());
    EXPECT_EQ(list.Item(3).Key(), "");
    EXPECT_EQ(list.Item(3).SmallIcon(), 5);
    EXPECT_EQ(list.Item(3).SubItem(1), "Signal 13");
    EXPECT_EQ(list.Item(3).SubItem(2), "Not sampled");
    EXPECT_TRUE(panel->AnyUnacknowledged());
    EXPECT_TRUE(panel->btnAck.Enabled());
    EXPECT_FALSE(panel->btnAckSelected.Enabled());
}

TEST_F(AlarmsPanelTest, WithoutAlarmRightsBothAcknowledgeButtonsStayDisabled) {
    container->SetRight("IsAlarmHandlingAllowed", false);
    SetThreeSignals();
    panel->RefreshAlarms();
    panel->ListView1.ClickItem(1);
    EXPECT_FALSE(panel->btnAck.Enabled());
    EXPECT_FALSE(panel->btnAckSelected.Enabled());
}

TEST_F(AlarmsPanelTest, AcknowledgeAllSendsEveryAcknowledgeableKeyInRowOrder) {
    SetSignals({Signal("ABC", 10, "PERSISTING", true), Signal("ABC", 11, "FLEETING", false),
                Signal("XYZ", 3, "FLEETING", true), Signal("ABC", 12, "ACTIVE_ACKNOWLEDGED", true)});
    panel->RefreshAlarms();
    panel->btnAck.Click();
    EXPECT_EQ(Commands(), (std::vector<std::string>{"#SET ABC:PAR10=1", "#SET XYZ:PAR3=1"}));
    EXPECT_EQ(panel->ListView1.ItemCount(), 4);  // the server's notification refreshes, not the button
}

TEST_F(AlarmsPanelTest, AcknowledgeSelectedSendsTheRowKeyAndReleasesTheList) {
    SetThreeSignals();
    panel->RefreshAlarms();
    panel->ListView1.ClickItem(1);
    ASSERT_TRUE(panel->DisableUpdate);
    ASSERT_TRUE(panel->btnAckSelected.Enabled());
    panel->btnAckSelected.Click();
    EXPECT_EQ(Commands(), (std::vector<std::string>{"#SET ABC:PAR10=1"}));
    EXPECT_FALSE(panel->DisableUpdate);
    EXPECT_FALSE(panel->btnAckSelected.Enabled());
}

TEST_F(AlarmsPanelTest, ClickFreezesTheListUntilRefresh) {
    SetThreeSignals();
    panel->RefreshAlarms();
    panel->ListView1.ClickItem(3);
    EXPECT_TRUE(panel->DisableUpdate);
    EXPECT_FALSE(panel->btnAckSelected.Enabled());  // a normal row cannot be acknowledged

    SetSignals({Signal("ABC", 10, "NORMAL")});
    panel->RefreshAlarms();
    EXPECT_EQ(panel->ListView1.ItemCount(), 3);

    panel->btnRefresh.Click();  // not active: the container refreshes the subscriptions
    EXPECT_FALSE(panel->DisableUpdate);
    EXPECT_EQ(container->CallsOf("RefreshSubscriptions").size(), 1u);
    panel->RefreshAlarms();
    EXPECT_EQ(panel->ListView1.ItemCount(), 1);
}

TEST_F(AlarmsPanelTest, DisableUpdateIsReachableByName) {
    const Variant self{ObjectRef(panel)};
    PutProperty(self, "DisableUpdate", true);
    EXPECT_TRUE(panel->DisableUpdate);
    SetThreeSignals();
    CallMethod(self, "RefreshAlarms");
    EXPECT_EQ(panel->ListView1.ItemCount(), 0);
    PutProperty(self, "disableupdate", false);
    CallMethod(self, "RefreshAlarms");
    EXPECT_EQ(panel->ListView1.ItemCount(), 3);
}

TEST_F(AlarmsPanelTest, MoreThan32767SignalsIsAnOverflow) {
    alarmList = MakeVariantArray(
        {Variant(Currency{0}), "COMBO_LIST", MakeVariantArray(std::vector<Variant>(32768, Variant()), 1)});
    try {
        panel->RefreshAlarms();
        FAIL() << "no overflow";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 6);
    }
}

TEST_F(AlarmsPanelTest, InitSetsCaptionsAndFillsAllNineIcons) {
    files->Put("C:\\sc\\ovo_lib\\defaults\\icons\\AlarmLedNormal.ico", "normal");
    container->ConnectionObject().RespondWith(
        [](int16_t, const std::string& command) -> FakeConnection::Answer {
            if (command == "#return APL:BNA") return {Variant("DEMO"), 0, {}};
            return {Variant("C:\\sc"), 0, {}};
        });
    TraceCapture trace;
    panel->Init();

    EXPECT_EQ(trace.Lines().front(), "-> Alarms.Init");
    EXPECT_EQ(trace.Lines().back(), "<- Alarms.Init");
    EXPECT_EQ(Commands(), (std::vector<std::string>{"#return fm_represent(fm_vexl_directory(\"/\"))",
                                                    "#return APL:BNA"}));
    EXPECT_EQ(panel->btnAck.Caption(), "Ack. All");
    EXPECT_EQ(panel->btnAckSelected.Caption(), "Ack. selected");
    EXPECT_EQ(panel->btnRefresh.Caption(), "Refresh");
    const ImageList& images = panel->ListView1.SmallIcons();
    ASSERT_EQ(images.Count(), 9);
    EXPECT_EQ(images.Item(4).name, "C:\\sc\\ovo_lib\\defaults\\icons\\AlarmLedNormal.ico");
    EXPECT_EQ(images.Item(1), panel->Picture1.GetPicture());

    panel->Init();  // a second Init keeps every position
    EXPECT_EQ(images.Count(), 9);
}

TEST_F(AlarmsPanelTest, ActivateSubscribesTheApplicationAlarmItem) {
    SetThreeSignals();
    FakeConnection& connection = container->ConnectionObject();
    panel->Activate(1, connection.AsVariant());

    ASSERT_EQ(connection.subscriptions.size(), 1u);
    const FakeConnection::Subscription& subscription = connection.subscriptions[0];
    EXPECT_EQ(subscription.itemPaths.AsArray().At(1), Variant("\\\\APL\\1:AT"));
    EXPECT_EQ(subscription.updateRate, 500);
    EXPECT_EQ(panel->ListView1.ItemCount(), 0);
    ASSERT_TRUE(connection.Notify(1, {1}, {Variant(1)}));
    EXPECT_EQ(panel->ListView1.ItemCount(), 3);

    panel->DisableUpdate = true;
    panel->btnRefresh.Click();
    EXPECT_FALSE(panel->DisableUpdate);
    ASSERT_EQ(connection.refreshes.size(), 1u);
    EXPECT_EQ(connection.refreshes[0].handle, 1);
    EXPECT_EQ(connection.refreshes[0].source, 1);
    EXPECT_TRUE(container->CallsOf("RefreshSubscriptions").empty());

    panel->Deactivate();
    EXPECT_EQ(connection.removedHandles, (std::vector<int32_t>{1}));
}

TEST_F(AlarmsPanelTest, FailingRebuildInANotificationIsTraced) {
    FakeConnection& connection = container->ConnectionObject();
    panel->Activate(1, connection.AsVariant());
    alarmList = MakeVariantArray(
        {Variant(Currency{0}), "COMBO_LIST", MakeVariantArray(std::vector<Variant>(40000, Variant()), 1)});
    TraceCapture trace;
    EXPECT_TRUE(connection.Notify(1, {1}, {Variant(1)}));
    EXPECT_TRUE(trace.Contains("<- Alarms.ISysDataCallback_OnDataChange ERROR OCCURRED!!!"));
}

TEST_F(AlarmsPanelTest, ResizeKeepsTheLastColumnAtTheVisibleEdge) {
    SetThreeSignals();
    panel->RefreshAlarms();
    panel->Resize_List_View(9000);
    const ListView& list = panel->ListView1;
    EXPECT_EQ(panel->Width(), 9000);
    EXPECT_EQ(list.Column(1).width, 22 * 15);
    const int32_t total = list.Column(1).width + list.Column(2).width + list.Column(3).width;
    EXPECT_EQ(total, list.Width() - (4 + 17) * 15 - 27);
    EXPECT_GT(panel->btnRefresh.Left(), panel->btnAckSelected.Left());
    EXPECT_LE(list.Top() + list.Height(), panel->btnAck.Top());
}

}  // namespace
}  // namespace trovane::testing
