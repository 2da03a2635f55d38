#include "common/command_text.h"

namespace trovane {

namespace {
std::string Doubled(std::string_view text, char quote) {
    std::string doubled;
    doubled.reserve(text.size());
    for (const char c : text) {
        doubled += c;
        if (c == quote) doubled += c;
    }
    return doubled;
}
}  // namespace

std::string ObjectReferenceText(std::string_view logicalName, int32_t index) {
    std::string text = "(\"";
    text += logicalName;
    text += "\",";
    text += std::to_string(index);
    text += ")";
    return text;
}

std::string WithQuotesDoubled(std::string_view text) {
    return Doubled(Doubled(text, '"'), '\'');
}

std::string WithLineBreaksSpliced(std::string_view text) {
    std::string spliced;
    spliced.reserve(text.size());
    for (const char c : text) {
        if (c == '\n')
            spliced += "\" + ascii(10) + \"";
        else if (c != '\r')
            spliced += c;
    }
    return spliced;
}

}  // namespace trovane
