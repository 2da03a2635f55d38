// The substitution panel on a fake container: loading, showing each kind of signal, the value entry
// and what Set sends.

#include "substitution_fixture.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

constexpr int32_t kBreakerRow = 1;
constexpr int32_t kTripRow = 2;
constexpr int32_t kCurrentRow = 3;

TEST_F(SubstitutePanelTest, InitAsksInTheContainersLanguageListsEverySignalAndASingleSignalAsksForItself) {
    container->Common().SetLanguage("de");
    TraceCapture trace;
    panel->Init();

    EXPECT_EQ(Commands(), std::vector<std::string>{
                              R"(#return do(BGU_CONTROL:C, ("ABC",10),"GET_SUBSTITUTION","de",False))"});
    EXPECT_EQ(panel->lastCommand, Commands().back());
    EXPECT_EQ(trace.Lines().front(), "-> Substitute.Init");
    EXPECT_EQ(trace.Lines().back(), "<- Substitute.Init");
    ListView& list = panel->ListView1;
    ASSERT_EQ(list.ColumnCount(), 3);
    EXPECT_EQ(list.Column(1).text + "|" + list.Column(2).text + "|" + list.Column(3).text,
              "|Object text|Substituted");
    ASSERT_EQ(list.ItemCount(), 4);
    EXPECT_EQ(list.Item(kBreakerRow).Text() + "=" + list.Item(kBreakerRow).SubItem(1), "Breaker Q0=False");
    EXPECT_EQ(list.Item(kTripRow).SubItem(1), "True");
    EXPECT_EQ(list.SelectedItem(), &list.Item(1));
    EXPECT_EQ(panel->Cmb_Quality.Items(), (std::vector<std::string>{"Good", "Questionable", "Bad"}));
    EXPECT_EQ(panel->Cmb_Quality.ListIndex(), 0);
    EXPECT_EQ(
        panel->frm_Substitute.Caption() + "/" + panel->Chk_Enabled.Caption() + "/" + panel->Btn_Set.Caption(),
        "Substitution/Enabled/Set");
    EXPECT_FALSE(panel->Btn_Set.Enabled() || panel->Btn_Cancel.Enabled());

    const int32_t fullHeight = list.Height();
    panel->singleSignal = true;
    panel->initUI();
    EXPECT_NE(LastCommand().find(R"("GET_SUBSTITUTION","de",True))"), std::string::npos) << LastCommand();
    EXPECT_EQ(list.ColumnCount(), 3);
    EXPECT_LT(list.Height(), fullHeight);
    EXPECT_GT(panel->frm_Substitute.Top(), list.Top() + list.Height());
}

TEST_F(SubstitutePanelTest, FailedOrMalformedAnswersNeverRaiseAndOnlyAFailureShowsItsMessage) {
    answer = ValueList({{"STATUS", int32_t{-1}}, {"MESSAGE", "Object unknown"}});
    ASSERT_NO_THROW(panel->Init());
    EXPECT_FALSE(panel->ListView1.Visible());
    EXPECT_TRUE(panel->txt_Message.Visible());
    EXPECT_EQ(panel->txt_Message.Text(), "Object unknown");
    EXPECT_EQ(panel->txt_Message.Top(), panel->ListView1.Top());

    answer = ValueList({{"SIGNALS", Vector({Breaker()})}});  // no STATUS is a failure too
    panel->initUI();
    EXPECT_EQ(panel->txt_Message.Text(), "N/A");
    EXPECT_EQ(panel->ListView1.ItemCount(), 0);
    answer = SignalsAnswer({Breaker()});  // a good answer brings the list back
    panel->initUI();
    EXPECT_TRUE(panel->ListView1.Visible() && !panel->txt_Message.Visible());

    for (const Variant& bad :
         {Variant(), Variant("failed"), MakeLongArray({1, 2}), SignalsAnswer({Variant(int32_t{5})}),
          ValueList({{"STATUS", 0}, {"SIGNALS", "none"}}), SignalsAnswer({Current("x", "y")})}) {
        answer = bad;
        EXPECT_NO_THROW(panel->initUI()) << TypeName(bad);
        EXPECT_FALSE(panel->txt_Message.Visible()) << TypeName(bad);
        EXPECT_NO_THROW(panel->Set());
    }
    EXPECT_EQ(SetCommands(), 0u);
}

// Binary two buttons, double binary four, analog the value box, untyped nothing; only the
// navigation keys of the list change what is shown, and without the right nothing is enabled.
TEST_F(SubstitutePanelTest, EachKindOfSignalShowsItsOwnEntryAsTheNavigationKeysMoveThroughTheList) {
    panel->Init();
    EXPECT_EQ(VisibleStates(), 4);
    EXPECT_TRUE(State(0).Value());
    EXPECT_EQ(State(2).Caption(), "Closed");
    EXPECT_EQ(panel->Chk_Enabled.Value(), 0);
    EXPECT_TRUE(panel->Chk_Enabled.Enabled());
    EXPECT_FALSE(State(0).Enabled()) << "substitution is off";
    EXPECT_FALSE(panel->txt_Value.Visible() || panel->lbl_Info.Visible());

    panel->ListView1.SetFocus();
    panel->ListView1.PressKey(keys::kDown);
    EXPECT_EQ(VisibleStates(), 2);
    EXPECT_EQ(State(0).Caption() + "/" + State(1).Caption(), "N/A/N/A");
    EXPECT_TRUE(panel->Opt_NA.Value()) << "no value selects no visible state";
    EXPECT_FALSE(State(0).Value() || State(1).Value());
    EXPECT_EQ(panel->Chk_Enabled.Value(), 1);
    EXPECT_TRUE(State(1).Enabled());
    EXPECT_FALSE(panel->Btn_Set.Enabled() || panel->isEditing) << "showing is no edit";

    panel->ListView1.PressKey(keys::kEnd);  // seen, but nothing to substitute
    EXPECT_EQ(VisibleStates(), 0);
    EXPECT_FALSE(panel->Chk_Enabled.Visible() || panel->Chk_Enabled.Enabled());
    panel->Set();
    EXPECT_EQ(SetCommands(), 0u);
    panel->ListView1.SelectItem(&panel->ListView1.Item(kCurrentRow));
    panel->ListView1.PressKey('A');
    EXPECT_FALSE(panel->txt_Value.Visible()) << "a letter key shows nothing";
    panel->ListView1.PressKey(keys::kPageUp);
    EXPECT_EQ(VisibleStates(), 4);

    container->SetRight("IsSubstitutionHandlingAllowed", false);
    panel->Init();
    for (int32_t row : {kBreakerRow, kTripRow, kCurrentRow}) {
        Select(row);
        EXPECT_FALSE(panel->Chk_Enabled.Enabled() || State(0).Enabled() || panel->txt_Value.Enabled()) << row;
    }
    panel->Set();
    EXPECT_EQ(SetCommands(), 0u);
}

TEST_F(SubstitutePanelTest, ChosenStateIsSentWithQualityZeroAndCancelReloadsBeforeSwitchingOff) {
    panel->Init();
    panel->Cmb_Quality.SetListIndex(2);
    panel->Chk_Enabled.Click();
    EXPECT_TRUE(panel->isEditing);
    EXPECT_TRUE(State(3).Enabled() && panel->Btn_Set.Enabled() && panel->Btn_Cancel.Enabled());
    State(3).Click();
    Select(kBreakerRow);  // re-shown while editing: the operator's entry stays
    EXPECT_TRUE(State(3).Value());
    EXPECT_EQ(panel->Chk_Enabled.Value(), 1);
    panel->Btn_Set.Click();
    EXPECT_EQ(LastCommand(),
              R"(#return do(BGU_CONTROL:C,("ABC",10),"SET_SUBSTITUTION",LIST(LOGICAL_DEVICE="E01",)"
              R"(LOGICAL_NODE="XCBR1",DATA_OBJECT="Pos",DATA_ATTRIBUTE="stVal",LN="ABC",IX=10,ENABLED=1,)"
              R"(VALUE=3,QUALITY=0)))");
    EXPECT_EQ(panel->lastCommand, LastCommand());
    EXPECT_FALSE(panel->isEditing);
    EXPECT_FALSE(panel->Btn_Set.Enabled() || panel->Btn_Cancel.Enabled() || panel->Chk_Enabled.Enabled() ||
                 State(3).Enabled());

    Select(kTripRow);
    panel->Chk_Enabled.Click();
    const size_t sent = Commands().size();
    panel->Btn_Cancel.Click();
    EXPECT_EQ(Commands().size(), sent + 1) << "Cancel reads again";
    EXPECT_FALSE(panel->isEditing || panel->Btn_Set.Enabled());
    Select(kTripRow);
    EXPECT_EQ(panel->Chk_Enabled.Value(), 1) << "the server's state again";
    panel->Chk_Enabled.Click();
    EXPECT_FALSE(State(1).Enabled()) << "no state to choose while switching off";
    panel->Btn_Set.Click();
    EXPECT_NE(LastCommand().find("LN=\"ABC\",IX=11,ENABLED=0,"), std::string::npos) << LastCommand();
}

TEST_F(SubstitutePanelTest, AnalogValueIsShownTypedAndPastedInTheLocalesFormAndEnterSendsThePointForm) {
    answer = SignalsAnswer({Current(-40.0, "1000.5")});
    MakePanel(",");
    panel->Init();
    TextBox& box = panel->txt_Value;
    EXPECT_EQ(VisibleStates(), 0);
    EXPECT_EQ(box.Text(), "312,5");
    EXPECT_FALSE(box.Enabled()) << "substitution is off";
    EXPECT_EQ(panel->lbl_Info.Caption(), " Min: -40, Max: 1000,5");
    EXPECT_EQ(panel->DecimalSeparator(), ",");

    panel->Chk_Enabled.Click();
    box.ClickWithMouse(keys::kLeftButton, 0, 10, 10);  // selects the whole text
    EXPECT_EQ(box.SelLength(), box.Length());
    Type("-");
    EXPECT_EQ(box.Text(), "-");
    EXPECT_EQ(panel->pendingValue, Variant("312,5")) << "a lone minus is no value yet";
    Type("1-2.x,5,");
    EXPECT_EQ(box.Text(), "-12,5")
        << "the inner minus, the point, the letter and a second comma never arrive";
    box.SetSelStart(0);
    box.SetSelLength(box.Length());
    box.EnterText("1.2.3");
    EXPECT_EQ(box.Text(), "-12,5") << "a pasted non-number goes back";
    box.SetSelStart(0);
    box.SetSelLength(box.Length());
    Type("12,5");
    box.PressKey(keys::kEnter);
    EXPECT_NE(LastCommand().find("IX=15,ENABLED=1,VALUE=12.5,QUALITY=0))"), std::string::npos)
        << LastCommand();
}

TEST_F(SubstitutePanelTest, AValueEqualToMaxIsSentAndOneJustAboveIsNotWhileALoneMinusKeepsThePreviousValue) {
    answer = SignalsAnswer({Current(0.0, 1000.0)});
    panel->Init();
    TextBox& box = panel->txt_Value;
    panel->Chk_Enabled.Click();
    box.SetText("1000.001");
    panel->Set();
    EXPECT_EQ(SetCommands(), 0u);
    EXPECT_TRUE(panel->isEditing && panel->Btn_Set.Enabled()) << "a refused value leaves the entry as it is";
    box.SetText("1000");
    box.SetText("-");
    EXPECT_EQ(panel->pendingValue, Variant("1000"));
    box.SetText("1000");
    panel->Set();
    EXPECT_EQ(SetCommands(), 1u);
    EXPECT_NE(LastCommand().find("VALUE=1000,"), std::string::npos);
}

}  // namespace
}  // namespace trovane::testing
