// The object's tag indication as the tagout requests leave it (priority, tag text, locally blocked
// devices), read and subscribed like any attribute; and tagout requests without a class database.

#include <gtest/gtest.h>

#include "sim/server_fixture.h"
#include "sim/tagout_requests.h"
#include "support/recording_data_callback.h"

namespace trovane::sim::testing {
namespace {

class TagoutIndicationTest : public DemoServerTest {
  protected:
    Variant Tagout(const std::string& procedure, const std::string& arguments) {
        return Run("#return do(" + procedure + ", " + arguments + ")");
    }
    Variant LocalBlock(const std::string& value, const std::string& device) {
        return Tagout("OVGR_TAGOUT_AM:C",
                      "\"LOCAL_BLOCK\", (\"ABC\",10),\"" + value + "\",\"" + device + "\",\"k\"");
    }
};

TEST_F(TagoutIndicationTest, EventsAndLocalBlocksChangeWhatReadersAndSubscribersOfTheMainObjectSee) {
    trovane::testing::RecordingDataCallback callback;
    int32_t handle = 0;
    Variant results;
    connection->AddItems(MakeLongArray({1, 2}, 1),
                         MakeStringArray({"\\\\APL\\1\\P\\ABC:TP", "\\\\APL\\1\\P\\ABC:LB"}, 1), 0, 200,
                         handle, results);
    connection->SetCallback(&callback, handle);
    connection->Pump();
    Tagout("OVGR_TAGOUT:C", "\"EVENT_FUNCTIONS\", \"SET_PRIORITY\" ,(\"ABC\",10)");
    for (const char* device : {"02", "01"}) LocalBlock("X", device);
    EXPECT_EQ(Run("#return ABC:PLB10"), Variant("01,02"));
    LocalBlock("-", "02");
    connection->Pump();
    EXPECT_EQ(callback.ValuesOf(1), (std::vector<Variant>{Variant(""), Variant("High")}));
    EXPECT_EQ(callback.ValuesOf(2), (std::vector<Variant>{Variant(""), Variant("01")}));
    Tagout("OVGR_TAGOUT:C", "\"EVENT_FUNCTIONS\", \"RESET_PRIORITY\" ,(\"ABC\",10)");
    EXPECT_EQ(Run("#return ABC:PTP10"), Variant(""));
    int32_t status = 0;
    RunWithStatus("#SET ABC:PTT10=\"x\"", status);
    EXPECT_NE(status, 0) << "only tagout requests change it";

    Database().Tagouts().reset();
    EXPECT_EQ(Tagout("OVGR_TAGOUT:C", "\"GET_NACTIVE_TAGOUTS\", (\"ABC\",10)"),
              Variant(tagout_error::kNoClass));
    EXPECT_EQ(Tagout("OVGR_TAGOUT:C",
                     "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"ID1511202603344512\",\"OWNER\",\"x\""),
              Variant(tagout_error::kNoClass));
    EXPECT_EQ(LocalBlock("X", "03"), Variant(tagout_error::kNoClass));
    EXPECT_EQ(Run("#return ABC:PLB10"), Variant("01"));
}

}  // namespace
}  // namespace trovane::sim::testing
