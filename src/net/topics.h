#pragma once
// The topic layout on the broker. Every topic of one application starts "trovane/<application>/":
//
//   request                        commands and item checks to the server (one server subscribes)
//   reply/<client id>              the answers for one workstation
//   server                         "online" or "offline", retained (the server's will says offline)
//   item/<name>/<index>/<attr>     an attribute's current value, retained: "-" for no index, and
//                                  name "-" for an attribute of the application itself
//
// Names are upper case; a character other than a letter, digit, "_" or "." is written %XX, so no
// name can make a wildcard, a level or the "-" placeholder.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "sim/process_database.h"

namespace trovane::net {

std::string ApplicationTopic(int32_t application);
std::string RequestTopic(int32_t application);
std::string ReplyTopic(int32_t application, std::string_view clientId);
std::string ServerStatusTopic(int32_t application);
std::string ItemTopic(int32_t application, const sim::ItemKey& key);
// The topic of a subscribed item path ("\\APL\1\P\ABC\10:CO"), or nothing for a malformed path.
std::optional<std::string> ItemPathTopic(std::string_view itemPath);
// One topic level made safe: %XX for everything but letters, digits, "_" and ".".
std::string TopicLevel(std::string_view name);

inline constexpr std::string_view kServerOnline = "online";
inline constexpr std::string_view kServerOffline = "offline";

}  // namespace trovane::net
