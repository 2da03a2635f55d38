#include <gtest/gtest.h>

#include "alarms/alarm_rows.h"

namespace trovane {
namespace {

Variant Signal(const char* keyword, Variant unacknowledged = false) {
    return MakeVariantArray({"ABC", 10, "Breaker open", keyword, std::move(unacknowledged)}, 1);
}

TEST(AlarmStates, KeywordsMatchExactlyAndSixStatesShareOneText) {
    EXPECT_EQ(ClassifyAlarmState("normal"), nullptr);
    EXPECT_EQ(ClassifyAlarmState("NORMAL "), nullptr);
    EXPECT_EQ(ClassifyAlarmState("OS_10")->stateTextId, 4023);
    EXPECT_EQ(ClassifyAlarmState("ACTIVE_ACKNOWLEDGED")->iconFile, "AlarmLedActivAcked.ico");
    for (const char* keyword : {"NORMAL", "OS_1_2_4_9", "BLOCKED", "MANUALLY_ENTERED", "SUBSTITUTED"})
        EXPECT_EQ(ClassifyAlarmState(keyword)->stateTextId, 4022) << keyword;
}

TEST(AlarmRows, OnlyAnUnacknowledgedAlarmIsTaggedAndAcknowledgeableAndAnAcknowledgedFleetingOneIsGhosted) {
    const struct {
        Variant element;
        const char* tag;
        bool ghosted, acknowledgeable;
    } cases[] = {{Signal("PERSISTING", true), "True", false, true},
                 {Signal("FLEETING", false), "", true, false}};
    for (const auto& c : cases) {
        const auto row = ClassifyAlarmElement(c.element);
        ASSERT_TRUE(row);
        EXPECT_EQ(row->key + "|" + row->tag + "|" + row->identity + "|" + row->signalText,
                  std::string("ABC:PAR10|") + c.tag + "|ABC:10|Breaker open");
        EXPECT_EQ(row->ghosted, c.ghosted);
        EXPECT_EQ(CanBeAcknowledged(row->key, row->tag), c.acknowledgeable);
    }
    EXPECT_EQ(ClassifyAlarmElement(Signal("PERSISTING", Variant::Null()))->tag, "");  // Null: not waiting
}

TEST(AlarmRows, NonAlarmingStatesHaveNoKeyWhateverTheFlagAndUnknownOrMalformedElementsNoRow) {
    for (const AlarmState& state : kAlarmStates) {
        if (state.isAlarming) continue;
        const auto row = ClassifyAlarmElement(Signal(std::string(state.keyword).c_str(), true));
        ASSERT_TRUE(row) << state.keyword;
        EXPECT_EQ(row->key + row->tag + "|" + row->identity, "|ABC:10");
        EXPECT_FALSE(row->ghosted);
    }
    EXPECT_FALSE(ClassifyAlarmElement(Signal("normal")));
    EXPECT_FALSE(ClassifyAlarmElement(Variant("PERSISTING")));
    EXPECT_FALSE(ClassifyAlarmElement(MakeVariantArray({"ABC", 10}, 1)));
    EXPECT_FALSE(ClassifyAlarmElement(MakeVariantArray({"ABC", 10, "text", 5}, 1)));
}

}  // namespace
}  // namespace trovane
