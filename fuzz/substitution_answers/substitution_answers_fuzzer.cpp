// Feeds arbitrary server answers to the substitution panel. The input is Vexl text; its value is
// what every command returns, the signal list included. Whatever it holds, the panel must load,
// show each signal, take the operator's entry and write without raising: any exception fails the
// run. The operator's input is the same each time, half of it refused by the value box.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/controls/key_codes.h"
#include "substitution/substitute.h"
#include "support/answering_container.h"

namespace {

using trovane::Variant;

constexpr int32_t kMostRows = 20;

std::shared_ptr<trovane::DispatchObject> ContainerAnswering(const Variant& answer) {
    auto container = trovane::testing::AnsweringContainer(answer, 2003, {"IsSubstitutionHandlingAllowed"},
                                                          {"SetCharsetValues"});
    container->Method("getLang", [](std::span<Variant>) { return Variant("en"); });
    return container;
}

void EnterEverything(trovane::Substitute& panel) {
    panel.Chk_Enabled.Click();
    for (int16_t index = 0; index < trovane::Substitute::kStateButtons; ++index)
        panel.StateButton(index).Click();
    panel.txt_Value.ClickWithMouse(trovane::keys::kLeftButton, 0, 0, 0);
    for (char32_t character : U"-1x2.,5-\b3")
        if (character != 0) panel.txt_Value.TypeCharacter(character);
    panel.txt_Value.EnterText("1.2.3");
    panel.txt_Value.PressKey(trovane::keys::kEnter);
    panel.Btn_Set.Click();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Variant answer = trovane::testing::AnswerOfVexl(data, size);
    const auto container = ContainerAnswering(answer);  // the panel holds its container weakly
    auto panel = std::make_shared<trovane::Substitute>();
    panel->SetParent(Variant(trovane::ObjectRef(container)));
    panel->logicalName = "ABC";
    panel->baseIndex = 10;
    panel->Init();
    for (int32_t row = 1; row <= panel->ListView1.ItemCount() && row <= kMostRows; ++row) {
        panel->ListView1.ClickItem(row);
        EnterEverything(*panel);
        panel->ListView1.PressKey(trovane::keys::kDown);
        panel->Btn_Cancel.Click();
    }
    panel->singleSignal = true;
    panel->initUI();
    EnterEverything(*panel);
    return 0;
}
