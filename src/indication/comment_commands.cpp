#include "indication/comment_commands.h"

#include "common/command_text.h"
#include "core/error.h"

namespace trovane {

namespace {
constexpr char kFieldSeparator = '#';
constexpr int32_t kTimePartCount = 6;

std::string Replaced(std::string_view text, char from, std::string_view to) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (c == from)
            result += to;
        else
            result += c;
    }
    return result;
}
}  // namespace

std::optional<CommentFields> SplitCommentValue(std::string_view value) {
    const size_t first = value.find(kFieldSeparator);
    if (first == std::string_view::npos) return std::nullopt;
    const size_t second = value.find(kFieldSeparator, first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    return CommentFields{std::string(value.substr(0, first)),
                         std::string(value.substr(first + 1, second - first - 1)),
                         std::string(value.substr(second + 1))};
}

std::string WithCrLf(std::string_view text) {
    return Replaced(text, '\n', "\r\n");
}

std::string TimeConversionCommand(std::string_view serverTime) {
    return "@t=type_cast(" + std::string(serverTime) +
           ",\"TIME\")\n#return (year(%t),month(%t),day(%t),hour(%t),minute(%t),second(%t))";
}

std::optional<Date> DateFromTimeParts(const Variant& answer) {
    if (!answer.IsArray()) return std::nullopt;
    const VariantArray& parts = answer.AsArray();
    int p[kTimePartCount] = {};
    try {
        for (int32_t i = 0; i < kTimePartCount; ++i) {
            if (!parts.Contains(i + 1) || !parts.At(i + 1).IsNumber()) return std::nullopt;
            p[i] = ToInt32(parts.At(i + 1));
        }
        return MakeDate(p[0], p[1], p[2], p[3], p[4], p[5]);
    } catch (const Error&) {
        return std::nullopt;  // a part beyond 32 bits, or parts that name no date
    }
}

DateParts ClockPartByPart(Clock& clock) {
    DateParts parts{};
    parts.year = SplitDate(clock.Now()).year;
    parts.month = SplitDate(clock.Now()).month;
    parts.day = SplitDate(clock.Now()).day;
    parts.hour = SplitDate(clock.Now()).hour;
    parts.minute = SplitDate(clock.Now()).minute;
    parts.second = SplitDate(clock.Now()).second;
    return parts;
}

std::string TimeStringCommand(const DateParts& now) {
    return "@TIME_STRING=type_cast(pack_time(" + std::to_string(now.year) + "," + std::to_string(now.month) +
           "," + std::to_string(now.day) + "," + std::to_string(now.hour) + "," + std::to_string(now.minute) +
           "," + std::to_string(now.second) + "),\"INTEGER\")\n";
}

// Line feeds are rebuilt by the server, and carriage returns dropped, over the whole command.
std::string SetCommentCommand(std::string_view logicalName, std::string_view userName,
                              std::string_view doubledComment) {
    std::string command = "#SET ";
    command += logicalName;
    command += ":PGC=\"";
    command += userName;
    command += "#'TIME_STRING'#";
    command += doubledComment;
    command += "\"";
    return WithLineBreaksSpliced(command);
}

std::string StatusNameCommand(int32_t status) {
    return "#return status_code_name(" + std::to_string(status) + ")";
}

}  // namespace trovane
