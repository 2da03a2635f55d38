#pragma once
// MiscFunctions: the operation counter of one process object.
//
// The panel shows how many operations the device has made, the limit, whether the limit is reached
// and whether the counter is in use; an authorised user resets the counter, sets the limit and
// switches the counter on or off. Nothing is kept beyond what is shown: the values arrive as
// notifications of the subscribed counter attributes, and a write shows on the screen only when the
// server's notification comes back. While the panel puts a notification on its controls it sets
// `isUpdating`, so the events its own writes raise are not taken for the operator's.
//
// The host sets `objectIndex`, calls Activate with the application, the object's name and the
// connection, then Init, which reads the object's type and subscribes; Deactivate ends the
// subscription. The container is asked by name: "RunVexlCmd", "RunVexlCmdWithStatus",
// "IsUserAuthorized", "GetNlsString", "ShowError", "SetCharsetValues" and "updatestatustext" when
// the status text (limit reached or not) changes.

#include <cstdint>
#include <string>

#include "common/panel.h"
#include "opcounter/counter_attributes.h"
#include "platform/controls/check_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/label.h"
#include "platform/controls/text_box.h"
#include "core/api_begin.h"

namespace trovane {

class MiscFunctions : public Panel {
  public:
    explicit MiscFunctions(PlatformServices platform = PlatformServices::Defaults());

    // ---- Host operations -------------------------------------------------------------------
    Variant Activate(int16_t App, const std::string& objectName, const std::string& userName,
                     const Variant& subsServer);
    Variant Init();
    void Deactivate();
    // The server's extra information about the object, as it answers.
    Variant GetExtraInfo();

    // ---- Writes (the operator's actions) -----------------------------------------------------
    void ResetCounter();
    void SendInUse();
    void SetLimit();

    // Identity: the object's index is set by the host before Init.
    int16_t application = 1;
    std::string logicalName;
    int32_t objectIndex = 0;

    // State as the last notification left it.
    int16_t objectType = 0;
    CounterAttributeSet counterAttributes{};
    int32_t operationCount = 0;
    int32_t operationLimit = 0;
    bool isOverflow = false;
    bool isInUse = false;
    bool isUpdating = false;
    // The status text last reported to the container.
    std::string statusText;

    Label& lblOpCntTitle;
    Label& lblOperationCount;
    Label& lblOpCntLimitTitle;
    TextBox& txtOpCntLimit;
    CommandButton& btnSetOpcCntLimit;
    CheckBox& chkCounterInUse;
    CommandButton& btnOpCntReset;
    Label& lblOverFlow;

  private:
    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();

    void Subscribe();
    void ApplyItem(size_t role, const Variant& value);
    void ShowValues();
    void ReportStatusText();
    void ShowUsage();
    void OnLimitChanged();
    bool IsUserAuthorized() const;
    bool IsDoubleBinary() const { return objectType == kDoubleBinaryObjectType; }

    std::string userName;
    Variant subsServer = Variant::Nothing();
};

}  // namespace trovane

#include "core/api_end.h"
