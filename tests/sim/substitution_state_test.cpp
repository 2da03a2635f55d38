// A substitution changes what the server reports about the signal and taking it off gives the
// process value back, however often the substitute value changed meanwhile.

#include <gtest/gtest.h>

#include "sim/server_fixture.h"

namespace trovane::sim::testing {
namespace {

using SubstitutionStateTest = DemoServerTest;

std::string Substitute(int32_t index, int32_t enabled, const std::string& value) {
    return "#return do(BGU_CONTROL:C,(\"ABC\",10),\"SET_SUBSTITUTION\",LIST(LOGICAL_DEVICE=\"N/A\","
           "LOGICAL_NODE=\"N/A\",DATA_OBJECT=\"N/A\",DATA_ATTRIBUTE=\"N/A\",LN=\"ABC\",IX=" +
           std::to_string(index) + ",ENABLED=" + std::to_string(enabled) + ",VALUE=" + value + ",QUALITY=0))";
}

TEST_F(SubstitutionStateTest,
       AlarmListValueAndFlagFollowTheSubstitutionAndTakingItOffRestoresTheProcessValue) {
    const auto alarmState = [this](int32_t index) {
        const Variant list = Run("#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", (\"ABC\",10))");
        for (const Variant& entry : Item(list, "COMBO_LIST").AsArray().Elements())
            if (ToInt32(entry.AsArray().At(2)) == index) return entry.AsArray().At(4).AsString();
        return std::string("not listed");
    };
    const auto listedSubstitution = [this](int32_t index) {
        const Variant answer =
            Run("#return do(BGU_CONTROL:C, (\"ABC\",10),\"GET_SUBSTITUTION\",\"en\",False)");
        for (const Variant& signal : Item(answer, "SIGNALS").AsArray().Elements())
            if (Item(signal, "IX") == Variant(index)) return ToInt32(Item(signal, "SB"));
        return -1;
    };
    const std::string before = alarmState(11);

    Run(Substitute(15, 1, "12.5"));
    Run(Substitute(15, 1, "20"));
    Run(Substitute(11, 1, "0"));
    Run(Substitute(10, 1, "3"));
    EXPECT_EQ(*Object("ABC", 15).Find("OV"), Variant(20.0));
    EXPECT_EQ(Attribute("ABC", 10, "OV"), 3);
    EXPECT_EQ(alarmState(11), "SUBSTITUTED");
    EXPECT_EQ(alarmState(15), "SUBSTITUTED");
    EXPECT_EQ(listedSubstitution(11), 1);

    Run(Substitute(15, 0, "0"));
    Run(Substitute(11, 0, "0"));
    Run(Substitute(11, 0, "0"));  // taking off twice changes nothing more
    EXPECT_EQ(*Object("ABC", 15).Find("OV"), Variant(312.5));
    EXPECT_EQ(Attribute("ABC", 11, "OV"), 1);
    EXPECT_EQ(alarmState(11), before);
    EXPECT_EQ(listedSubstitution(11), 0);
}

}  // namespace
}  // namespace trovane::sim::testing
