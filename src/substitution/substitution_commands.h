#pragma once
// The two requests to the server's control procedure, as Vexl command text.
//
// Both are kept exactly as the server's procedure has always received them, down to the blank
// after "C," that only the read carries. Nothing inserted is escaped: names and addresses come
// from the server itself and go back as they came, and the value is a number with a point.

#include <cstdint>
#include <string>
#include <string_view>

#include "substitution/substitution_signal.h"

namespace trovane {

// The substitutable signals of one object, texts in `language`; with `singleSignal` the server
// answers the object's own signal only.
std::string GetSubstitutionCommand(std::string_view logicalName, int32_t baseIndex, std::string_view language,
                                   bool singleSignal);

// One signal's substitution: on (1) or off (0), and the value; the quality sent is always 0.
std::string SetSubstitutionCommand(std::string_view logicalName, int32_t baseIndex,
                                   const SignalAddress& signal, int16_t enabled, std::string_view value);

}  // namespace trovane
