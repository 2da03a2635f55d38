#pragma once
// ColorScheme: the portable colour-setting tool.
//
// A colour scheme maps small indexes to colours (0x00BBGGRR, the platform's colour form). Until it
// is initialised, and for every index its files leave out, it answers the sixteen classic console
// colours for indexes 0 to 15 and light grey for any other index. The host configures it with the
// parameters "UserName", "Language", "ApplicationNumber", "UserFolder" and "AppFolder", then sets
// "Initialize" to "ColorScheme": the scheme then starts again from its defaults and reads
// "ColorScheme.ini" from the application folder and then from the user folder, so that an operator's
// own colours override the application's. docs/color_scheme.md describes the file.

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "platform/color_setting_tool.h"
#include "platform/files.h"
#include "core/api_begin.h"

namespace trovane {

class ColorScheme final : public ColorSettingTool {
  public:
    explicit ColorScheme(std::shared_ptr<Files> files);

    // Stores a configuration parameter, or with "Initialize" = "ColorScheme" loads the scheme. An
    // unknown parameter or initialisation target raises invalid call (5).
    void SetParameter(const std::string& name, const Variant& value) override;
    // "ColorByIndex" answers the colour of `index` (a 16-bit number); a configuration parameter
    // answers its stored value (Empty until set); anything else raises invalid call (5).
    Variant GetParameter(const std::string& name, Variant& index) override;

    static constexpr int32_t kDefaultColor = 0x00C0C0C0;

  private:
    void Initialize();
    void ReadSchemeFile(const Variant& folder);

    std::shared_ptr<Files> files_;
    std::map<std::string, Variant> parameters_;
    std::map<int32_t, int32_t> colors_;
    int32_t otherColor_ = kDefaultColor;
};

}  // namespace trovane

#include "core/api_end.h"
