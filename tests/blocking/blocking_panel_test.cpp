#include <algorithm>
#include "blocking_fixture.h"

namespace trovane::testing {
namespace {

TEST_F(BlockingPanelTest, InitQualifiesThenReadsAndShowsTheServerState) {
    blockingState = States(0, 1, 0, 2, 0, 1);
    TraceCapture trace;
    panel->Init();

    EXPECT_EQ(Commands(),
              (std::vector<std::string>{
                  R"(#return do(BGU_BLOCK:C, "GET_ENABLED_BLOCKINGS", ("ABC",10)))",
                  R"(#return do(BGU_BLOCK:C, "GET_BLOCKING_STATE", ("ABC",10), Vector(), "APPLY_TO_ALL"))"}));
    EXPECT_EQ(panel->Control(), 1);
    EXPECT_EQ(panel->History(), 2);
    EXPECT_EQ(Check(6).Value(), 1);
    EXPECT_FALSE(panel->isRefreshing);
    EXPECT_TRUE(IsClean());
    EXPECT_EQ(panel->btnOK.Caption(), "Apply");
    EXPECT_EQ(Check(4).Caption(), "Event");
    EXPECT_EQ(trace.Lines().front(), "-> Blocking.Init");
    EXPECT_EQ(trace.Lines().back(), "<- Blocking.Init");
}

TEST_F(BlockingPanelTest, RefreshTracesEveryKindWithItsOwnWord) {
    TraceCapture trace;
    panel->RefreshStates();
    std::vector<std::string> expected{"-> Blocking.RefreshStates"};
    for (const char* step : {"Getting blockings", "Setting update", "Setting Control", "Setting Alarm",
                             "Setting History", "Setting Printout", "Setting Reprocessing"})
        for (const char* end : {"...", " done."})
            expected.push_back(std::string("   Blocking.RefreshStates: ") + step + end);
    expected.push_back("<- Blocking.RefreshStates");
    std::vector<std::string> panelLines;
    for (const std::string& line : trace.Lines())
        if (line.find("Blocking.") != std::string::npos) panelLines.push_back(line);
    EXPECT_EQ(panelLines, expected);
}

TEST_F(BlockingPanelTest, ServerDisabledKeywordDisablesOnlyThatKindAndMissingRightsEveryKindAndTheOption) {
    enabledBlockings = MakeVariantArray({Variant(Currency{0}), "ALARM", "DISABLED", "EVENT", "disabled"});
    panel->Init();
    for (int16_t position = 1; position <= 6; ++position)
        EXPECT_EQ(Check(position).Enabled(), position != 3) << "Check" << position;
    EXPECT_TRUE(panel->chkBlockSelectedSignal.Enabled());
    container->SetRight("IsBlockingHandlingAllowed", false);
    panel->chkBlockSelectedSignal.SetValue(1);  // runs Init through the option's click
    for (int16_t position = 1; position <= 6; ++position) EXPECT_FALSE(Check(position).Enabled());
    EXPECT_FALSE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_FALSE(panel->lblBlockSelectedSignal.Enabled());
    panel->RefreshStates();
    EXPECT_NE(LastCommand().find("\"APPLY_TO_ALL\")"), std::string::npos);
}

TEST_F(BlockingPanelTest, OperatorClickEntersEditedStateAndOkWritesAllSixValuesReleasesTheAlarmsAndIsClean) {
    auto alarms = std::make_shared<DispatchObject>("Alarms");
    Variant disableUpdate = true;
    alarms->Property(
        "DisableUpdate", [&] { return disableUpdate; }, [&](const Variant& v) { disableUpdate = v; });
    container->Value("Alarms1", Variant(ObjectRef(alarms)));
    panel->Init();
    const size_t sentBefore = Commands().size();
    Check(2).Click();
    EXPECT_TRUE(panel->btnOK.Enabled() && panel->btnCancel.Enabled() && !panel->btnRefresh.Enabled());
    EXPECT_TRUE(panel->kindChanged[1]);
    EXPECT_FALSE(panel->kindChanged[0]);
    panel->btnOK.Click();

    ASSERT_EQ(Commands().size(), sentBefore + 1);
    EXPECT_EQ(LastCommand(),
              R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("ABC",10), (0,1,0,0,0,0), "APPLY_TO_ALL"))");
    EXPECT_TRUE(IsClean());
    EXPECT_EQ(panel->Control(), 1);
    EXPECT_TRUE(std::none_of(panel->kindChanged.begin(), panel->kindChanged.end(), [](bool b) { return b; }));
    EXPECT_EQ(disableUpdate, Variant(false));
}

TEST_F(BlockingPanelTest, CancelRestoresStoredValuesSendsNothingAndClearsAFailedRefresh) {
    blockingState = States(1, 0, 0, 0, 0, 0);
    panel->Init();
    const size_t sentBefore = Commands().size();
    Check(1).Click();
    Check(3).Click();
    ASSERT_EQ(Check(1).Value(), 0);
    panel->btnCancel.Click();

    EXPECT_EQ(Check(1).Value(), 1);
    EXPECT_EQ(Check(3).Value(), 0);
    EXPECT_EQ(Commands().size(), sentBefore);
    EXPECT_TRUE(IsClean());
    EXPECT_FALSE(panel->isRefreshing);
    EXPECT_TRUE(panel->kindChanged[0]);  // left as it was
    Check(1).Click();                    // Cancel also clears a failed refresh
    blockingState = Variant();
    panel->RefreshStates();
    ASSERT_TRUE(panel->isRefreshing);
    panel->btnCancel.Click();
    EXPECT_FALSE(panel->isRefreshing);
    Check(2).Click();
    EXPECT_TRUE(panel->btnOK.Enabled());
}

TEST_F(BlockingPanelTest, ShortReadKeepsValuesAndLeavesRefreshingSet) {
    blockingState = States(0, 1, 0, 0, 0, 0);
    panel->Init();
    blockingState = MakeVariantArray({1, 1, 1, 1, 1}, 1);
    TraceCapture trace;
    panel->RefreshStates();

    EXPECT_EQ(trace.Lines().back(), "<- Blocking.RefreshStates ERROR OCCURRED!!!");
    EXPECT_TRUE(panel->isRefreshing);
    EXPECT_EQ(Check(2).Value(), 1);
    EXPECT_EQ(Check(1).Value(), 0);
    Check(1).Click();
    EXPECT_TRUE(IsClean());  // clicks are not edits until a refresh succeeds
}

TEST_F(BlockingPanelTest, EmptyOrMalformedReadIsAnErrorExit) {
    for (Variant answer : {Variant(), Variant("x"), MakeVariantArray({0, 0, 0, 0, 0, "high"}, 1),
                           MakeVariantArray({0, 0, 0, 0, 0, 7}, 1)}) {
        blockingState = answer;
        TraceCapture trace;
        panel->RefreshStates();
        EXPECT_EQ(trace.Lines().back(), "<- Blocking.RefreshStates ERROR OCCURRED!!!") << TypeName(answer);
    }
    // The value is stored before the check box refuses it (380), so the property says 7 while the
    // box still shows what it showed.
    EXPECT_EQ(panel->Reprocessing(), 7);
    EXPECT_EQ(Check(6).Value(), 0);
}

TEST_F(BlockingPanelTest, MembersAnswerByName) {
    const Variant self{ObjectRef(panel)};
    PutProperty(self, "logicalName", "XYZ");
    PutProperty(self, "baseIndex", -1);
    PutProperty(self, "reprocessing", int16_t{1});
    EXPECT_EQ(Check(6).Value(), 1);
    EXPECT_EQ(GetProperty(self, "Reprocessing"), Variant(int16_t{1}));
    CallMethod(self, "SetBlocking", {int16_t{1}, int16_t{0}, int16_t{0}, int16_t{0}, int16_t{0}, int16_t{1}});
    EXPECT_EQ(LastCommand(),
              R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("XYZ",-1), (1,0,0,0,0,1), "APPLY_TO_ALL"))");
    EXPECT_EQ(GetProperty(GetProperty(self, "btnOK"), "Tag"), Variant("119"));
}

TEST_F(BlockingPanelTest,
       TheOptionSelectsTheSignalAndDisablingItRemembersACheckButAnUncheckedOneOnlyChangesEnabled) {
    panel->Init();
    panel->chkBlockSelectedSignal.Click();
    EXPECT_EQ(LastCommand(),
              R"(#return do(BGU_BLOCK:C, "GET_BLOCKING_STATE", ("ABC",10), Vector(), "APPLY_TO_SELECTED"))");
    Check(5).Click();
    panel->btnOK.Click();
    EXPECT_EQ(
        LastCommand(),
        R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("ABC",10), (0,0,0,0,1,0), "APPLY_TO_SELECTED"))");
    panel->SetSingleBlocking(false);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Value(), 0);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Tag(), "WAS_CHECKED");
    EXPECT_FALSE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_NE(LastCommand().find("\"APPLY_TO_ALL\")"), std::string::npos);

    panel->SetSingleBlocking(true);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Value(), 1);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Tag(), "");
    EXPECT_TRUE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_NE(LastCommand().find("\"APPLY_TO_SELECTED\")"), std::string::npos);

    auto fresh = std::make_shared<Blocking>();  // unchecked: no reads, nothing remembered
    fresh->SetParent(container->AsVariant());
    const size_t sent = Commands().size();
    fresh->SetSingleBlocking(false);
    EXPECT_FALSE(fresh->chkBlockSelectedSignal.Enabled());
    EXPECT_FALSE(fresh->lblBlockSelectedSignal.Enabled());
    fresh->SetSingleBlocking(true);
    EXPECT_TRUE(fresh->chkBlockSelectedSignal.Enabled());
    EXPECT_EQ(fresh->chkBlockSelectedSignal.Value(), 0);
    EXPECT_EQ(fresh->chkBlockSelectedSignal.Tag(), "");
    EXPECT_EQ(Commands().size(), sent);
}

}  // namespace
}  // namespace trovane::testing
