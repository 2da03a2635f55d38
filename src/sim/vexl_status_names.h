#pragma once
// Names of the simulated server's status codes, as status_code_name answers them.

#include <cstdint>
#include <string>
#include "core/api_begin.h"

namespace trovane::sim {

// "OK" for 0, "VEXL_SYNTAX_ERROR" for status::kSyntaxError and so on; a code the server does not
// define is named "STATUS_" followed by its number, so an operator message never ends up blank.
std::string StatusCodeName(int32_t code);

}  // namespace trovane::sim

#include "core/api_end.h"
