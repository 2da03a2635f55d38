#include "sim/vexl_status_names.h"

#include <array>
#include <utility>

#include "sim/vexl_environment.h"

namespace trovane::sim {

std::string StatusCodeName(int32_t code) {
    static constexpr std::array<std::pair<int32_t, const char*>, 13> kNames{{
        {0, "OK"},
        {status::kSyntaxError, "VEXL_SYNTAX_ERROR"},
        {status::kUnknownFunction, "VEXL_UNKNOWN_FUNCTION"},
        {status::kUnknownObject, "VEXL_UNKNOWN_OBJECT"},
        {status::kUnknownAttribute, "VEXL_UNKNOWN_ATTRIBUTE"},
        {status::kUnknownVariable, "VEXL_UNKNOWN_VARIABLE"},
        {status::kWrongArgument, "VEXL_WRONG_ARGUMENT"},
        {status::kTypeMismatch, "VEXL_TYPE_MISMATCH"},
        {status::kIndexOutOfRange, "VEXL_INDEX_OUT_OF_RANGE"},
        {status::kTooDeep, "VEXL_EXPRESSION_TOO_DEEP"},
        {status::kNotReady, "VEXL_SERVER_NOT_READY"},
        {status::kProcedureFailed, "VEXL_PROCEDURE_FAILED"},
        {status::kValueTooLarge, "VEXL_VALUE_TOO_LARGE"},
    }};
    for (const auto& [number, name] : kNames)
        if (number == code) return name;
    return "STATUS_" + std::to_string(code);
}

}  // namespace trovane::sim
