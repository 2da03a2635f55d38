#include "sim/item_path.h"

#include <cctype>
#include <charconv>
#include <string>

#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

bool Consume(std::string_view& text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (size_t i = 0; i < prefix.size(); ++i)
        if (std::toupper(static_cast<unsigned char>(text[i])) != prefix[i]) return false;
    text.remove_prefix(prefix.size());
    return true;
}

std::optional<int32_t> ConsumeNumber(std::string_view& text) {
    int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end == text.data()) return std::nullopt;
    text.remove_prefix(static_cast<size_t>(end - text.data()));
    return number;
}

bool IsName(std::string_view text) {
    if (text.empty()) return false;
    for (char c : text)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_') return false;
    return true;
}

}  // namespace

std::optional<ItemPath> ParseItemPath(std::string_view path) {
    ItemPath item;
    if (!Consume(path, "\\\\APL\\")) return std::nullopt;
    const auto application = ConsumeNumber(path);
    if (!application) return std::nullopt;
    item.application = *application;
    if (Consume(path, "\\P\\")) {
        const size_t colon = path.find(':');
        if (colon == std::string_view::npos) return std::nullopt;
        std::string_view object = path.substr(0, colon);
        path.remove_prefix(colon);
        const size_t separator = object.find('\\');
        item.key.name = UpperName(std::string(object.substr(0, separator)));
        if (!IsName(item.key.name)) return std::nullopt;
        if (separator != std::string_view::npos) {
            std::string_view index = object.substr(separator + 1);
            item.key.index = ConsumeNumber(index);
            if (!item.key.index || !index.empty()) return std::nullopt;
        }
    }
    if (!Consume(path, ":") || !IsName(path)) return std::nullopt;
    item.key.attribute = UpperName(std::string(path));
    return item;
}

}  // namespace trovane::sim
