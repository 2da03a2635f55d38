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

TEST(ScenarioTest, DemoHasTheBreakerNearItsCounterLimitAndAComment) {
    auto database = MakeDemoDatabase();
    EXPECT_EQ(database->App().number, 1);
    EXPECT_EQ(database->Read({"ABC", 10, "PT"}), Variant(int32_t{12}));
    EXPECT_EQ(database->Read({"ABC", 10, "CV"}), Variant(int32_t{998}));
    EXPECT_EQ(database->Read({"ABC", 10, "CO"}), Variant(int32_t{0}));
    EXPECT_FALSE(database->Read({"ABC", std::nullopt, "GC"}).AsString().empty());
    ASSERT_TRUE(database->Tagouts());
    EXPECT_EQ(database->FindObject("ABC", 10)->tagouts.active.size(), 1u);
}

TEST(ScenarioTest, MinimalScenarioGetsDefaults) {
    ProcessDatabase database;
    LoadScenario(R"({"objects":[{"name":"q1","signals":[{"index":3,"type":9,"value":1}]}]})", database);
    EXPECT_EQ(database.Read({"Q1", 3, "OV"}), Variant(1.0));
    EXPECT_EQ(database.Read({"Q1", std::nullopt, "GC"}), Variant(""));
    EXPECT_EQ(database.Read({"Q1", std::nullopt, "IX"}), Variant(int32_t{3})) << "the main object";
    EXPECT_FALSE(database.Tagouts());
}

TEST(ScenarioTest, BadScenariosNameThePlaceOfTheMistake) {
    EXPECT_NE(ErrorOf("{").find("not valid JSON"), std::string::npos);
    EXPECT_NE(ErrorOf("[]").find("scenario: expected an object"), std::string::npos);
    EXPECT_NE(ErrorOf("{}").find("missing \"objects\""), std::string::npos);
    EXPECT_NE(ErrorOf(R"({"objects":[{"name":"A","signals":[{"index":"1","type":3}]}]})")
                  .find("objects[0].signals[0].index: expected an integer"),
              std::string::npos);
    EXPECT_NE(ErrorOf(R"({"objects":[{"name":"A","signals":[{"index":1,"type":3,"blocked":["SOME"]}]}]})")
                  .find("unknown blocking"),
              std::string::npos);
    EXPECT_NE(
        ErrorOf(
            R"({"objects":[{"name":"A","comment":{"author":"a","time":"today","text":""},"signals":[]}]})")
            .find("yyyy-mm-dd"),
        std::string::npos);
    EXPECT_NE(ErrorOf(R"({"objects":[{"name":"A","signals":[{"index":1,"type":3},{"index":1,"type":9}]}]})")
                  .find("objects[0].signals[1].index: a signal with this index exists already"),
              std::string::npos);
    EXPECT_NE(ErrorOf(R"({"objects":[{"name":"A","mainIndex":5,"signals":[]}]})").find("mainIndex"),
              std::string::npos);
    EXPECT_NE(
        ErrorOf(
            R"({"objects":[{"name":"A","signals":[{"index":1,"type":3,"counter":{"value":1,"limit":0}}]}]})")
            .find("limit"),
        std::string::npos);
    EXPECT_NE(ErrorOf(R"({"objects":[],"tagouts":[{"name":"A","index":1,"key":"k","values":{}}]})")
                  .find("no such process object"),
              std::string::npos);
    EXPECT_NE(ErrorOf(R"({"objects":[{"name":"A","signals":[{"index":1,"type":3,"value":"on"}]}]})")
                  .find("wrong type"),
              std::string::npos);
}

TEST(ScenarioTest, WritesKeepTheAttributeType) {
    ProcessDatabase database;
    LoadScenario(R"({"objects":[{"name":"A","signals":[{"index":1,"type":9,"attributes":{"XY":"t"}}]}]})",
                 database);
    database.Write({"A", 1, "OV"}, Variant("12.5"));
    EXPECT_EQ(database.Read({"A", 1, "OV"}), Variant(12.5));
    database.Write({"A", 1, "XY"}, Variant(int32_t{5}));
    EXPECT_EQ(database.Read({"A", 1, "XY"}), Variant("5"));
    EXPECT_THROW(database.Write({"A", 1, "OV"}, Variant("high")), VexlStatus);
    EXPECT_THROW(database.Write({"A", 1, "AL"}, Variant(int32_t{3})), VexlStatus);
}

}  // namespace
}  // namespace trovane::sim
