// Feeds arbitrary server and host answers to the operation counter, operator place, dial-up and
// update-data panels. The input is Vexl text; its value is what every command returns, every
// subscribed counter attribute reports, the typed limit, the control values and the flags a host
// passes. The counter must never raise whatever it reads or is notified of; the other panels take
// their values from the host, whose conversions may only fail with the documented runtime errors.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "core/conversions.h"
#include "dialup/dial_up.h"
#include "dialup/update_data.h"
#include "opcounter/misc_functions.h"
#include "operatorplace/operator_place.h"
#include "support/answering_container.h"
#include "support/fake_connection.h"

namespace {

using trovane::Variant;

std::shared_ptr<trovane::DispatchObject> ContainerAnswering(const Variant& answer) {
    // Every limit is refused, so the counter also shows its message and refreshes.
    auto container = trovane::testing::AnsweringContainer(
        answer, 2006, {"IsUserAuthorized"},
        {"SetCharsetValues", "ShowError", "updatestatustext", "Station_Select", "NCC_Select", "Execute",
         "MakeCall", "HangUp", "MakeSync", "makeUpdate", "ShowDialUpOptionsDialog", "UpdateData"});
    container->Method("IsUserEngineer", [answer](std::span<Variant>) { return answer; });
    return container;
}

std::string TextOf(const Variant& answer) {
    try {
        return trovane::ToString(answer);
    } catch (const trovane::Error&) {
        return "abc";
    }
}

void DriveCounter(const Variant& container, const Variant& answer) {
    auto connection = std::make_shared<trovane::testing::FakeConnection>();
    auto counter = std::make_shared<trovane::MiscFunctions>();
    counter->SetParent(container);
    counter->objectIndex = 10;
    counter->Activate(1, "ABC", "operator", connection->AsVariant());
    counter->Init();
    connection->Notify(1, {1, 2, 3, 4}, {answer, answer, answer, answer});
    counter->OnDataChange(0, 1, 4, answer, answer, answer, answer);
    counter->txtOpCntLimit.SetText(TextOf(answer));
    counter->btnSetOpcCntLimit.Click();
    counter->chkCounterInUse.Click();
    counter->btnOpCntReset.Click();
    counter->GetExtraInfo();
    counter->Deactivate();
}

void DrivePlace(const Variant& container, const Variant& answer) {
    auto place = std::make_shared<trovane::OperatorPlace>();
    place->SetParent(container);
    const Variant self{trovane::ObjectRef(place)};
    try {
        for (const char* flag : {"MltLevPresent", "DevLocPresent", "DevLocStaPresent", "Authorized",
                                 "CustomLRIndication", "CustomLRAllowsControl"})
            trovane::PutProperty(self, flag, Variant(true));
        trovane::PutProperty(self, "CustomLRControlValues", answer);
        trovane::PutProperty(self, "CustomLRValue", answer);
        trovane::PutProperty(self, "DevLocValue", answer);
    } catch (const trovane::Error&) {
    }
    place->Init();
    place->cmb_Control_Values.SetListIndex(place->cmb_Control_Values.ListCount() - 1);
    place->cmd_Set.Click();
    place->Opt_NCC.ClickWithMouse(1, 0, 0, 0);
    place->Update_UI();
}

void DriveButtons(const Variant& container, const Variant& answer) {
    auto dialUp = std::make_shared<trovane::DialUp>();
    auto update = std::make_shared<trovane::UpdateData>();
    dialUp->SetParent(container);
    update->SetParent(container);
    try {
        dialUp->Init();
        trovane::CallMethod(Variant(trovane::ObjectRef(dialUp)), "Set_Buttons_Enabled",
                            {answer, answer, answer, answer, answer});
        dialUp->btn_Dial.Click();
        dialUp->btn_Settings.Click();
    } catch (const trovane::Error&) {
    }
    try {
        update->Init();
        update->btn_UpdateData.Click();
        trovane::CallMethod(Variant(trovane::ObjectRef(update)), "Set_Button_State", {answer, answer});
    } catch (const trovane::Error&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Variant answer = trovane::testing::AnswerOfVexl(data, size);
    const auto container = ContainerAnswering(answer);
    const Variant host{trovane::ObjectRef(container)};
    DriveCounter(host, answer);
    DrivePlace(host, answer);
    DriveButtons(host, answer);
    return 0;
}
