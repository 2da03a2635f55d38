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
        // Stepping with an error code: an entry that vanishes or cannot be read ends the listing
        // instead of throwing out of a range-for.
        for (fs::directory_iterator it(native, error), end; !error && it != end; it.increment(error))
            names.push_back(it->path().filename().string());
    } else if (fs::exists(native, error)) {
        names.push_back(native.filename().string());
    }
    return names;
}

// Only regular files are read: a directory opens as a stream on some platforms but has no content.
std::optional<std::string> LocalFiles::Read(const std::string& path) {
    std::error_code error;
    if (!fs::is_regular_file(NativePath(path), error)) return std::nullopt;
    std::ifstream in(NativePath(path), std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

}  // namespace trovane
