#include "sim/vexl_splice.h"

#include <algorithm>

#include "sim/vexl_environment.h"
#include "sim/vexl_lexer.h"
#include "sim/vexl_limits.h"
#include "sim/vexl_notation.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

std::string VariableText(const std::string& name, const VexlVariables& variables) {
    const auto found = variables.find(UpperName(name));
    if (found == variables.end()) throw VexlStatus(status::kUnknownVariable, "no variable " + name);
    const Variant& value = found->second;
    if (value.IsString()) return value.AsString();
    if (value.IsEmpty()) return "";
    return VexlNotation(value);
}

bool IsName(std::string_view text) {
    return !text.empty() && IsNameStart(text.front()) && std::all_of(text.begin(), text.end(), IsNameChar);
}

}  // namespace

std::string SpliceQuotedNames(std::string_view line, const VexlVariables& variables) {
    if (line.find('\'') == std::string_view::npos) return std::string(line);
    std::string result;
    size_t pos = 0;
    while (pos < line.size()) {
        const size_t open = line.find('\'', pos);
        result.append(line.substr(pos, open == std::string_view::npos ? std::string_view::npos : open - pos));
        if (open == std::string_view::npos) break;
        const size_t close = line.find('\'', open + 1);
        if (close == std::string_view::npos) throw VexlStatus(status::kSyntaxError, "unmatched apostrophe");
        const std::string_view name = line.substr(open + 1, close - open - 1);
        if (name.empty()) {
            result += '\'';
        } else if (IsName(name)) {
            result += VariableText(std::string(name), variables);
        } else {
            throw VexlStatus(status::kSyntaxError, "quoted name expected between apostrophes");
        }
        CheckTextLength(result.size());
        pos = close + 1;
    }
    return result;
}

}  // namespace trovane::sim
