#pragma once
// Files held in memory, by the path as the library asks for it (backslashes kept), and a record of
// every read so that a test can tell which file the code looked for and how often.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace trovane::testing {

class MemoryFiles final : public Files {
  public:
    void Put(const std::string& path, std::string content) { files_[path] = std::move(content); }
    void Erase(const std::string& path) { files_.erase(path); }

    bool Exists(const std::string& path) override { return files_.count(path) != 0; }
    std::vector<std::string> List(const std::string& path) override {
        if (!Exists(path)) return {};
        const size_t slash = path.find_last_of('\\');
        return {slash == std::string::npos ? path : path.substr(slash + 1)};
    }
    std::optional<std::string> Read(const std::string& path) override {
        reads.push_back(path);
        const auto found = files_.find(path);
        if (found == files_.end()) return std::nullopt;
        return found->second;
    }

    std::vector<std::string> reads;

  private:
    std::map<std::string, std::string> files_;
};

}  // namespace trovane::testing
