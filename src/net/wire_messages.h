#pragma once
// The messages of the request topic and the response topics, each one encoded Variant
// (variant_wire.h): a Variant() array with lower bound 0 and a fixed shape.
//
//   request   (kind String, user String, command String, paths String())
//   response  (result any, status Long)
//
// Kinds: "EXECUTE" runs `command` for `user`; "PING" only asks for an answer; "ITEMS" checks the
// item paths and answers a Long() array with one result per path (0 or the server's status code),
// after the server has published the current value of every known item on its topic. The
// application travels in the topic, the correlation in the MQTT 5 properties.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/variant.h"

namespace trovane::net {

enum class RequestKind { Execute, Ping, Items };

struct Request {
    RequestKind kind = RequestKind::Execute;
    std::string user;
    std::string command;
    std::vector<std::string> paths;
};

struct Response {
    Variant result;
    int32_t status = 0;
};

std::string EncodeRequest(const Request& request);
std::string EncodeResponse(const Response& response);
// Throw WireError for a message that is not well formed or not of the expected shape.
Request DecodeRequest(std::string_view bytes);
Response DecodeResponse(std::string_view bytes);

}  // namespace trovane::net
