// Feeds arbitrary server answers to the alarm, blocking and indication panels. The input is Vexl
// text; its value is what the container's GetAlarms and every command return, and what the
// indication bar receives as its comment. Whatever the value, the panels must rebuild, select,
// acknowledge, refresh and write without crashing; the only failures allowed are the documented
// runtime errors (a list beyond 32767 rows overflows, a signal listed twice repeats a row key).

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "alarms/alarms.h"
#include "blocking/blocking.h"
#include "indication/indication_bar.h"
#include "support/answering_container.h"
#include "support/fake_connection.h"

namespace {

using trovane::Variant;

std::shared_ptr<trovane::DispatchObject> ContainerAnswering(const Variant& answer) {
    // Every write is refused, so the bar also asks for the status's name and shows it.
    auto container = trovane::testing::AnsweringContainer(
        answer, 2003, {"IsAlarmHandlingAllowed", "IsBlockingHandlingAllowed", "IsUserAuthorized"},
        {"SetCharsetValues", "SetBlockedSignal", "SetSingleBlocking", "RefreshSubscriptions", "ShowError",
         "SetWindowOrder"});
    container->Method("GetAlarms", [answer](std::span<Variant>) { return answer; });
    return container;
}

void DriveAlarms(const Variant& container, const Variant& answer) {
    auto alarms = std::make_shared<trovane::Alarms>();
    alarms->SetParent(container);
    alarms->CanSelectSingleBlocking = true;
    try {
        // A notification batch made of the answer: whatever its arrays hold, it is walked safely.
        alarms->OnDataChange(0, 1, 3, answer, answer, answer, answer);
        alarms->RefreshAlarms();
        for (int32_t row = 1; row <= alarms->ListView1.ItemCount() && row <= 50; ++row) {
            alarms->ListView1.ClickItem(row);
            alarms->btnAckSelected.Click();
            alarms->RefreshAlarms();
        }
        alarms->AcknowledgeAll();
    } catch (const trovane::Error&) {
    }
}

void DriveBlocking(const Variant& container) {
    auto blocking = std::make_shared<trovane::Blocking>();
    blocking->SetParent(container);
    blocking->logicalName = "ABC";
    blocking->baseIndex = 10;
    try {
        blocking->Init();
        blocking->KindCheckBox(2).Click();
        blocking->btnCancel.Click();
        blocking->KindCheckBox(3).Click();
        blocking->btnOK.Click();
    } catch (const trovane::Error&) {
    }
}

// The answer arrives as the comment itself and as the time of a well-formed one; then the operator
// opens the dialog, edits and writes.
void DriveIndication(const Variant& container, const Variant& answer) {
    auto connection = std::make_shared<trovane::testing::FakeConnection>();
    auto bar = std::make_shared<trovane::IndicationBar>();
    bar->SetParent(container);
    try {
        bar->Activate(1, "ABC", "operator", connection->AsVariant());
        connection->Notify(1, {1, 1}, {answer, Variant("anna#1714555815#text")});
        bar->OnDataChange(0, 1, 2, answer, answer, answer, answer);
        bar->btnIndication.Click();
        if (trovane::ObjectCommentDialog* dialog = bar->CommentDialog()) {
            dialog->btnRemove.Click();
            dialog->btnOK.Click();
        }
        bar->btnShowComment.Click();
        bar->Deactivate();
    } catch (const trovane::Error&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Variant answer = trovane::testing::AnswerOfVexl(data, size);
    const auto container = ContainerAnswering(answer);
    DriveAlarms(Variant(trovane::ObjectRef(container)), answer);
    DriveBlocking(Variant(trovane::ObjectRef(container)));
    DriveIndication(Variant(trovane::ObjectRef(container)), answer);
    return 0;
}
