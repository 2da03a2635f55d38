#pragma once
// File access for the logic: existence, directory listing, reading.
//
// Paths come from the server and from configuration in the workstation's form, with backslashes
// ("C:\apl\demo\PAR\APL\FrameWindow.ini"); NativePath maps them to the platform's separator so that
// the same configuration works on every platform.

#include <optional>
#include <string>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

class Files {
public:
    virtual ~Files() = default;
    virtual bool Exists(const std::string& path) = 0;
    // The names (not paths) of the entries of a directory, or of the one file a path names; empty
    // when nothing matches. This is the "directory listing yields a non-empty name" test.
    virtual std::vector<std::string> List(const std::string& path) = 0;
    // The whole file, or nothing when it cannot be read.
    virtual std::optional<std::string> Read(const std::string& path) = 0;
};

class LocalFiles final : public Files {
public:
    bool Exists(const std::string& path) override;
    std::vector<std::string> List(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path) override;
};

// Backslashes to the native separator (a no-op where the backslash is the separator).
std::string NativePath(const std::string& path);

}  // namespace trovane

#include "core/api_end.h"
