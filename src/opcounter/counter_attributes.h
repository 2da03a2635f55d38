#pragma once
// What the operation counter panel reads and writes on the server.
//
// A double-binary switching device (process object type 12) keeps its counter in four attributes of
// its own: overflow "CO", value "CV", in use "CE" and limit "CL". Other object types have no counter
// value; their alarm zone "AZ" (2: above the limit), "IU" (in use) and "HI" (limit) play the other
// roles. Position k of the set is subscribed with client handle k + 1; an empty name is not
// subscribed.
//
// Writes address an attribute of one indexed object by appending the index to the attribute name
// ("#SET ABC:PCV10=0"); the value travels as the operator typed it.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

inline constexpr int16_t kDoubleBinaryObjectType = 12;

// Positions in the attribute set, by role.
enum CounterRole : size_t { kOverflowRole = 0, kCountRole = 1, kInUseRole = 2, kLimitRole = 3 };
using CounterAttributeSet = std::array<std::string_view, 4>;

CounterAttributeSet CounterAttributesFor(int16_t objectType);

// "#RETURN ABC:PPT": the process object type.
std::string ObjectTypeCommand(std::string_view objectName);
// "#SET ABC:PCL10=1e3".
std::string CounterWriteCommand(std::string_view objectName, std::string_view attribute, int32_t objectIndex,
                                std::string_view valueText);
// #return do(BGU_CONTROL:C, ("ABC",10),"GET_EXTRA_INFO")
std::string ExtraInfoCommand(std::string_view objectName, int32_t objectIndex);

// The limit the operator typed, read as a 32-bit float; nothing when it does not read as one or is
// not above 0.
std::optional<float> AcceptedLimit(std::string_view text);

}  // namespace trovane

#include "core/api_end.h"
