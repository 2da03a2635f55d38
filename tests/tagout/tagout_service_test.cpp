// The tagout panel's server calls against scripted answers: the result check and its error texts,
// the reads with their fall-backs, and the writes byte for byte.

#include <gtest/gtest.h>

#include <regex>

#include "support/error_number.h"
#include "tagout/tagout_panel_fixture.h"

namespace trovane::testing {
namespace {

// The panel's calls one by one on a model the test fills: "#" and then the given attributes.
class TagoutPanelTest : public TagoutPanelFixture {
  protected:
    void DefineAttributes(const std::vector<std::pair<std::string, bool>>& attributes) {
        clsTagout& model = *panel->clsActiveTagouts;
        model.AddAttrName("#", 0);
        model.AddAttrVisible("TRUE", 0);
        for (const auto& [name, visible] : attributes) {
            model.AddAttrName(name, 0);
            model.AddAttrVisible(visible ? "TRUE" : "FALSE", 0);
        }
    }
    std::map<std::string, Variant>& answers = server.overrides;
};

const std::string kText512 = "Tagout Function not initialized. Tagout Class data base does not exist!";
const std::string kText513 = "This error code is unknown. Consult the Ovo-D supportline!";

TEST_F(TagoutPanelTest, FailedChecksShow512ForCode5007TheServersMessageForOtherCodesAnd513Otherwise) {
    answers["MISC_FUNCTIONS GET_ERRORMSG"] = Variant("Too many tagouts");
    EXPECT_FALSE(panel->CheckTagoutResult(Variant(int32_t{5007}), "String()", true));
    EXPECT_FALSE(panel->CheckTagoutResult(Variant(int16_t{5007}), "String()", true));
    EXPECT_TRUE(Commands().empty()) << "no message is asked for 5007 or a value that is no code";
    EXPECT_FALSE(panel->CheckTagoutResult(Variant(int32_t{5004}), "Variant()", false));
    EXPECT_EQ(Commands(), std::vector<std::string>{
                              R"(#return do(OVGR_TAGOUT:C, "MISC_FUNCTIONS","GET_ERRORMSG", "5004"))"});
    for (const Variant& count : {Variant(int32_t{99}), Variant(int32_t{100}), Variant()}) {
        answers["GET_NACTIVE_TAGOUTS"] = count;
        EXPECT_EQ(panel->CountActiveTagouts(), count == Variant(int32_t{99}) ? 99 : 0);
    }
    EXPECT_EQ(Commands().back(), R"(#return do(OVGR_TAGOUT:C, "GET_NACTIVE_TAGOUTS", ("ABC",10)))");
    EXPECT_EQ(Commands()[Commands().size() - 2],
              R"(#return do(OVGR_TAGOUT:C, "MISC_FUNCTIONS","GET_ERRORMSG", "100"))");
    EXPECT_EQ(container->shownErrors,
              (std::vector<std::string>{kText512, kText513, "Too many tagouts", kText513}));
}

TEST_F(TagoutPanelTest, ReadsFallBackToTheirDefaultsAndOnlyTheListedOnesShowAnError) {
    answers["GET_TAGOUT_NAMES"] = Variant(int32_t{5007});
    answers["GET_CLASS"] = Variant(int32_t{5007});
    answers["GET_CLASS_ACTIONMETHODS"] = MakeStringArray({"LOCAL_BLOCK"}, 1);
    answers["GET_CLASS_ATTRIBUTES"] = MakeLongArray({1, 0}, 1);
    answers["READ_TAGOUT_ATTRIBUTE_VALUE"] = Variant(int32_t{5004});
    answers["MISC_FUNCTIONS GET_ERRORMSG"] = Variant("The tagout does not exist");
    answers["MISC_FUNCTIONS GET_TIME"] = MakeStringArray({"09:30"});
    EXPECT_EQ(panel->GetTagoutNames(), MakeStringArray({""}, 1));
    panel->QueryTagoutClass();
    EXPECT_FALSE(panel->classExists);
    EXPECT_TRUE(panel->bClassHasActionMethods());
    EXPECT_TRUE(panel->GetVoskClassAttributes("VISIBLE", "String()").IsNothing());
    EXPECT_EQ(panel->ReadTagoutAttributeValue("ID1", "OWNER"), Variant("The tagout does not exist"));
    EXPECT_EQ(panel->GetVOSKTime(), "");
    EXPECT_EQ(container->shownErrors, std::vector<std::string>(2, kText512));

    const std::pair<Variant, const char*> stillAnInteger[] = {{Variant("12"), "Integer"},
                                                              {Variant(int32_t{3}), "Integer"}};
    for (const auto& [answer, type] : stillAnInteger) {
        answers["GET_CLASS_ATTRIBUTE_PROPERTY"] = answer;
        EXPECT_EQ(panel->GetVOSKClassAttributeProperty("A", "TAB_INDEX", type), answer);
    }
    answers["GET_CLASS_ATTRIBUTE_PROPERTY"] = Variant("abc");
    EXPECT_EQ(panel->GetVOSKClassAttributeProperty("A", "TAB_INDEX", "Integer"), Variant(int16_t{-1}));
    EXPECT_EQ(panel->GetVOSKClassAttributeProperty("A", "TITLES", "Array"),
              MakeStringArray({"Error", "in SDB"}, 1));
    answers["GET_CLASS_ATTRIBUTE_PROPERTY"] = Variant(int32_t{5003});
    EXPECT_EQ(panel->GetVOSKClassAttributeProperty("A", "VALUE", "String"), Variant("Error in SDB"));
    EXPECT_EQ(Commands().back(), R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ATTRIBUTE_PROPERTY","A","VALUE"))");
}

TEST_F(TagoutPanelTest, EventShootSendsOneCommandPerChangedNameAndForgetsThem) {
    DefineAttributes({{"PRIORITY", true}, {"TAG_TEXT", true}});
    panel->clsActiveTagouts->AddAttrValueColl(MakeStringArray({"", "1", "High", "Don't \"open\""}, 0));
    panel->clsActiveTagouts->SetSelectedTagout(1);
    for (const char* name : {"PRIORITY", "TAG_TEXT"}) panel->AddChangedAttrName(name);
    panel->EventShoot(true);
    for (const char* name : {"TAG_TEXT", "COMMENT", "PRIORITY"}) panel->AddChangedAttrName(name);
    panel->EventShoot(false);
    EXPECT_EQ(Commands(),
              (std::vector<std::string>{
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "RESET_PRIORITY" ,("ABC",10)))",
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "RESET_TAGTEXT" ,("ABC",10)))",
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "SET_TAGTEXT" ,("ABC",10),"Don't "open""))",
                  "", R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "SET_PRIORITY" ,("ABC",10)))"}));
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);
    panel->EventShoot(false);
    EXPECT_EQ(Commands().size(), 5u) << "nothing changed, nothing sent";
}

TEST_F(TagoutPanelTest, EditWritesOnlyChangedAttributesFromPositionTwoDoubledAndHiddenOnesWithTheClassValue) {
    DefineAttributes({{"OWNER", true},
                      {"TAG_TEXT", true},
                      {"ORIGIN", false},
                      {"SEQUENCE", false},
                      {"AM_LOCAL01", true},
                      {"AM_CONTROL_BLOCK", true}});
    clsTagout& model = *panel->clsActiveTagouts;
    model.AddAttrValueColl(MakeStringArray({"", "1", "operator1", "it's \"on\"", "mine", "9", "X", "-"}, 0));
    model.SetCollName(1, "ID7");
    for (const char* name : {"#", "AM_LOCAL01", "ORIGIN", "TAG_TEXT"}) panel->AddChangedAttrName(name);

    panel->EditTagoutInSDB(1);
    const std::string edit = R"(#return do(OVGR_TAGOUT:C, "EDIT_TAGOUT_ATTRIBUTE_VALUE", ("ABC",10),"ID7",)";
    EXPECT_EQ(Commands(),
              (std::vector<std::string>{
                  edit + R"("TAG_TEXT","it''s ""on"""))",
                  R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ATTRIBUTE_PROPERTY","ORIGIN","VALUE"))",
                  edit + R"("ORIGIN","DEMO"))",
                  R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ATTRIBUTE_PROPERTY","SEQUENCE","VALUE"))",
                  edit + R"("AM_LOCAL01","X"))",
                  R"(#return do(OVGR_TAGOUT_AM:C, "LOCAL_BLOCK", ("ABC",10),"X","01","ID7"))"}));
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 4) << "the events still need the names";
}

TEST_F(TagoutPanelTest, RemovalTakesBackEveryActionMethodThenRemovesAndDeletesWhateverTheServerAnswers) {
    DefineAttributes({{"OWNER", true}, {"AM_LOCAL_A", true}, {"AM_LOCAL123", true}});
    answers["LOCAL_BLOCK"] = Variant(int32_t{5010});
    answers["REMOVE_TAGOUT"] = Variant(int32_t{5004});
    answers["DELETE_TAGOUT"] = Variant(int32_t{5004});
    panel->userName = "operator1";
    panel->clsActiveTagouts->AddEmptyAttrValueColl();
    panel->clsActiveTagouts->SetCollName(1, "ID7");
    panel->clsActiveTagouts->SetSelectedTagoutName(1);
    panel->AddEmptyTagoutToSDB();
    panel->RemoveTagoutFromSDB();
    EXPECT_EQ(Commands(),
              (std::vector<std::string>{
                  R"(#return do(OVGR_TAGOUT:C, "ADD_EMPTY_TAGOUT", ("ABC",10),"ID7","operator1"))",
                  R"(#return do(OVGR_TAGOUT_AM:C, "LOCAL_BLOCK", ("ABC",10),"-","_A","ID7"))",
                  R"(#return do(OVGR_TAGOUT_AM:C, "LOCAL123", ("ABC",10),"-","","ID7"))",
                  R"(#return do(OVGR_TAGOUT:C, "REMOVE_TAGOUT", ("ABC",10),"ID7"))",
                  R"(#return do(OVGR_TAGOUT:C, "DELETE_TAGOUT", ("ABC",10),"ID7"))"}));
    EXPECT_EQ(panel->lastResult, Variant(int32_t{5004}));
    EXPECT_TRUE(container->shownErrors.empty());
}

TEST_F(TagoutPanelTest, NewKeyIsTheServersWhenItIsTextElseMadeFromTheClockWithoutSeparators) {
    clock->now = MakeDate(2026, 11, 22, 9, 30, 15);
    answers["GET_TAGOUT_ID"] = Variant("ID2211202609301510");
    EXPECT_EQ(panel->CreateUniqueKeyName(), "ID2211202609301510");
    answers["GET_TAGOUT_ID"] = Variant(int32_t{5007});
    const std::string local = panel->CreateUniqueKeyName();
    std::smatch match;
    ASSERT_TRUE(std::regex_match(local, match, std::regex("ID20261122093015([0-9]+)"))) << local;
    EXPECT_TRUE(std::stoi(match[1]) >= 1 && std::stoi(match[1]) <= 1000) << local;
    EXPECT_TRUE(container->shownErrors.empty());
}

}  // namespace
}  // namespace trovane::testing
