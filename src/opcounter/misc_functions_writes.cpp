// The operation counter panel's writes. None of them touches the controls: what the server accepted
// comes back as a notification.

#include "opcounter/misc_functions.h"

namespace trovane {

namespace {
constexpr int32_t kValueNotAcceptableText = 403;
}  // namespace

void MiscFunctions::ResetCounter() {
    RunVexlCmd(CounterWriteCommand(logicalName, counterAttributes[kCountRole], objectIndex, "0"));
}

void MiscFunctions::SendInUse() {
    RunVexlCmd(CounterWriteCommand(logicalName, counterAttributes[kInUseRole], objectIndex,
                                   std::to_string(chkCounterInUse.Value())));
}

// The limit goes as typed ("1e3" stays "1e3"); only the check reads it as a number. A refused limit
// brings the value in force back into the box through a refresh of the subscription.
void MiscFunctions::SetLimit() {
    const std::string typed = txtOpCntLimit.Text();
    const bool accepted = AcceptedLimit(typed).has_value();
    int32_t status = 0;
    if (accepted)
        RunVexlCmdWithStatus(
            CounterWriteCommand(logicalName, counterAttributes[kLimitRole], objectIndex, typed), status);
    if (accepted && status == 0) return;
    ShowError(GetNlsString(kValueNotAcceptableText));
    subscription.Refresh();
}

void MiscFunctions::OnLimitChanged() {
    btnSetOpcCntLimit.SetEnabled(txtOpCntLimit.Text() != std::to_string(operationLimit) &&
                                 IsUserAuthorized());
}

}  // namespace trovane
