// The operator place panel on a fake container: where its frames go, what its options show and
// allow, and what the operator's choices ask of the host.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "operatorplace/operator_place.h"
#include "support/fake_container.h"
#include "support/recording_host_actions.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

class OperatorPlaceTest : public ::testing::Test {
  protected:
    void SetUp() override {
        AnswerHostActions(*container, actions);
        panel->SetParent(container->AsVariant());
    }

    // A 1-based vector of value lists, one per state; an empty state makes a list without "STATE".
    Variant ControlValues(const std::vector<std::string>& states) {
        std::vector<Variant> elements{Variant()};
        for (const std::string& state : states) {
            Variant list = container->Common().EmptyList();
            container->Common().AddListAttribute(list, state.empty() ? "OTHER" : "STATE", Variant(state));
            elements.push_back(list);
        }
        return MakeVariantArray(std::move(elements));
    }
    const std::vector<std::string>& Requests() const { return actions->requests; }
    bool LocationOptionsEnabled() const { return panel->Opt_Station.Enabled() && panel->Opt_NCC.Enabled(); }
    bool LocationOptionsDisabled() const {
        return !panel->Opt_Station.Enabled() && !panel->Opt_NCC.Enabled();
    }

    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<RecordingHostActions> actions = std::make_shared<RecordingHostActions>();
    std::shared_ptr<OperatorPlace> panel = std::make_shared<OperatorPlace>();
};

TEST_F(OperatorPlaceTest, InitUiPlacesTheFramesInEveryCase) {
    struct Case {
        const char* name;
        bool multiLevel, device, station, custom;
        int valueCount;
        int deviceTop;  // -1: hidden
        int customTop, customHeight;
        int systemTop;
    };
    const Case cases[] = {
        {"device and system", false, true, true, false, 0, 0, -1, 0, 1080},
        {"multi-level, device and system", true, true, true, false, 0, 320, -1, 0, 1400},
        {"system alone", false, false, true, false, 0, -1, -1, 0, 0},
        {"multi-level and system", true, false, true, false, 0, -1, -1, 0, 320},
        {"multi-level and controllable custom", true, false, true, true, 2, -1, 320, 1335, 1760},
        {"multi-level and display-only custom", true, true, true, true, 0, -1, 320, 975, 1400},
        {"device with controllable custom", false, true, true, true, 2, -1, 0, 1335, 1440},
        {"device with display-only custom", false, true, true, true, 0, -1, 0, 975, 1080},
        {"custom over system, overlapping", false, false, true, true, 1, -1, 0, 1335, 0},
        {"no system", true, true, false, false, 0, 320, -1, 0, -1},
    };
    for (const Case& c : cases) {
        auto place = std::make_shared<OperatorPlace>();
        place->SetParent(container->AsVariant());
        place->MltLevPresent = c.multiLevel;
        place->DevLocPresent = c.device;
        place->DevLocStaPresent = c.station;
        place->CustomLRIndication = c.custom;
        place->CustomLRControlValues =
            ControlValues(std::vector<std::string>(static_cast<size_t>(c.valueCount), "X"));
        place->Init();
        EXPECT_EQ(place->Chk_MltLev.Visible(), c.multiLevel) << c.name;
        EXPECT_EQ(place->Chk_MltLev.Enabled(), !c.multiLevel) << c.name;
        EXPECT_EQ(place->Frm_Dev.Visible() ? place->Frm_Dev.Top() : -1, c.deviceTop) << c.name;
        EXPECT_EQ(place->Frm_CustomLR.Visible() ? place->Frm_CustomLR.Top() : -1, c.customTop) << c.name;
        if (c.custom) {
            EXPECT_EQ(place->Frm_CustomLR.Height(), c.customHeight) << c.name;
        }
        EXPECT_EQ(place->Frm_System.Visible() ? place->Frm_System.Top() : -1, c.systemTop) << c.name;
        EXPECT_EQ(place->CustomLRControllable, c.custom && c.valueCount > 0) << c.name;
        if (c.custom && c.valueCount == 0) {
            EXPECT_FALSE(place->cmb_Control_Values.Visible() || place->cmd_Set.Visible()) << c.name;
        }
    }
}

TEST_F(OperatorPlaceTest, StationAndNccAreEnabledOnlyForARemoteDeviceAndAnAuthorisedUser) {
    struct Case {
        const char* name;
        int16_t device;
        bool authorized;
        bool enabled;
        const char* shown;  // the device option selected
    };
    const Case cases[] = {
        {"remote", 0, true, true, "Opt_Remote"},
        {"local", 1, true, false, "Opt_Local"},
        {"unknown", -1, true, false, "Opt_Ext1"},
        {"remote, unauthorised", 0, false, false, "Opt_Remote"},
        {"other value: shown remote, not movable", 2, true, false, "Opt_Remote"},
    };
    for (const Case& c : cases) {
        auto place = std::make_shared<OperatorPlace>();
        place->SetParent(container->AsVariant());
        place->DevLocPresent = place->DevLocStaPresent = true;
        place->DevLocValue = c.device;
        place->Authorized = c.authorized;
        place->DevLocStaValue = 1;
        place->Init();
        EXPECT_EQ(place->Opt_Station.Enabled(), c.enabled) << c.name;
        EXPECT_EQ(place->Opt_NCC.Enabled(), c.enabled) << c.name;
        EXPECT_TRUE(place->Get<OptionButton>(c.shown).Value()) << c.name;
        EXPECT_TRUE(place->Opt_Station.Value()) << c.name;
    }
    auto place = std::make_shared<OperatorPlace>();
    place->SetParent(container->AsVariant());
    place->DevLocStaPresent = true;
    place->DevLocStaValue = 7;
    place->Init();
    EXPECT_TRUE(place->Opt_NCC.Value());
}

TEST_F(OperatorPlaceTest, TheCustomIndicationDecidesTheOptionsAndTheComboForAnAuthorisedUser) {
    panel->DevLocStaPresent = panel->CustomLRIndication = true;
    panel->CustomLRControlValues = ControlValues({"Local", "Remote"});
    panel->CustomLRValue = "Remote";
    panel->DevLocValue = 1;  // the custom indication overrides the device's own rule
    panel->Authorized = true;
    panel->CustomLRAllowsControl = true;
    panel->Init();
    EXPECT_TRUE(LocationOptionsEnabled());
    EXPECT_TRUE(panel->cmb_Control_Values.Enabled());
    EXPECT_EQ(panel->txt_LRValue.Text(), "Remote");

    panel->CustomLRAllowsControl = false;
    panel->CustomLRValue = "Local";
    panel->Update_UI();
    EXPECT_TRUE(LocationOptionsDisabled());
    EXPECT_FALSE(panel->cmb_Control_Values.Enabled());
    EXPECT_EQ(panel->txt_LRValue.Text(), "Local");

    panel->Authorized = false;
    panel->CustomLRAllowsControl = true;
    panel->DevLocValue = 0;
    panel->Update_UI();
    EXPECT_TRUE(LocationOptionsDisabled());
    EXPECT_FALSE(panel->cmb_Control_Values.Enabled());
}

TEST_F(OperatorPlaceTest, ControlValuesFillTheComboAfterAnEmptyEntryWhichKeepsSetDisabled) {
    panel->CustomLRIndication = panel->Authorized = panel->CustomLRAllowsControl = true;
    panel->CustomLRControlValues = ControlValues({"Local", "", "Remote"});
    TraceCapture trace;
    panel->Init();
    EXPECT_EQ(panel->cmb_Control_Values.Items(), (std::vector<std::string>{"", "Local", "N/A", "Remote"}));
    EXPECT_EQ(panel->cmb_Control_Values.ListIndex(), 0);
    EXPECT_FALSE(panel->cmd_Set.Enabled());
    EXPECT_EQ(trace.Lines().front(), "-> OperatorPlace.Init");
    EXPECT_EQ(trace.Lines().back(), "<- OperatorPlace.Init");
    EXPECT_EQ(panel->Frm_CustomLR.Caption(), "Bay L/R position");

    panel->cmb_Control_Values.SetListIndex(3);
    EXPECT_TRUE(panel->cmd_Set.Enabled());
    panel->cmb_Control_Values.SetListIndex(0);
    EXPECT_FALSE(panel->cmd_Set.Enabled());
    panel->cmb_Control_Values.SetListIndex(3);
    panel->cmd_Set.Click();
    EXPECT_EQ(panel->CustomLRSetToValue, "Remote");
    EXPECT_EQ(Requests(), std::vector<std::string>{"Execute"});

    auto unauthorised = std::make_shared<OperatorPlace>();  // values shown, nothing usable
    unauthorised->SetParent(container->AsVariant());
    unauthorised->CustomLRIndication = unauthorised->CustomLRAllowsControl = true;
    unauthorised->CustomLRControlValues = ControlValues({"Remote"});
    unauthorised->Init();
    EXPECT_TRUE(unauthorised->cmb_Control_Values.Visible());
    EXPECT_FALSE(unauthorised->cmb_Control_Values.Enabled() || unauthorised->cmd_Set.Enabled());
}

TEST_F(OperatorPlaceTest, AKeyboardSelectionSendsNothingUntilTheMouseActsAndTheOptionsWaitForUpdateUi) {
    panel->DevLocPresent = panel->DevLocStaPresent = panel->Authorized = true;
    panel->DevLocStaValue = 1;
    panel->Init();
    panel->Opt_NCC.Click();
    EXPECT_TRUE(panel->Opt_NCC.Value());
    EXPECT_TRUE(Requests().empty());
    EXPECT_TRUE(panel->optionClicked);

    panel->Opt_NCC.ClickWithMouse(1, 0, 10, 10);
    EXPECT_EQ(Requests(), std::vector<std::string>{"NCC_Select"});
    EXPECT_TRUE(LocationOptionsDisabled());
    EXPECT_FALSE(panel->optionClicked);
    panel->Opt_Station.ClickWithMouse(1, 0, 10, 10);  // disabled: ignored
    EXPECT_EQ(Requests().size(), 1u);

    panel->DevLocStaValue = 0;  // the host learnt the server's new location
    panel->Update_UI();
    EXPECT_TRUE(LocationOptionsEnabled());
    panel->Opt_Station.ClickWithMouse(1, 0, 10, 10);
    EXPECT_EQ(Requests(), (std::vector<std::string>{"NCC_Select", "Station_Select"}));
}

}  // namespace
}  // namespace trovane::testing
