// The object's tag indication as the tagout requests leave it: priority and tag text from the event
// functions, locally blocked devices from LOCAL_BLOCK, read and subscribed like any attribute; and
// the tagout requests without a class database.

#include <gtest/gtest.h>

#include "sim/server_fixture.h"
#include "sim/tagout_requests.h"
#include "support/recording_data_callback.h"

namespace trovane::sim::testing {
namespace {

class TagoutIndicationTest : public DemoServerTest {
  protected:
    Variant LocalBlock(const std::string& value, const std::string& device) {
        return Run("#return do(OVGR_TAGOUT_AM:C, \"LOCAL_BLOCK\", (\"ABC\",10),\"" + value + "\",\"" +
                   device + "\",\"ID1511202603344512\")");
    }
    void Event(const std::string& event) {
        Run("#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"" + event + "\" ,(\"ABC\",10)" +
            (event == "SET_TAGTEXT" ? ",\"Earthed\")" : ")"));
    }
};

TEST_F(TagoutIndicationTest, EventsAndLocalBlocksChangeAttributesThatReadersAndSubscribersSee) {
    trovane::testing::RecordingDataCallback callback;
    int32_t handle = 0;
    Variant results;
    connection->AddItems(
        MakeLongArray({1, 2, 3}, 1),
        MakeStringArray({"\\\\APL\\1\\P\\ABC:TP", "\\\\APL\\1\\P\\ABC\\10:TT", "\\\\APL\\1\\P\\ABC\\10:LB"},
                        1),
        0, 200, handle, results);
    connection->SetCallback(&callback, handle);
    connection->Pump();
    callback.notifications.clear();

    Event("SET_PRIORITY");
    Event("SET_TAGTEXT");
    EXPECT_EQ(LocalBlock("X", "02"), Variant(int32_t{0}));
    LocalBlock("X", "01");
    EXPECT_EQ(Run("#return ABC:PTP10"), Variant("High"));
    EXPECT_EQ(Run("#return ABC:PTT10"), Variant("Earthed"));
    EXPECT_EQ(Run("#return ABC:PLB10"), Variant("01,02"));
    LocalBlock("-", "02");
    Event("SET_TAGTEXT");  // unchanged: no notification
    connection->Pump();
    EXPECT_EQ(callback.ValuesOf(1), std::vector<Variant>{Variant("High")})
        << "the main object, without index";
    EXPECT_EQ(callback.ValuesOf(2), std::vector<Variant>{Variant("Earthed")});
    EXPECT_EQ(callback.ValuesOf(3), std::vector<Variant>{Variant("01")});

    Event("RESET_PRIORITY");
    Event("RESET_TAGTEXT");
    EXPECT_EQ(Run("#return ABC:PTP10"), Variant(""));
    EXPECT_EQ(Run("#return ABC:PTT10"), Variant(""));
    EXPECT_EQ(Run("#return ABC:PTT11"), Variant("")) << "every object has an indication";
    int32_t status = 0;
    RunWithStatus("#SET ABC:PTT10=\"x\"", status);
    EXPECT_NE(status, 0) << "only tagout requests change it";
}

TEST_F(TagoutIndicationTest, WithoutAClassDatabaseStorageAndActionMethodsAnswer5007) {
    Database().Tagouts().reset();
    const std::string object = "(\"ABC\",10)";
    for (const std::string& request :
         {"\"GET_NACTIVE_TAGOUTS\", " + object, "\"GET_TAGOUT_NAMES\", " + object,
          "\"READ_TAGOUT_ATTRIBUTE_VALUE\", " + object + ",\"ID1511202603344512\",\"OWNER\"",
          "\"ADD_EMPTY_TAGOUT\", " + object + ",\"ID1\",\"operator1\"",
          "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", " + object + ",\"ID1511202603344512\",\"OWNER\",\"x\"",
          std::string("\"REMOVE_TAGOUT\", (\"NOPE\",1),\"ID1\"")})
        EXPECT_EQ(Run("#return do(OVGR_TAGOUT:C, " + request + ")"), Variant(tagout_error::kNoClass))
            << request;
    EXPECT_EQ(LocalBlock("X", "01"), Variant(tagout_error::kNoClass));
    EXPECT_EQ(Run("#return ABC:PLB10"), Variant(""));
    EXPECT_TRUE(Run("#return do(OVGR_TAGOUT:C, \"GET_TAGOUT_ID\")").IsString());
}

}  // namespace
}  // namespace trovane::sim::testing
