#include "platform/files.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace trovane {

namespace fs = std::filesystem;

std::string NativePath(const std::string& path) {
    std::string native = path;
    if (fs::path::preferred_separator != '\\')
        for (char& c : native)
            if (c == '\\') c = static_cast<char>(fs::path::preferred_separator);
    return native;
}

bool LocalFiles::Exists(const std::string& path) {
    std::error_code error;
    return fs::exists(NativePath(path), error);
}

std::vector<std::string> LocalFiles::List(const std::string& path) {
    std::vector<std::string> names;
    std::error_code error;
    const fs::path native = NativePath(path);
    if (fs::is_directory(native, error)) {
        for (const auto& entry : fs::directory_iterator(native, error)) names.push_back(entry.path().filename().string());
    } else if (fs::exists(native, error)) {
        names.push_back(native.filename().string());
    }
    return names;
}

std::optional<std::string> LocalFiles::Read(const std::string& path) {
    std::ifstream in(NativePath(path), std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

}  // namespace trovane
