// Keys of new tagouts. The server hands out unique keys; when it cannot, the panel makes one from
// the clock and a random number, so that two operators adding in the same second still differ.

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>

#include "core/conversions.h"
#include "tagout/tagout.h"
#include "tagout/tagout_commands.h"

namespace trovane {

namespace {

void RemoveAll(std::string& text, std::string_view piece) {
    for (size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at))
        text.erase(at, piece.size());
}

std::string DateAndTimeText(Date now) {
    const DateParts parts = SplitDate(now);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d%02d:%02d:%02d", parts.year, parts.month, parts.day,
                  parts.hour, parts.minute, parts.second);
    return text;
}

}  // namespace

// "ID", the date, the time and a number from 1 to 1000, without separators.
std::string Tagout::LocalKeyName() const {
    const Date now = services.Platform().clock->Now();
    std::mt19937 generator(static_cast<uint32_t>(std::abs(std::fmod(now.serial, 1.0)) * 86400000.0));
    const double r = std::uniform_real_distribution<double>(0.0, 1.0)(generator);
    std::string key =
        "ID" + DateAndTimeText(now) + std::to_string(static_cast<int32_t>(std::floor(r * 1000 + 1)));
    for (const std::string_view separator : {".", ":", "-", "/", " ", "AM", "PM"}) RemoveAll(key, separator);
    return key;
}

std::string Tagout::CreateUniqueKeyName() {
    const std::string localKey = LocalKeyName();
    const Variant answer = RunVexlCmd(TagoutIdCommand());
    return CheckTagoutResult(answer, "String", false) ? answer.AsString() : localKey;
}

}  // namespace trovane
