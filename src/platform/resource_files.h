#pragma once
// Language resource files: string tables looked up by text identifier.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include "core/api_begin.h"

namespace trovane {

class StringTable {
public:
    virtual ~StringTable() = default;
    // The text with this identifier (UTF-8), or nothing when the file has none.
    virtual std::optional<std::string> Load(int32_t id) const = 0;
};

class ResourceFiles {
public:
    virtual ~ResourceFiles() = default;
    // Loads a resource file by its full name (backslash form allowed); nullptr when missing or unreadable.
    virtual std::shared_ptr<StringTable> Open(const std::string& fileName) = 0;
    // The directory of the program's own installation (no trailing separator).
    virtual std::string InstallationDirectory() = 0;
};

}  // namespace trovane

#include "core/api_end.h"
