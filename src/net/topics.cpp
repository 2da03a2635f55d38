#include "net/topics.h"

#include "sim/item_path.h"

namespace trovane::net {

std::string TopicLevel(std::string_view name) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string level;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') ||
            byte == '_' || byte == '.') {
            level += c;
        } else {
            level += '%';
            level += kHex[byte >> 4];
            level += kHex[byte & 0x0F];
        }
    }
    return level;
}

std::string ApplicationTopic(int32_t application) {
    return "trovane/" + std::to_string(application) + "/";
}

std::string RequestTopic(int32_t application) {
    return ApplicationTopic(application) + "request";
}

std::string ReplyTopic(int32_t application, std::string_view clientId) {
    return ApplicationTopic(application) + "reply/" + TopicLevel(clientId);
}

std::string ServerStatusTopic(int32_t application) {
    return ApplicationTopic(application) + "server";
}

std::string ItemTopic(int32_t application, const sim::ItemKey& key) {
    return ApplicationTopic(application) + "item/" + (key.name.empty() ? "-" : TopicLevel(key.name)) + "/" +
           (key.index ? std::to_string(*key.index) : "-") + "/" + TopicLevel(key.attribute);
}

std::optional<std::string> ItemPathTopic(std::string_view itemPath) {
    const auto parsed = sim::ParseItemPath(itemPath);
    if (!parsed) return std::nullopt;
    return ItemTopic(parsed->application, parsed->key);
}

}  // namespace trovane::net
