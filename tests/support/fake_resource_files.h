#pragma once
// Language files in memory: each file name maps to a table of texts. Remembers the names opened
// and hands out tables whose lifetime a test can watch (to see when a file is released).

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/resource_files.h"

namespace trovane::testing {

class FakeStringTable final : public StringTable {
  public:
    explicit FakeStringTable(std::map<int32_t, std::string> entries) : texts(std::move(entries)) {}
    std::optional<std::string> Load(int32_t id) const override {
        const auto found = texts.find(id);
        if (found == texts.end()) return std::nullopt;
        return found->second;
    }

  private:
    std::map<int32_t, std::string> texts;
};

class FakeResourceFiles final : public ResourceFiles {
  public:
    std::shared_ptr<StringTable> Open(const std::string& fileName) override {
        opened.push_back(fileName);
        const auto found = files.find(fileName);
        if (found == files.end()) return nullptr;
        auto table = std::make_shared<FakeStringTable>(found->second);
        handedOut.push_back(table);
        return table;
    }
    std::string InstallationDirectory() override {
        ++installationDirectoryAsked;
        return installationDirectory;
    }

    // How many of the tables handed out are still held by someone.
    size_t OpenCount() const {
        size_t count = 0;
        for (const auto& table : handedOut) count += table.expired() ? 0 : 1;
        return count;
    }

    std::map<std::string, std::map<int32_t, std::string>> files;
    std::string installationDirectory = "C:\\Program Files\\Trovane";
    std::vector<std::string> opened;
    int installationDirectoryAsked = 0;

  private:
    std::vector<std::weak_ptr<StringTable>> handedOut;
};

}  // namespace trovane::testing
