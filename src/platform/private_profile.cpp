#include "platform/private_profile.h"

#include <algorithm>

#include "core/object.h"

namespace trovane {

namespace {

std::string_view Trimmed(std::string_view text) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view WithoutQuotes(std::string_view value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        return value.substr(1, value.size() - 2);
    return value;
}

}  // namespace

ProfileText::ProfileText(std::string_view text) {
    std::string section;
    bool inSection = false;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        const std::string_view line = Trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.empty() || line.front() == ';') continue;
        if (line.front() == '[') {
            const size_t close = line.find(']');
            section =
                std::string(Trimmed(line.substr(1, close == std::string_view::npos ? line.npos : close - 1)));
            inSection = true;
            continue;
        }
        const size_t equals = line.find('=');
        if (!inSection || equals == std::string_view::npos) continue;
        entries_.push_back({section, std::string(Trimmed(line.substr(0, equals))),
                            std::string(WithoutQuotes(Trimmed(line.substr(equals + 1))))});
    }
}

std::optional<std::string> ProfileText::Value(std::string_view section, std::string_view key) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return EqualsIgnoringCase(entry.section, section) && EqualsIgnoringCase(entry.key, key);
    });
    if (found == entries_.end()) return std::nullopt;
    return found->value;
}

std::vector<std::pair<std::string, std::string>> ProfileText::Section(std::string_view section) const {
    std::vector<std::pair<std::string, std::string>> keys;
    for (const Entry& entry : entries_) {
        if (!EqualsIgnoringCase(entry.section, section)) continue;
        const bool seen = std::any_of(keys.begin(), keys.end(), [&](const auto& known) {
            return EqualsIgnoringCase(known.first, entry.key);
        });
        if (!seen) keys.emplace_back(entry.key, entry.value);
    }
    return keys;
}

size_t GetPrivateProfileString(Files& files, std::string_view section, std::string_view key,
                               std::string_view defaultValue, std::string& buffer, size_t bufferLength,
                               const std::string& fileName) {
    buffer.clear();
    if (bufferLength == 0) return 0;
    const std::optional<std::string> content = files.Read(fileName);
    const std::optional<std::string> value =
        content ? ProfileText(*content).Value(section, key) : std::nullopt;
    const std::string_view text = value ? std::string_view(*value) : defaultValue;
    buffer.assign(text.substr(0, bufferLength - 1));
    return buffer.size();
}

}  // namespace trovane
