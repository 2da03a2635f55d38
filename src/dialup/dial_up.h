#pragma once
// DialUp: the buttons of a station reached over a dial-up line.
//
// Dial, hang up, synchronise, update and the dial-up settings each call the container's method of
// the same purpose by name ("MakeCall", "HangUp", "MakeSync", "makeUpdate",
// "ShowDialUpOptionsDialog"); the panel decides nothing else. The host says which of the optional
// buttons are shown and, whenever the line's state changes, which are enabled. An enabled state is
// the host's flag And the operator's right, bitwise on 16-bit Booleans: the rights are asked of the
// container the first time and kept for the panel's life, so a change of rights takes effect when
// the panel is made again. Dial and hang up disable themselves when clicked, until the host enables
// them again.

#include "common/panel.h"
#include "core/bool16.h"
#include "platform/controls/command_button.h"
#include "core/api_begin.h"

namespace trovane {

class DialUp : public Panel {
  public:
    explicit DialUp(PlatformServices platform = PlatformServices::Defaults());

    Variant Init();
    // Dial and hang up are always shown.
    void Set_Button_Visibility(Bool16 sync, Bool16 update, Bool16 settings);
    void Set_Buttons_Enabled(Bool16 dial, Bool16 hangUp, Bool16 sync, Bool16 update, Bool16 settings);

    bool rightsRead = false;
    Bool16 isAuthorized;
    Bool16 isEngineer;

    CommandButton& btn_Dial;
    CommandButton& btn_HangUp;
    CommandButton& btn_Sync;
    CommandButton& btn_Update;
    CommandButton& btn_Settings;

  private:
    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();
    void ReadRights();
};

}  // namespace trovane

#include "core/api_end.h"
