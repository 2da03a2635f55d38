#pragma once
// One substitutable signal as the server describes it: a value list whose attributes are read with
// their defaults, so that a missing attribute never fails.
//
// The server's numbers arrive as whatever the answer holds (a Long, a Double, text); the panel
// compares them as whole numbers where it must decide (type, substitution state, state index), and
// anything that is no whole number simply matches no case.

#include <cstdint>
#include <optional>
#include <string>

#include "common/common_functions.h"
#include "core/api_begin.h"

namespace trovane {

// Process object types that decide the kind of value entry.
inline constexpr int32_t kBinarySignal = 3;
inline constexpr int32_t kDoubleBinarySignal = 12;
inline constexpr int32_t kAnalogSignal = 9;
inline constexpr int32_t kUntypedSignal = -1;

// The signal's address on the server, echoed unchanged when its substitution is written.
struct SignalAddress {
    std::string logicalDevice;
    std::string logicalNode;
    std::string dataObject;
    std::string dataAttribute;
    std::string ln;
    std::string ix;  // the index as the server wrote it
};

// The whole number a value holds, when it holds one.
std::optional<int32_t> WholeNumber(const Variant& value);

class SubstitutionSignal {
  public:
    SubstitutionSignal(CommonFunctions& lists, Variant signal);

    Variant Text() const;         // "TX", "N/A" when missing
    Variant Substituted() const;  // "SB", "N/A" when missing
    Variant Type() const;         // "PT", -1 when missing
    // "OV": -1 when missing for a state signal, "N/A" for an analog one.
    Variant StateValue() const;
    Variant AnalogValue() const;
    Variant Bound(const std::string& name) const;  // "MIN" or "MAX", 0 when missing
    // The caption of state `state` (1-based); "N/A" when the server names no such state.
    std::string StateText(int32_t state) const;
    SignalAddress Address() const;

    // The number of states of a binary (2) or double-binary (4) signal; 0 for other types.
    static int32_t StateCount(const Variant& type);

  private:
    Variant Read(const std::string& name, const Variant& defaultValue) const;
    CommonFunctions& lists;
    Variant signal;
};

}  // namespace trovane

#include "core/api_end.h"
