// The panels' exact command strings against the demo scenario: answer shapes and state changes.

#include <gtest/gtest.h>

#include <set>

#include "sim/alarm_state.h"
#include "sim/server_fixture.h"
#include "sim/vexl_time.h"
#include "sim/vexl_values.h"

namespace trovane::sim::testing {
namespace {

using ServerCommandsTest = DemoServerTest;

std::vector<int32_t> Longs(const Variant& vector) {
    std::vector<int32_t> values;
    for (const auto& element : vector.AsArray().Elements()) values.push_back(ToInt32(element));
    return values;
}

std::string Blocking(const std::string& request, int32_t index, const std::string& values,
                     const std::string& mode) {
    return "#return do(BGU_BLOCK:C, \"" + request + "\", (\"ABC\"," + std::to_string(index) + "), " + values +
           ", \"" + mode + "\")";
}

std::string Substitute(int32_t index, const std::string& enabled, const std::string& value) {
    return "#return do(BGU_CONTROL:C,(\"ABC\",10),\"SET_SUBSTITUTION\",LIST(LOGICAL_DEVICE=\"E01_CTRL\","
           "LOGICAL_NODE=\"XCBR1\",DATA_OBJECT=\"Pos\",DATA_ATTRIBUTE=\"stVal\",LN=\"ABC\",IX=" +
           std::to_string(index) + ",ENABLED=" + enabled + ",VALUE=" + value + ",QUALITY=0))";
}

TEST_F(ServerCommandsTest, ApplicationPathsComeFromTheRootAndTheApplicationName) {
    const Variant answer = Run("#return PATH(\"APL_\")");
    const std::string path = answer.AsArray().At(answer.AsArray().LowerBound()).AsString();
    ASSERT_GE(path.size(), 4u);
    EXPECT_EQ(path.substr(0, path.size() - 4), "C:\\sc\\apl\\DEMO\\");
    EXPECT_EQ(Run("#return fm_represent(fm_vexl_directory(\"/\"))"), Variant("C:\\sc"));
    EXPECT_EQ(Run("#return APL:BNA"), Variant("DEMO"));
}

TEST_F(ServerCommandsTest, CommentTimeReadsAsSixPartsAndWriteSplicesTheTime) {
    const std::string comment = Run("#return ABC:PGC").AsString();
    const std::string time =
        comment.substr(comment.find('#') + 1, comment.rfind('#') - comment.find('#') - 1);
    const Variant parts = Run("@t=type_cast(" + time + ",\"TIME\")\n" +
                              "#return (year(%t),month(%t),day(%t),hour(%t),minute(%t),second(%t))");
    EXPECT_EQ(Longs(parts), (std::vector<int32_t>{2026, 11, 20, 7, 45, 0}));

    Run("@TIME_STRING=type_cast(pack_time(2026,11,22,9,30,15),\"INTEGER\")\n"
        "#SET ABC:PGC=\"operator2#'TIME_STRING'#It''s \"\"new\"\"\" + ascii(10) + \"second line\"");
    const int32_t seconds = SecondsFromTime(MakeDate(2026, 11, 22, 9, 30, 15));
    EXPECT_EQ(Run("#return ABC:PGC"),
              Variant("operator2#" + std::to_string(seconds) + "#It's \"new\"\nsecond line"));
}

TEST_F(ServerCommandsTest, AlarmListHasOneFiveElementVectorPerSignalAndEveryState) {
    const Variant list = Run("#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", (\"ABC\",10))");
    const Variant& combo = Item(list, "COMBO_LIST");
    ASSERT_TRUE(IsVexlVector(combo));
    ASSERT_EQ(combo.AsArray().Size(), Database().FindGroup("ABC")->objects.size());
    EXPECT_EQ(combo.AsArray().At(1),
              MakeVexlVector({Variant("ABC"), Variant(int32_t{10}), Variant("Circuit breaker Q0"),
                              Variant("NORMAL"), Variant(false)}));
    std::set<std::string> keywords;
    for (const auto& [index, object] : Database().FindGroup("ABC")->objects)
        keywords.insert(AlarmOf(object).keyword);
    EXPECT_EQ(keywords,
              (std::set<std::string>{"PERSISTING", "FLEETING", "ACTIVE_ACKNOWLEDGED", "NORMAL", "OS_10",
                                     "OS_1_2_4_9", "BLOCKED", "MANUALLY_ENTERED", "SUBSTITUTED"}));
}

TEST_F(ServerCommandsTest,
       EnabledKindsAreKeywordsBlockingReadGreysMixedKindsWritesShowInTheNextReadAndSelectedLeavesTheOthers) {
    const Variant enabled = Run("#return do(BGU_BLOCK:C, \"GET_ENABLED_BLOCKINGS\", (\"ABC\",18))");
    std::string states;
    for (const char* kind : {"UPDATE", "CONTROL", "ALARM", "EVENT", "PRINTOUT", "ACTION"})
        states += Item(enabled, kind).AsString() + " ";
    EXPECT_EQ(states, "ENABLED DISABLED ENABLED ENABLED ENABLED DISABLED ");
    const std::string read = Blocking("GET_BLOCKING_STATE", 10, "Vector()", "APPLY_TO_ALL");
    const Variant state = Run(read);
    ASSERT_EQ(TypeName(state), "Long()");
    EXPECT_EQ(state.AsArray().LowerBound(), 1);
    EXPECT_EQ(Longs(state), (std::vector<int32_t>{0, 0, 2, 0, 0, 0}));

    // Grey in a write keeps each signal's kind as it is.
    Run(Blocking("SET_BLOCKING_STATE", 10, "(1,0,2,0,0,0)", "APPLY_TO_ALL"));
    EXPECT_EQ(Attribute("ABC", 16, "AB"), 1);
    EXPECT_EQ(Attribute("ABC", 17, "AB"), 0);

    Run(Blocking("SET_BLOCKING_STATE", 10, "(0,1,0,0,0,0)", "APPLY_TO_ALL"));
    EXPECT_EQ(Longs(Run(read)), (std::vector<int32_t>{0, 1, 0, 0, 0, 0}));
    EXPECT_EQ(Attribute("ABC", 17, "CB"), 1);
    EXPECT_EQ(Attribute("ABC", 11, "CB"), 0) << "control blocking is disabled for indications";
    EXPECT_EQ(Attribute("ABC", 16, "AB"), 0);

    // Selected: only the chosen signal.
    Run(Blocking("SET_BLOCKING_STATE", 11, "(1,0,1,0,0,0)", "APPLY_TO_SELECTED"));
    EXPECT_EQ(Longs(Run(Blocking("GET_BLOCKING_STATE", 11, "Vector()", "APPLY_TO_SELECTED"))),
              (std::vector<int32_t>{1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(Attribute("ABC", 12, "UB"), 0);
    EXPECT_EQ(AlarmOf(Object("ABC", 11)).keyword, "BLOCKED");
}

TEST_F(ServerCommandsTest,
       MalformedOrRefusedCommandsFailWithAStatusAsDoesAnotherApplicationOrANotReadyConnection) {
    // clang-format off
    for (const std::string& command : {
             Blocking("GET_BLOCKING_STATE", 10, "Vector()", "APPLY_TO_SOME"),
             Blocking("SET_BLOCKING_STATE", 10, "(0,1)", "APPLY_TO_ALL"),
             Blocking("GET_BLOCKING_STATE", 99, "Vector()", "APPLY_TO_ALL"),
             std::string("#return do(BGU_BLOCK:C, \"NO_SUCH_REQUEST\")"), std::string("#return do(BGU_BLOCK:C)"),
             std::string("#SET ABC:PCL10=0"), std::string("#SET ABC:PCL10=-5"), std::string("#SET ABC:PCL10=\"abc\""),
             std::string("#SET ABC:PPT10=3"), std::string("#SET ABC:PCO10=0"), std::string("#return ABC:PZZ10"),
             std::string("#SET ABC:POV10=7")}) {
        // clang-format on
        int32_t status = 0;
        EXPECT_TRUE(RunWithStatus(command, status).IsEmpty()) << command;
        EXPECT_NE(status, 0) << command;
    }
    EXPECT_EQ(Attribute("ABC", 10, "CL"), 1000);
    Variant result;  // nor does the connection take another application's or, not ready, any command
    int32_t status = 0;
    connection->ExecuteCommand(2, "#return 1", result, status);
    EXPECT_EQ(status, status::kUnknownObject);
    connection->SetReady(false);
    connection->ExecuteCommand(1, "#return 1", result, status);
    EXPECT_EQ(status, status::kNotReady);
    EXPECT_TRUE(result.IsEmpty());
}

TEST_F(
    ServerCommandsTest,
    SubstitutionListDescribesEverySignalOrTheSelectedOneAndSetsAndReleasesTheValueUnlessTheAddressIsUnknown) {
    const Variant answer = Run("#return do(BGU_CONTROL:C, (\"ABC\",10),\"GET_SUBSTITUTION\",\"en\",False)");
    EXPECT_EQ(Item(answer, "STATUS"), Variant(int32_t{0}));
    const Variant& signals = Item(answer, "SIGNALS");
    ASSERT_EQ(signals.AsArray().Size(), 10u);
    const Variant& breaker = signals.AsArray().At(1);
    EXPECT_EQ(Item(breaker, "TX"), Variant("Circuit breaker Q0"));
    EXPECT_EQ(Item(breaker, "IX"), Variant(int32_t{10}));
    EXPECT_EQ(Item(breaker, "STATE_TEXTS").AsArray().Size(), 4u);

    const Variant single = Run("#return do(BGU_CONTROL:C, (\"ABC\",15),\"GET_SUBSTITUTION\",\"en\",True)");
    const Variant& one = Item(single, "SIGNALS");
    ASSERT_EQ(one.AsArray().Size(), 1u);
    EXPECT_EQ(Item(one.AsArray().At(1), "MIN"), Variant(0.0));
    EXPECT_EQ(Item(one.AsArray().At(1), "MAX"), Variant(1000.0));

    const Variant unknown = Run("#return do(BGU_CONTROL:C, (\"ABC\",99),\"GET_SUBSTITUTION\",\"en\",True)");
    EXPECT_EQ(Item(unknown, "STATUS"), Variant(int32_t{-1}));
    EXPECT_TRUE(Item(unknown, "MESSAGE").IsString());
    EXPECT_EQ(Item(Run(Substitute(15, "1", "12.5")), "STATUS"), Variant(int32_t{0}));
    EXPECT_EQ(*Object("ABC", 15).Find("OV"), Variant(12.5));
    EXPECT_EQ(Attribute("ABC", 15, "SB"), 1);
    Run(Substitute(15, "0", "12.5"));
    EXPECT_EQ(*Object("ABC", 15).Find("OV"), Variant(312.5));
    EXPECT_EQ(Attribute("ABC", 15, "SB"), 0);
    // Substituting the breaker counts no operation.
    Run(Substitute(10, "1", "1"));
    EXPECT_EQ(Attribute("ABC", 10, "OV"), 1);
    EXPECT_EQ(Attribute("ABC", 10, "CV"), 998);
    // A signal address that names nothing: status -1 and no change.
    const Variant refused = Run(
        "#return "
        "do(BGU_CONTROL:C,(\"ABC\",10),\"SET_SUBSTITUTION\",LIST(LOGICAL_DEVICE=\"N/A\",LOGICAL_NODE=\"N/A\","
        "DATA_OBJECT=\"N/A\",DATA_ATTRIBUTE=\"N/A\",LN=\"ABC\",IX=11,ENABLED=1,VALUE=5,QUALITY=0))");
    EXPECT_EQ(Item(refused, "STATUS"), Variant(int32_t{-1}));
    EXPECT_EQ(Attribute("ABC", 11, "OV"), 1);
    EXPECT_EQ(Attribute("ABC", 11, "SB"), 0);
}

TEST_F(ServerCommandsTest, OperationCounterCommandsOfTheDoubleBinaryBreakerAndOperationsCountUpToTheLimit) {
    EXPECT_EQ(Run("#RETURN ABC:PPT"), Variant(int32_t{12}));
    const Variant info = Run("#return do(BGU_CONTROL:C, (\"ABC\",10),\"GET_EXTRA_INFO\")");
    EXPECT_EQ(Item(info, "CV"), Variant(int32_t{998}));
    EXPECT_EQ(Item(info, "CL"), Variant(int32_t{1000}));
    Run("#SET ABC:POV10=1");  // each operation of the breaker counts, up to the limit
    Run("#SET ABC:POV10=2");
    EXPECT_EQ(Attribute("ABC", 10, "CV"), 1000);
    EXPECT_EQ(Attribute("ABC", 10, "CO"), 1);
    Run("#SET ABC:PCV10=0");
    EXPECT_EQ(Attribute("ABC", 10, "CO"), 0);
    Run("#SET ABC:PCV10=998");
    Run("#SET ABC:PCL10=998");  // a lower limit reached at once
    EXPECT_EQ(Attribute("ABC", 10, "CO"), 1);
    Run("#SET ABC:PCE10=0");
    EXPECT_EQ(Attribute("ABC", 10, "CE"), 0);
}

}  // namespace
}  // namespace trovane::sim::testing
