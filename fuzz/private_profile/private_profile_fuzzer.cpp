// Initialisation files are edited by hand on the workstation: whatever they hold, reading the
// dialog time-out and loading a colour scheme must answer something and never fail.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/ini_file.h"
#include "platform/color_scheme.h"
#include "platform/private_profile.h"

namespace {

class OneFile final : public trovane::Files {
  public:
    explicit OneFile(std::string content) : content_(std::move(content)) {}
    bool Exists(const std::string&) override { return true; }
    std::vector<std::string> List(const std::string&) override { return {"ColorScheme.ini"}; }
    std::optional<std::string> Read(const std::string&) override { return content_; }

  private:
    std::string content_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto files = std::make_shared<OneFile>(std::string(reinterpret_cast<const char*>(data), size));
    const trovane::ProfileText text(std::string_view(reinterpret_cast<const char*>(data), size));
    (void)text.Section("ColorByIndex");
    (void)trovane::ReadIniValue(*files, "CONTROL", "DlgTimeOut", "FrameWindow.ini");

    trovane::ColorScheme scheme(files);
    scheme.SetParameter("AppFolder", "A\\");
    scheme.SetParameter("Initialize", "ColorScheme");
    for (int16_t index : {int16_t{-1}, int16_t{0}, int16_t{7}, int16_t{32767}}) {
        trovane::Variant argument = index;
        (void)scheme.GetParameter("ColorByIndex", argument);
    }
    return 0;
}
