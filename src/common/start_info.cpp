// Start information, the colour-setting tool's configuration and the dialog time-out.

#include <optional>

#include "common/common_functions.h"
#include "common/cst.h"
#include "common/ini_file.h"
#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

namespace {

constexpr const char* kPathCommand = "#return PATH(\"APL_\")";
constexpr int32_t kDefaultDialogTimeout = 90;

// The server answers PATH with the path of the application's logical directory in a string array.
std::optional<std::string> PathAnswer(const Variant& answer) {
    if (TypeName(answer) != "String()" || answer.AsArray().Size() == 0) return std::nullopt;
    return answer.AsArray().At(answer.AsArray().LowerBound()).AsString();
}

// Cutting the logical directory's last four characters leaves the application's root directory
// with its trailing separator.
constexpr size_t kLogicalDirectoryLength = 4;
std::string WithoutLogicalDirectory(const std::string& path) {
    return path.substr(0, path.size() - kLogicalDirectoryLength);
}

// A list value counts as "1" when it is a number (or numeric text) equal to one.
bool IsOne(const Variant& value) {
    return IsNumeric(value) && ToDouble(value) == 1;
}

// The numeric check of the time-out: numeric text that converts to a 32-bit integer without error.
std::optional<int32_t> WholeNumber(const std::string& text) {
    if (!IsNumeric(std::string_view(text))) return std::nullopt;
    try {
        return ToInt32(Variant(text));
    } catch (const Error&) {
        return std::nullopt;
    }
}

// Who and where first, then the folders, which need the server's answer: without a usable path the
// tool keeps what it was told so far.
void ConfigureColorSettingTool(CommonFunctions& functions, const Variant& startInfo) {
    const int16_t application = ToInt16(functions.GetListItem(startInfo, "APP_NR"));
    const std::string languageCode = ToString(functions.GetListItem(startInfo, "LANGUAGE"));
    const std::string userName = ToString(functions.GetListItem(startInfo, "USER_NAME"));
    Cst& cst = Cst::Shared(functions.Platform());
    cst.SetColorSettingToolParameter("UserName", userName);
    cst.SetColorSettingToolParameter("Language", languageCode);
    cst.SetColorSettingToolParameter("ApplicationNumber", application);

    int32_t status = 0;
    const std::optional<std::string> path = PathAnswer(functions.RunVexlCmdGlobalWithStatus(
        functions.GetListItem(startInfo, "USED_OPC_SERVER"), kPathCommand, application, status));
    if (!path || path->size() < kLogicalDirectoryLength) return;
    const std::string root = WithoutLogicalDirectory(*path);
    cst.SetColorSettingToolParameter("UserFolder", root + "PAR\\" + userName + "\\");
    cst.SetColorSettingToolParameter("AppFolder", root + "PAR\\APL\\");
    cst.SetColorSettingToolParameter("Initialize", "ColorScheme");
}

}  // namespace

void CommonFunctions::SetStartInfo(const Variant& StartInfo) {
    startInfo = StartInfo;
    SetLanguage(ToString(GetListItem(startInfo, "LANGUAGE")));
    if (IsOne(GetListItemDef(startInfo, "USE_CST", int16_t{0}))) ConfigureColorSettingTool(*this, startInfo);
}

Variant CommonFunctions::GetStartInfo() {
    return startInfo;
}

// Re-read at every call: the operator may change the configuration while dialogs are open.
int32_t CommonFunctions::GetDialogTimeout() {
    dialogTimeout = kDefaultDialogTimeout;
    if (startInfo.IsEmpty()) return dialogTimeout;
    const Variant connection = GetListItem(startInfo, "USED_OPC_SERVER");
    const int16_t application = ToInt16(GetListItem(startInfo, "APP_NR"));
    const std::optional<std::string> path =
        PathAnswer(RunVexlCmdGlobal(connection, kPathCommand, application));
    if (!path) return dialogTimeout;
    // A path too short to hold the logical directory is taken as it stands.
    const std::string root = path->size() >= kLogicalDirectoryLength ? WithoutLogicalDirectory(*path) : *path;
    const std::string text =
        ReadIniValue(*platform_.files, "CONTROL", "DlgTimeOut", root + "PAR\\APL\\FrameWindow.ini");
    if (const std::optional<int32_t> number = WholeNumber(text)) dialogTimeout = *number;
    return dialogTimeout;
}

int32_t CommonFunctions::GetColorByIndex(int16_t Index) {
    return Cst::Shared(platform_).GetColorByIndex(Index);
}

}  // namespace trovane
