#include "alarms_fixture.h"
#include "core/error.h"
#include "support/error_number.h"

namespace trovane::testing {
namespace {

TEST_F(AlarmsPanelTest, RefreshShowsKnownStatesInServerOrder) {
    SetSignals({Signal("ABC", 10, "PERSISTING", true), Signal("ABC", 11, "FLEETING", false),
                Signal("ABC", 12, "normal"), Signal("ABC", 13, "OS_10")});
    panel->RefreshAlarms();

    ListView& list = panel->ListView1;
    ASSERT_EQ(list.ItemCount(), 3);
    EXPECT_EQ(panel->RowIdentities(), (std::vector<std::string>{"ABC:10", "ABC:11", "ABC:13"}));
    EXPECT_EQ(list.Column(2).text + "|" + list.Column(3).text, "Object text|Alarm state");
    EXPECT_EQ(list.Item(1).Key() + "|" + list.Item(1).Tag() + "|" + list.Item(1).SubItem(2),
              "ABC:PAR10|True|Persisting");
    EXPECT_EQ(list.Item(2).SmallIcon(), 2);
    EXPECT_TRUE(list.Item(2).Ghosted());
    EXPECT_EQ(list.Item(3).Key() + "|" + list.Item(3).SubItem(1) + "|" + list.Item(3).SubItem(2),
              "|Signal 13|Not sampled");
    EXPECT_EQ(list.Item(3).SmallIcon(), 5);
    EXPECT_TRUE(panel->btnAck.Enabled());
    EXPECT_FALSE(panel->btnAckSelected.Enabled());
}

TEST_F(AlarmsPanelTest, AcknowledgeAllOrSelectedSendsTheRowKeysAndReleasesTheListOnlyWithTheRight) {
    SetSignals({Signal("ABC", 10, "PERSISTING", true), Signal("ABC", 11, "FLEETING", false),
                Signal("XYZ", 3, "FLEETING", true), Signal("ABC", 12, "ACTIVE_ACKNOWLEDGED", true)});
    panel->RefreshAlarms();
    panel->btnAck.Click();
    EXPECT_EQ(Commands(), (std::vector<std::string>{"#SET ABC:PAR10=1", "#SET XYZ:PAR3=1"}));
    EXPECT_EQ(panel->ListView1.ItemCount(), 4);  // the server's notification refreshes, not the button
    panel->ListView1.ClickItem(1);
    ASSERT_TRUE(panel->DisableUpdate);
    ASSERT_TRUE(panel->btnAckSelected.Enabled());
    panel->btnAckSelected.Click();
    EXPECT_EQ(Commands().back(), "#SET ABC:PAR10=1");
    EXPECT_EQ(Commands().size(), 3u);
    EXPECT_FALSE(panel->DisableUpdate);
    EXPECT_FALSE(panel->btnAckSelected.Enabled());

    container->SetRight("IsAlarmHandlingAllowed", false);  // without the right neither button enables
    panel->RefreshAlarms();
    panel->ListView1.ClickItem(1);
    EXPECT_FALSE(panel->btnAck.Enabled());
    EXPECT_FALSE(panel->btnAckSelected.Enabled());
}

TEST_F(AlarmsPanelTest, ClickOrTheHostFreezesTheListUntilRefresh) {
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
    // The same freeze by name, as the host sets it.
    const Variant self{ObjectRef(panel)};
    PutProperty(self, "disableupdate", true);
    SetThreeSignals();
    CallMethod(self, "RefreshAlarms");
    EXPECT_EQ(panel->ListView1.ItemCount(), 1);
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
    EXPECT_EQ(
        panel->btnAck.Caption() + "|" + panel->btnAckSelected.Caption() + "|" + panel->btnRefresh.Caption(),
        "Ack. All|Ack. selected|Refresh");
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

    EXPECT_EQ(connection.subscriptions.at(0).itemPaths.AsArray().At(1), Variant("\\\\APL\\1:AT"));
    EXPECT_EQ(connection.subscriptions.at(0).updateRate, 500);
    EXPECT_EQ(panel->ListView1.ItemCount(), 0);
    ASSERT_TRUE(connection.Notify(1, {1}, {Variant(1)}));
    EXPECT_EQ(panel->ListView1.ItemCount(), 3);

    panel->DisableUpdate = true;
    panel->btnRefresh.Click();
    EXPECT_FALSE(panel->DisableUpdate);
    ASSERT_EQ(connection.refreshes.size(), 1u);
    EXPECT_EQ(connection.refreshes[0].handle, 1);
    EXPECT_TRUE(container->CallsOf("RefreshSubscriptions").empty());

    panel->Deactivate();
    EXPECT_EQ(connection.removedHandles, (std::vector<int32_t>{1}));
}

TEST_F(AlarmsPanelTest, MoreThan32767SignalsIsAnOverflowTracedInANotification) {
    SetSignals(std::vector<Variant>(32768, Variant()));
    EXPECT_EQ(ErrorNumberOf([&] { panel->RefreshAlarms(); }), 6);
    FakeConnection& connection = container->ConnectionObject();
    panel->Activate(1, connection.AsVariant());
    SetSignals(std::vector<Variant>(40000, Variant()));
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
