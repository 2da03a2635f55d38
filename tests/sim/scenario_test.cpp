// Scenario loading: the demo, a minimal file, and files that must be refused with a named place.

#include "sim/scenario.h"

#include <gtest/gtest.h>

#include "sim/vexl_environment.h"

namespace trovane::sim {
namespace {

std::string ErrorOf(const std::string& json) {
    ProcessDatabase database;
    try {
        LoadScenario(json, database);
    } catch (const ScenarioError& error) {
        return error.what();
    }
    return "no error";
}

TEST(ScenarioTest, MinimalScenarioGetsDefaultsAndWritesKeepTheAttributeType) {
    ProcessDatabase database;
    LoadScenario(R"({"objects":[{"name":"q1","signals":[{"index":3,"type":9,"value":1}]}]})", database);
    EXPECT_EQ(database.Read({"Q1", 3, "OV"}), Variant(1.0));
    EXPECT_EQ(database.Read({"Q1", std::nullopt, "GC"}), Variant(""));
    EXPECT_EQ(database.Read({"Q1", std::nullopt, "IX"}), Variant(int32_t{3})) << "the main object";
    EXPECT_FALSE(database.Tagouts());
    LoadScenario(R"({"objects":[{"name":"A","signals":[{"index":1,"type":9,"attributes":{"XY":"t"}}]}]})",
                 database);  // writes keep the attribute type
    database.Write({"A", 1, "OV"}, Variant("12.5"));
    EXPECT_EQ(database.Read({"A", 1, "OV"}), Variant(12.5));
    database.Write({"A", 1, "XY"}, Variant(int32_t{5}));
    EXPECT_EQ(database.Read({"A", 1, "XY"}), Variant("5"));
    EXPECT_THROW(database.Write({"A", 1, "OV"}, Variant("high")), VexlStatus);
    EXPECT_THROW(database.Write({"A", 1, "AL"}, Variant(int32_t{3})), VexlStatus);
}

TEST(ScenarioTest, BadScenariosNameThePlaceOfTheMistake) {
    const std::pair<const char*, const char*> cases[] = {
        {"{", "not valid JSON"},
        {"[]", "scenario: expected an object"},
        {"{}", "missing \"objects\""},
        {R"({"objects":[{"name":"A","signals":[{"index":"1","type":3}]}]})",
         "objects[0].signals[0].index: expected an integer"},
        {R"({"objects":[{"name":"A","signals":[{"index":1,"type":3,"blocked":["SOME"]}]}]})",
         "unknown blocking"},
        {R"({"objects":[{"name":"A","comment":{"author":"a","time":"today","text":""},"signals":[]}]})",
         "yyyy-mm-dd"},
        {R"({"objects":[{"name":"A","signals":[{"index":1,"type":3},{"index":1,"type":9}]}]})",
         "objects[0].signals[1].index: a signal with this index exists already"},
        {R"({"objects":[{"name":"A","mainIndex":5,"signals":[]}]})", "mainIndex"},
        {R"({"objects":[{"name":"A","signals":[{"index":1,"type":3,"counter":{"value":1,"limit":0}}]}]})",
         "limit"},
        {R"({"objects":[],"tagouts":[{"name":"A","index":1,"key":"k","values":{}}]})",
         "no such process object"},
        {R"({"objects":[{"name":"A","signals":[{"index":1,"type":3,"value":"on"}]}]})", "wrong type"}};
    for (const auto& [json, message] : cases)
        EXPECT_NE(ErrorOf(json).find(message), std::string::npos) << json;
}

}  // namespace
}  // namespace trovane::sim
