#include "common/cst.h"

#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

namespace {
std::unique_ptr<Cst>& SharedSlot() {
    static std::unique_ptr<Cst> shared;
    return shared;
}
}  // namespace

Cst::Cst(std::shared_ptr<ColorSettingTool> tool) : ctlOvoColorSetting1(std::move(tool)) {
    if (!ctlOvoColorSetting1) throw Error(ErrorNumber::ObjectNotSet, "colour-setting tool");
}

Cst& Cst::Shared(const PlatformServices& platform) {
    std::unique_ptr<Cst>& slot = SharedSlot();
    if (!slot) slot = std::make_unique<Cst>(platform.colorTool);
    return *slot;
}

bool Cst::SharedExists() {
    return SharedSlot() != nullptr;
}

void Cst::ReleaseShared() {
    SharedSlot().reset();
}

void Cst::SetColorSettingToolParameter(const std::string& name, const Variant& value) {
    ctlOvoColorSetting1->SetParameter(name, value);
}

int32_t Cst::GetColorByIndex(int16_t Index) {
    Variant index = Index;
    return ToInt32(ctlOvoColorSetting1->GetParameter("ColorByIndex", index));
}

}  // namespace trovane
