// The tagout panel's server calls against scripted answers: the result check and its error texts,
// the reads with their fall-backs, and the writes byte for byte.

#include <gtest/gtest.h>

#include <regex>

#include "core/conversions.h"
#include "support/error_number.h"
#include "tagout_fixture.h"

namespace trovane::testing {
namespace {

const std::string kNoClassText = "Tagout Function not initialized. Tagout Class data base does not exist!";
const std::string kUnknownCodeText = "This error code is unknown. Consult the Ovo-D supportline!";
const std::string kErrorMessage5004 = R"(#return do(OVGR_TAGOUT:C, "MISC_FUNCTIONS","GET_ERRORMSG", "5004"))";

TEST_F(TagoutPanelTest, ResultCheckShowsText512ForCode5007ElseTheServersMessageOr513) {
    struct Case {
        const char* what;
        Variant result;
        const char* expectedType;
        Variant message;  // the GET_ERRORMSG answer
        bool passes;
        std::string text;  // shown, "" for none
        bool asksServer;   // GET_ERRORMSG sent
    };
    const Case cases[] = {
        {"right type", MakeStringArray({"A"}, 1), "String()", Variant(), true, "", false},
        {"Empty", Variant(), "Empty", Variant(), false, kUnknownCodeText, false},
        {"wrong-typed Long 5007", Variant(int32_t{5007}), "String()", Variant("x"), false, kNoClassText,
         false},
        {"Integer 5007", Variant(int16_t{5007}), "String()", Variant("x"), false, kUnknownCodeText, false},
        {"Long code", Variant(int32_t{5004}), "Variant()", Variant("No such tagout"), false, "No such tagout",
         true},
        {"code without message", Variant(int32_t{5004}), "Long()", Variant(int32_t{1}), false,
         kUnknownCodeText, true},
    };
    for (const Case& c : cases) {
        container->shownErrors.clear();
        answers["GET_ERRORMSG"] = c.message;
        const size_t sent = Commands().size();
        EXPECT_EQ(panel->CheckTagoutResult(c.result, c.expectedType, true), c.passes) << c.what;
        EXPECT_EQ(container->shownErrors,
                  c.text.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.text})
            << c.what;
        EXPECT_EQ(CommandsSince(sent),
                  c.asksServer ? std::vector<std::string>{kErrorMessage5004} : std::vector<std::string>{})
            << c.what;
    }
    container->shownErrors.clear();
    EXPECT_FALSE(panel->CheckTagoutResult(Variant(int32_t{5004}), "String", false));
    EXPECT_TRUE(container->shownErrors.empty());
    EXPECT_EQ(Commands().back(), kErrorMessage5004) << "the message is built even when not shown";
}

TEST_F(TagoutPanelTest, CountBelow100IsACountFrom100AnErrorCodeAndEmptyAFailedCheck) {
    answers["GET_ERRORMSG"] = Variant("The object carries the largest number of tagouts");
    struct Case {
        Variant answer;
        int32_t count;
        std::vector<std::string> shown;
    };
    const Case cases[] = {
        {Variant(int32_t{99}), 99, {}},
        {Variant(int32_t{100}), 0, {"The object carries the largest number of tagouts"}},
        {Variant(), 0, {kUnknownCodeText}},
        {Variant("3"), 0, {kUnknownCodeText}},
    };
    for (const Case& c : cases) {
        container->shownErrors.clear();
        answers["GET_NACTIVE_TAGOUTS"] = c.answer;
        EXPECT_EQ(panel->CountActiveTagouts(), c.count) << ToString(c.answer);
        EXPECT_EQ(container->shownErrors, c.shown) << ToString(c.answer);
    }
    std::vector<std::string> lookups;
    for (const std::string& command : Commands())
        if (command.find("GET_ERRORMSG") != std::string::npos) lookups.push_back(command);
    EXPECT_EQ(lookups, std::vector<std::string>{
                           R"(#return do(OVGR_TAGOUT:C, "MISC_FUNCTIONS","GET_ERRORMSG", "100"))"});
}

TEST_F(TagoutPanelTest, ReadsFallBackQuietlyOrWithADialogAsEachRequestSays) {
    answers["GET_TAGOUT_NAMES"] = Variant(int32_t{5007});
    const Variant names = panel->GetTagoutNames();
    EXPECT_EQ(names, MakeStringArray({""}, 1));
    EXPECT_EQ(container->shownErrors, std::vector<std::string>{kNoClassText});

    answers["READ_TAGOUT_ATTRIBUTE_VALUE"] = Variant(int32_t{5004});
    answers["GET_ERRORMSG"] = Variant("The tagout does not exist");
    EXPECT_EQ(panel->ReadTagoutAttributeValue("ID1", "OWNER"), Variant("The tagout does not exist"));
    EXPECT_EQ(Commands().back(), kErrorMessage5004);
    answers["READ_TAGOUT_ATTRIBUTE_VALUE"] = Variant(int16_t{7});
    EXPECT_EQ(panel->ReadTagoutAttributeValue("ID1", "OWNER"), Variant(int16_t{7}));

    answers["GET_CLASS"] = MakeVariantArray({Variant("NAME"), Variant("DEMO")});
    panel->QueryTagoutClass();
    EXPECT_TRUE(panel->classExists);
    answers["GET_CLASS"] = Variant(int32_t{5007});
    panel->QueryTagoutClass();
    EXPECT_FALSE(panel->classExists);
    EXPECT_EQ(container->shownErrors.size(), 2u);

    answers["GET_CLASS_ACTIONMETHODS"] = Variant(int32_t{5008});
    EXPECT_FALSE(panel->bClassHasActionMethods());
    answers["GET_CLASS_ACTIONMETHODS"] = MakeStringArray({"LOCAL_BLOCK"}, 1);
    EXPECT_TRUE(panel->bClassHasActionMethods());
    answers["GET_CLASS_ATTRIBUTES"] = MakeLongArray({1, 0}, 1);
    EXPECT_EQ(panel->GetVoskClassAttributes("VISIBLE", "Long()"), MakeLongArray({1, 0}, 1));
    EXPECT_TRUE(panel->GetVoskClassAttributes("VISIBLE", "String()").IsNothing());
    EXPECT_EQ(container->shownErrors.size(), 2u) << "class attribute queries show nothing";

    answers["GET_DATE"] = Variant("2026-11-22");
    answers["GET_TIME"] = MakeStringArray({"09:30"});
    EXPECT_EQ(panel->GetVOSKDate(), "2026-11-22");
    EXPECT_EQ(panel->GetVOSKTime(), "");
    answers["GET_CLASS_ATTRIBUTE_POSTPROCESSING"] = Variant(int32_t{5003});
    EXPECT_EQ(panel->GetVOSKClassAttributePostProcessing("COMMENT"), Variant(int32_t{5003}));
    answers["NOTIFY_TIME"] = Variant(int32_t{0});
    panel->NotifyVOSKTime("09:30");
    EXPECT_EQ(panel->lastResult, Variant(int32_t{0}));
    EXPECT_TRUE(panel->GetBlockingEnabled("AM_LOCAL01"));
}

TEST_F(TagoutPanelTest, AttributePropertyOfAnotherTypeIsReplacedByTheExpectedTypesStandIn) {
    struct Case {
        Variant answer;
        const char* expectedType;
        Variant result;
    };
    const Case cases[] = {
        {Variant("abc"), "Integer", Variant(int16_t{-1})},
        {Variant("12"), "Integer", Variant("12")},
        {Variant(int32_t{3}), "Integer", Variant(int32_t{3})},
        {Variant(int16_t{3}), "Integer", Variant(int16_t{3})},
        {MakeStringArray({"1"}), "Integer", Variant(int16_t{-1})},
        {Variant(int32_t{5003}), "String", Variant("Error in SDB")},
        {Variant(""), "String", Variant("")},
        {Variant(), "String", Variant("Error in SDB")},
        {MakeStringArray({"A"}, 1), "Array", MakeStringArray({"Error", "in SDB"}, 1)},
        {Variant(int32_t{5002}), "String()", Variant(int32_t{5002})},
    };
    for (const Case& c : cases) {
        answers["GET_CLASS_ATTRIBUTE_PROPERTY"] = c.answer;
        const Variant result = panel->GetVOSKClassAttributeProperty("TAB_INDEX", "X", c.expectedType);
        EXPECT_EQ(result, c.result) << TypeName(c.answer) << " as " << c.expectedType;
    }
    EXPECT_EQ(Commands().back(),
              R"(#return do(OVGR_TAGOUT:C, "GET_CLASS_ATTRIBUTE_PROPERTY","TAB_INDEX","X"))");
    EXPECT_TRUE(container->shownErrors.empty());
}

TEST_F(TagoutPanelTest, EventShootSendsOneCommandPerChangedNameAndForgetsThem) {
    DefineAttributes({{"PRIORITY", true}, {"TAG_TEXT", true}, {"TAG_REPR", true}});
    panel->clsActiveTagouts->AddAttrValueColl(
        MakeStringArray({"", "1", "High", "Don't \"open\"", "Hold"}, 0));
    panel->clsActiveTagouts->SetSelectedTagout(1);
    panel->EventShoot(true);
    EXPECT_TRUE(Commands().empty()) << "nothing changed, nothing sent";

    for (const char* name : {"PRIORITY", "TAG_TEXT", "PRIORITY"}) panel->AddChangedAttrName(name);
    panel->EventShoot(true);
    EXPECT_EQ(Commands(),
              (std::vector<std::string>{
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "RESET_PRIORITY" ,("ABC",10)))",
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "RESET_TAGTEXT" ,("ABC",10)))"}));
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);

    for (const char* name : {"TAG_TEXT", "COMMENT", "PRIORITY", "TAG_REPR"}) panel->AddChangedAttrName(name);
    const size_t sent = Commands().size();
    panel->EventShoot(false);
    EXPECT_EQ(CommandsSince(sent),
              (std::vector<std::string>{
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "SET_TAGTEXT" ,("ABC",10),"Don't "open""))",
                  "", R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "SET_PRIORITY" ,("ABC",10)))",
                  R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "SET_TAGTEXT" ,("ABC",10),"Hold"))"}));
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);

    panel->clsActiveTagouts->SetSelectedTagout(0);
    panel->AddChangedAttrName("TAG_TEXT");
    EXPECT_EQ(ErrorNumberOf([&] { panel->EventShoot(false); }), 9) << "no tagout is selected";
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
    answers["GET_CLASS_ATTRIBUTE_PROPERTY"] = Variant("DEMO");
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
    DefineAttributes(
        {{"OWNER", true}, {"AM_LOCAL_A", true}, {"AM_LOCAL123", true}, {"AM_CONTROL_BLOCK", false}});
    answers["LOCAL_BLOCK"] = Variant(int32_t{5010});
    answers["REMOVE_TAGOUT"] = Variant(int32_t{5004});
    panel->clsActiveTagouts->AddEmptyAttrValueColl();
    panel->clsActiveTagouts->SetCollName(1, "ID7");
    panel->clsActiveTagouts->SetSelectedTagoutName(1);

    panel->RemoveTagoutFromSDB();
    const std::string ref = R"(("ABC",10))";
    EXPECT_EQ(Commands(), (std::vector<std::string>{
                              R"(#return do(OVGR_TAGOUT_AM:C, "LOCAL_BLOCK", )" + ref + R"(,"-","_A","ID7"))",
                              R"(#return do(OVGR_TAGOUT_AM:C, "LOCAL123", )" + ref + R"(,"-","","ID7"))",
                              R"(#return do(OVGR_TAGOUT_AM:C, "CONTROL_BLOCK", )" + ref + R"(,"-","","ID7"))",
                              R"(#return do(OVGR_TAGOUT:C, "REMOVE_TAGOUT", )" + ref + R"(,"ID7"))",
                              R"(#return do(OVGR_TAGOUT:C, "DELETE_TAGOUT", )" + ref + R"(,"ID7"))"}));
    EXPECT_TRUE(container->shownErrors.empty());

    panel->AddEmptyTagoutToSDB();
    EXPECT_EQ(Commands().back(),
              R"(#return do(OVGR_TAGOUT:C, "ADD_EMPTY_TAGOUT", ("ABC",10),"ID7","operator1"))");
}

TEST_F(TagoutPanelTest, NewKeyIsTheServersWhenItIsTextElseMadeFromTheClockWithoutSeparators) {
    clock->now = MakeDate(2026, 11, 22, 9, 30, 15);
    answers["GET_TAGOUT_ID"] = Variant("ID2211202609301510");
    EXPECT_EQ(panel->CreateUniqueKeyName(), "ID2211202609301510");
    EXPECT_EQ(Commands().back(), R"(#return do(OVGR_TAGOUT:C, "GET_TAGOUT_ID"))");
    answers["GET_TAGOUT_ID"] = Variant(int32_t{5007});
    const std::string local = panel->CreateUniqueKeyName();
    std::smatch match;
    ASSERT_TRUE(std::regex_match(local, match, std::regex("ID20261122093015([0-9]+)"))) << local;
    const int number = std::stoi(match[1]);
    EXPECT_TRUE(number >= 1 && number <= 1000) << number;
    EXPECT_TRUE(container->shownErrors.empty());
}

TEST_F(TagoutPanelTest, HostAndEditDialogReachTheOperationsAndTheModelByName) {
    const Variant tagout{ObjectRef(panel)};
    PutProperty(tagout, "logicalName", "DEF");
    PutProperty(tagout, "baseIndex", int32_t{3});
    EXPECT_EQ(CallMethod(tagout, "GetBlockingEnabled", {"anything"}), Variant(true));
    const Variant model = GetProperty(tagout, "clsActiveTagouts");
    CallMethod(model, "AddAttrName", {"#", int16_t{0}});
    CallMethod(model, "AddAttrName", {"PRIORITY", int16_t{0}});
    CallMethod(model, "AddAttrVisible", {"TRUE", int16_t{0}});
    CallMethod(model, "AddAttrVisible", {"TRUE", int16_t{0}});
    CallMethod(model, "AddEmptyAttrValueColl");
    CallMethod(model, "SetCollName", {int16_t{1}, "ID9"});
    CallMethod(tagout, "AddChangedAttrName", {"PRIORITY"});
    EXPECT_EQ(CallMethod(GetProperty(tagout, "colChangedAttrNames"), "Find", {"PRIORITY"}),
              Variant(int16_t{1}));
    CallMethod(tagout, "EditTagoutInSDB", {int16_t{1}});
    CallMethod(tagout, "EventShoot", {true});
    EXPECT_EQ(
        Commands(),
        (std::vector<std::string>{
            R"(#return do(OVGR_TAGOUT:C, "EDIT_TAGOUT_ATTRIBUTE_VALUE", ("DEF",3),"ID9","PRIORITY",""))",
            R"(#return do(OVGR_TAGOUT:C, "EVENT_FUNCTIONS", "RESET_PRIORITY" ,("DEF",3)))"}));
    EXPECT_EQ(CallMethod(tagout, "GetVOSKClassAttributeProperty", {"A", "B", "String"}),
              Variant("Error in SDB"));
    EXPECT_EQ(CallMethod(tagout, "bClassHasActionMethods"), Variant(false));
}

}  // namespace
}  // namespace trovane::testing
