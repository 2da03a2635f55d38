#pragma once
// UpdateData: one button with which the operator asks the host for fresh data of the object.
//
// The click disables the button and calls "UpdateData" on the container; the host enables it again
// with Set_Button_State(true, "UPDATE_DATA") when the update is done. Other button names are for
// other panels and are ignored; the name is compared exactly.

#include <string_view>

#include "common/panel.h"
#include "core/bool16.h"
#include "platform/controls/command_button.h"
#include "core/api_begin.h"

namespace trovane {

class UpdateData : public Panel {
  public:
    explicit UpdateData(PlatformServices platform = PlatformServices::Defaults());

    Variant Init();
    void Set_Button_State(Bool16 state, std::string_view buttonName);

    CommandButton& btn_UpdateData;

  private:
    void RegisterMembers();
};

}  // namespace trovane

#include "core/api_end.h"
