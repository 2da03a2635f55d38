#pragma once
// The three requests to the server's blocking service, as Vexl command text.
//
// The object is written as ("name",index) with no blank after the comma, the six values as
// (v1,v2,...) with no blanks at all, and argument groups are separated by ", ". The logical name is
// inserted as it is: the server's names cannot hold a double quote, so nothing is escaped. Every
// command starts with "#return " so that the server hands back the procedure's value.
//
// The apply-to mode decides whether a read or write concerns the selected signal only or the whole
// object. It is derived from the single-signal option each time a command is built, so a read and
// the write that follows it use the option as it stands at that moment.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "blocking/blocking_kinds.h"
#include "core/api_begin.h"

namespace trovane {

using BlockingValues = std::array<int16_t, kBlockingKindCount>;

inline constexpr std::string_view kApplyToSelected = "APPLY_TO_SELECTED";
inline constexpr std::string_view kApplyToAll = "APPLY_TO_ALL";

// "APPLY_TO_SELECTED" only when the option is checked (value 1, not grey) and enabled.
std::string_view ApplyToMode(int16_t optionValue, bool optionEnabled);

std::string GetBlockingStateCommand(const std::string& logicalName, int32_t baseIndex, std::string_view mode);
std::string SetBlockingStateCommand(const std::string& logicalName, int32_t baseIndex,
                                    const BlockingValues& values, std::string_view mode);
std::string GetEnabledBlockingsCommand(const std::string& logicalName, int32_t baseIndex);

}  // namespace trovane

#include "core/api_end.h"
