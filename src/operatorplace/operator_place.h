#pragma once
// OperatorPlace: where a process object may be operated from, and the operator's move of it.
//
// Up to three indications are shown: a multi-level indication (a check box), the device's
// local/remote location (frame Frm_Dev) and the station / network-control-centre location of the
// system (frame Frm_System). A custom local/remote indication with its own commandable values (frame
// Frm_CustomLR) can take the device frame's place. The panel holds no server logic: the host fills
// the properties before Init or Update_UI, and the panel hands the operator's choice back to its
// container by name: "Station_Select", "NCC_Select", or "Execute" after it has written the chosen
// value to CustomLRSetToValue. The options stay disabled after a choice until the host has had the
// server confirm it and calls Update_UI.
//
// Choosing a location takes the mouse: a click on Opt_Station or Opt_NCC only marks the choice,
// and the mouse button's release over the same option acts on it, so that moving through the
// options with the keyboard sends nothing.

#include <cstdint>
#include <string>

#include "common/panel.h"
#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/frame.h"
#include "platform/controls/option_button.h"
#include "platform/controls/text_box.h"
#include "core/api_begin.h"

namespace trovane {

class OperatorPlace : public Panel {
  public:
    explicit OperatorPlace(PlatformServices platform = PlatformServices::Defaults());

    Variant Init();
    void Init_UI();
    void Init_Buttons();
    void Update_UI();

    // ---- Properties set by the host ----------------------------------------------------------
    bool MltLevPresent = false;
    int16_t MltLevValue = 0;
    bool DevLocPresent = false;
    int16_t DevLocValue = 0;  // 1 local, -1 unknown, any other value remote
    bool DevLocStaPresent = false;
    int16_t DevLocStaValue = 0;  // 1 station, any other value network control centre
    bool Authorized = false;
    std::string SystemLocation;
    bool CustomLRIndication = false;
    std::string CustomLRValue;
    bool CustomLRControllable = false;
    bool CustomLRAllowsControl = false;
    Variant CustomLRControlValues;  // 1-based vector of value lists with a "STATE" each
    std::string CustomLRSetToValue;

    // A location option was clicked and the mouse has not acted on it yet.
    bool optionClicked = false;

    CheckBox& Chk_MltLev;
    Frame& Frm_Dev;
    OptionButton& Opt_Local;
    OptionButton& Opt_Remote;
    OptionButton& Opt_Ext1;
    Frame& Frm_System;
    OptionButton& Opt_Station;
    OptionButton& Opt_NCC;
    OptionButton& Opt_Ext2;
    Frame& Frm_CustomLR;
    TextBox& txt_LRValue;
    ComboBox& cmb_Control_Values;
    CommandButton& cmd_Set;

  private:
    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();

    void FillControlValues();
    void PlaceSystemFrame();
    void FitHeight();
    void SetLocationOptionsEnabled(bool enabled);
    void ActOnLocationOption(const char* request);
    void OnControlValueClicked();
    void OnSetClicked();
};

}  // namespace trovane

#include "core/api_end.h"
