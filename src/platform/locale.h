#pragma once
// What the logic needs of the system locale: the decimal separator and the ANSI character set.

#include <cstdint>
#include <optional>
#include <string>
#include "core/api_begin.h"

namespace trovane {

class Locale {
public:
    virtual ~Locale() = default;
    // The decimal separator the operator types and reads ("." or ",").
    virtual std::string DecimalSeparator() = 0;
    // The system's default ANSI code page as its text (for example "1252"); empty when unknown.
    virtual std::string DefaultAnsiCodePage() = 0;
    // The font character set of a code page (1252 -> 0, 1250 -> 238, ...); nothing when unknown.
    virtual std::optional<int32_t> CharsetOfCodePage(uint32_t codePage) = 0;
};

// A locale with "." as decimal separator and code page 1252 (Western, character set 0): the
// portable default, and the settings under which the panels' texts are specified.
class DefaultLocale final : public Locale {
public:
    std::string DecimalSeparator() override { return "."; }
    std::string DefaultAnsiCodePage() override { return "1252"; }
    std::optional<int32_t> CharsetOfCodePage(uint32_t codePage) override;
};

}  // namespace trovane

#include "core/api_end.h"
