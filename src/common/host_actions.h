#pragma once
// HostActions: what the panels leave to the host that sites them.
//
// Some requests of the panels have no answer in this library: which location the operator chose
// ("Station_Select", "NCC_Select", "Execute"), that a status text changed ("updatestatustext"),
// the dial-up buttons ("MakeCall", "HangUp", "MakeSync", "makeUpdate", "ShowDialUpOptionsDialog"),
// fresh data ("UpdateData"), whether the object is selected on another monitor, the object's alarm
// list ("GetAlarms"), the hand-over of a signal from the alarm panel to the blocking panel
// ("SetBlockedSignal", "SetSingleBlocking"), fresh subscriptions ("RefreshSubscriptions") and where
// the host's form stands ("Left", "Top", "Width", "Height", in twips). A host implements them in one
// object; AnswerHostActions makes a container answer each by its exact name. The demo host
// implements them against the simulated server, and tests with a recorder.

#include <cstdint>
#include <memory>
#include <string>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

class DispatchObject;

struct WindowPosition {
    int32_t left = 0;
    int32_t top = 0;
    int32_t width = 0;
    int32_t height = 0;
};

class HostActions {
  public:
    virtual ~HostActions() = default;

    // Operator place.
    virtual void Station_Select() = 0;
    virtual void NCC_Select() = 0;
    virtual void Execute() = 0;
    // Operation counter.
    virtual void updatestatustext() = 0;
    // Dial-up and data update.
    virtual void MakeCall() = 0;
    virtual void HangUp() = 0;
    virtual void MakeSync() = 0;
    virtual void makeUpdate() = 0;
    virtual void ShowDialUpOptionsDialog() = 0;
    virtual void UpdateData() = 0;
    // Tagout.
    virtual bool IsSelectedOnOtherMonitor() = 0;
    // The alarm panel and its link to the blocking panel.
    virtual Variant GetAlarms() = 0;
    virtual void SetBlockedSignal(const std::string& logicalName, int32_t index) = 0;
    virtual void SetSingleBlocking(bool enable) = 0;
    virtual void RefreshSubscriptions() = 0;
    // The host form's rectangle in twips, where dialogs opened from a panel are placed.
    virtual WindowPosition Position() = 0;
};

// Makes `container` answer every member of HostActions by its exact name. The container holds the
// actions; they must not hold the container strongly.
void AnswerHostActions(DispatchObject& container, std::shared_ptr<HostActions> actions);

}  // namespace trovane

#include "core/api_end.h"
