#include "frame_window_override.h"

#include <string_view>

#include "core/object.h"

namespace trovane::dialog {

namespace {
constexpr std::string_view kFrameWindowFile = "FrameWindow.ini";

bool NamesFrameWindowFile(const std::string& path) {
    const std::string native = NativePath(path);
    const size_t slash = native.find_last_of('/');
    const std::string name = slash == std::string::npos ? native : native.substr(slash + 1);
    return EqualsIgnoringCase(name, kFrameWindowFile);
}
}  // namespace

FrameWindowOverride::FrameWindowOverride(std::shared_ptr<Files> filesIn, int32_t dialogTimeoutSeconds)
    : files(std::move(filesIn)),
      frameWindowText("[CONTROL]\r\nDlgTimeOut=" + std::to_string(dialogTimeoutSeconds) + "\r\n") {
}

bool FrameWindowOverride::Exists(const std::string& path) {
    return NamesFrameWindowFile(path) || (files && files->Exists(path));
}

std::vector<std::string> FrameWindowOverride::List(const std::string& path) {
    if (NamesFrameWindowFile(path)) return {std::string(kFrameWindowFile)};
    return files ? files->List(path) : std::vector<std::string>{};
}

std::optional<std::string> FrameWindowOverride::Read(const std::string& path) {
    if (NamesFrameWindowFile(path)) return frameWindowText;
    return files ? files->Read(path) : std::nullopt;
}

}  // namespace trovane::dialog
