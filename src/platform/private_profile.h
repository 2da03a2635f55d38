#pragma once
// Initialisation files ("FrameWindow.ini", the colour scheme) read the way the classic
// private-profile call reads them.
//
// An initialisation file is text in lines. A line "[name]" opens a section; a line "key=value"
// inside a section defines a key. Section and key names are compared without regard to case, blanks
// around names and values are dropped, and a value wrapped in a matching pair of double or single
// quotes loses them. Lines starting with ";" are comments, lines without "=" are ignored, and when a
// key is defined twice in a section (or in two sections of the same name) the first definition wins. Values
// may be of any length. Line ends may be CR LF or LF. Nothing in a file can make reading fail: a file that
// cannot be read has no sections.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "core/api_begin.h"

namespace trovane {

class ProfileText {
  public:
    explicit ProfileText(std::string_view text);

    // The value of a key, or nothing when the section or the key is missing.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    // Every key of a section with its value, in file order (first definition of each key only).
    std::vector<std::pair<std::string, std::string>> Section(std::string_view section) const;

  private:
    struct Entry {
        std::string section;
        std::string key;
        std::string value;
    };
    std::vector<Entry> entries_;
};

// The classic call: copies the value of `key` (or `defaultValue` when it is missing) into `buffer`,
// cut to `bufferLength` - 1 characters, and answers the number of characters copied. A caller that
// gets bufferLength - 1 back cannot tell whether the value was cut.
size_t GetPrivateProfileString(Files& files, std::string_view section, std::string_view key,
                               std::string_view defaultValue, std::string& buffer, size_t bufferLength,
                               const std::string& fileName);

}  // namespace trovane

#include "core/api_end.h"
