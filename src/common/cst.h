#pragma once
// Cst: the hidden host of the colour-setting tool.
//
// One instance serves the whole process, so that every control dialog colours its indications from
// the same configured scheme, whichever CommonFunctions object configured it. It is created on first
// use around the colour-setting tool of the platform services of whoever asks first, and lives until
// ReleaseShared (a host shutting down, or a test starting afresh).

#include <cstdint>
#include <memory>
#include <string>

#include "core/variant.h"
#include "platform/color_setting_tool.h"
#include "platform/platform_services.h"
#include "core/api_begin.h"

namespace trovane {

class Cst {
  public:
    explicit Cst(std::shared_ptr<ColorSettingTool> tool);

    // The shared instance; the first call creates it with `platform.colorTool`. Raises "object not
    // set" (91) when that tool is missing.
    static Cst& Shared(const PlatformServices& platform);
    static bool SharedExists();
    static void ReleaseShared();

    // Passes (name, value) to the tool's set-parameter operation; the tool's errors reach the caller.
    void SetColorSettingToolParameter(const std::string& name, const Variant& value);
    // Asks the tool for "ColorByIndex" of `Index` and reads the answer as a 32-bit colour.
    int32_t GetColorByIndex(int16_t Index);

  private:
    std::shared_ptr<ColorSettingTool> ctlOvoColorSetting1;
};

}  // namespace trovane

#include "core/api_end.h"
