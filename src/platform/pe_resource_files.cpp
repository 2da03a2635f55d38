#include "platform/pe_resource_files.h"

#include <filesystem>
#include <span>

#include "platform/language_ids.h"
#include "platform/pe_string_table.h"

namespace trovane {

namespace {
// Where the running program lives; the current directory when the system does not say.
std::string ExecutableDirectory() {
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error || !executable.has_parent_path()) return ".";
    return executable.parent_path().string();
}
}  // namespace

PeResourceFiles::PeResourceFiles(std::shared_ptr<Files> fileAccess) : files(std::move(fileAccess)) {
}

std::shared_ptr<StringTable> PeResourceFiles::Open(const std::string& fileName) {
    const auto content = files->Read(fileName);
    if (!content) return nullptr;
    const auto bytes = std::as_bytes(std::span(*content));
    const std::span<const uint8_t> image(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    return PeStringTable::Read(image, LanguageIdForCode(LanguageCodeOfFileName(fileName)));
}

std::string PeResourceFiles::InstallationDirectory() {
    if (installationDirectory.empty()) installationDirectory = ExecutableDirectory();
    return installationDirectory;
}

void PeResourceFiles::SetInstallationDirectory(std::string directory) {
    installationDirectory = std::move(directory);
}

std::string LanguageCodeOfFileName(const std::string& fileName) {
    const size_t lastSeparator = fileName.find_last_of("\\/");
    const std::string name =
        lastSeparator == std::string::npos ? fileName : fileName.substr(lastSeparator + 1);
    const size_t underscore = name.rfind('_');
    if (underscore == std::string::npos) return "";
    const size_t dot = name.find('.', underscore);
    return name.substr(underscore + 1, dot == std::string::npos ? std::string::npos : dot - underscore - 1);
}

}  // namespace trovane
