// The control location and dial-up requests of the demo server, and what subscribers see of them.

#include "server_fixture.h"
#include "sim/dial_up_lines.h"
#include "support/recording_data_callback.h"

namespace trovane::sim::testing {
namespace {

using ::trovane::testing::RecordingDataCallback;

class LocationAndDialUpTest : public DemoServerTest {
  protected:
    int32_t StatusOf(const std::string& command) {
        int32_t status = 0;
        RunWithStatus(command, status);
        return status;
    }
};

TEST_F(LocationAndDialUpTest, StationAndNccMoveOnlyARemoteDeviceInABayThatAllowsControl) {
    Run(R"(#return do(BGU_LOCATION:C, "SELECT_NCC", ("ABC",10)))");
    EXPECT_EQ(Attribute("ABC", 10, "SL"), 0);
    Run("#SET ABC:PDL10=1");
    EXPECT_NE(StatusOf(R"(#return do(BGU_LOCATION:C, "SELECT_STATION", ("ABC",10)))"), 0);
    EXPECT_EQ(Attribute("ABC", 10, "SL"), 0);

    const std::string bay = R"(#return do(BGU_LOCATION:C, "GET_LOCATION", ("DEF",2)))";
    EXPECT_EQ(Item(Item(Run(bay), "CUSTOM_CONTROL_VALUES").AsArray().At(1), "STATE"), Variant("Local"));
    Run(R"(#return do(BGU_LOCATION:C, "SET_CUSTOM", ("DEF",2), "Local"))");
    EXPECT_EQ(Item(Run(bay), "CUSTOM_ALLOWS_CONTROL"), Variant(0));
    EXPECT_NE(StatusOf(R"(#return do(BGU_LOCATION:C, "SELECT_STATION", ("DEF",2)))"), 0);
    EXPECT_NE(StatusOf(R"(#return do(BGU_LOCATION:C, "SET_CUSTOM", ("DEF",2), "Maintenance"))"), 0);
    EXPECT_NE(StatusOf(R"(#return do(BGU_LOCATION:C, "SELECT_NCC", ("ABC",11)))"), 0);  // no location
}

TEST_F(LocationAndDialUpTest, ALineDialsConnectsOnTimeHangsUpAndAnUpdateSendsTheValuesAgain) {
    RecordingDataCallback callback;
    int32_t handle = 0;
    Variant results;
    connection->AddItems(MakeLongArray({1, 2}, 1),
                         MakeStringArray({"\\\\APL\\1\\P\\RTU\\1:LS", "\\\\APL\\1\\P\\RTU\\2:OV"}, 1), 0, 200,
                         handle, results);
    connection->SetCallback(&callback, handle);
    connection->Pump();
    callback.notifications.clear();

    Run(R"(#return do(BGU_DIALUP:C, "DIAL", ("RTU",1)))");
    EXPECT_NE(StatusOf(R"(#return do(BGU_DIALUP:C, "DIAL", ("RTU",1)))"), 0);
    EXPECT_NE(StatusOf(R"(#return do(BGU_DIALUP:C, "SYNC", ("RTU",1)))"), 0);
    clock.now = MakeDate(2026, 11, 22, 9, 30, 16);
    EXPECT_EQ(AdvanceDialUpLines(Database()), 0);
    connection->Pump();
    clock.now = MakeDate(2026, 11, 22, 9, 30, 17);
    EXPECT_EQ(AdvanceDialUpLines(Database()), 1);
    connection->Pump();
    EXPECT_EQ(callback.ValuesOf(1), (std::vector<Variant>{Variant(kLineDialling), Variant(kLineConnected)}));

    Run(R"(#return do(BGU_DIALUP:C, "SYNC", ("RTU",1)))");
    EXPECT_EQ(Attribute("RTU", 1, "SC"), 1);
    Run(R"(#return do(BGU_DIALUP:C, "UPDATE", ("RTU",1)))");
    EXPECT_EQ(Attribute("RTU", 1, "UC"), 1);
    Run(R"(#return do(BGU_DIALUP:C, "HANG_UP", ("RTU",1)))");
    connection->Pump();
    EXPECT_EQ(callback.ValuesOf(2), std::vector<Variant>{Variant(24.1)});
    EXPECT_EQ(callback.ValuesOf(1).back(), Variant(kLineIdle));
    EXPECT_NE(StatusOf(R"(#return do(BGU_DIALUP:C, "HANG_UP", ("RTU",1)))"), 0);
    EXPECT_NE(StatusOf(R"(#return do(BGU_DIALUP:C, "DIAL", ("ABC",10)))"), 0);  // no line
}

}  // namespace
}  // namespace trovane::sim::testing
