#include "net/wire_messages.h"

#include "net/variant_wire.h"

namespace trovane::net {

namespace {

constexpr std::string_view kKindNames[] = {"EXECUTE", "PING", "ITEMS"};

const VariantArray& Shape(const Variant& message, size_t count, const char* what) {
    if (!message.IsArray() || message.AsArray().Kind() != ElementKind::Variant ||
        message.AsArray().LowerBound() != 0 || message.AsArray().Size() != count)
        throw WireError(std::string(what) + " is not a Variant() array of " + std::to_string(count) +
                        " elements");
    return message.AsArray();
}

const std::string& Text(const Variant& value, const char* what) {
    if (!value.IsString()) throw WireError(std::string(what) + " is " + TypeName(value) + ", not a String");
    return value.AsString();
}

}  // namespace

std::string EncodeRequest(const Request& request) {
    std::vector<std::string> paths = request.paths;
    return EncodeVariant(
        MakeVariantArray({std::string(kKindNames[static_cast<int>(request.kind)]), request.user,
                          request.command, MakeStringArray(std::move(paths))}));
}

std::string EncodeResponse(const Response& response) {
    return EncodeVariant(MakeVariantArray({response.result, response.status}));
}

Request DecodeRequest(std::string_view bytes) {
    const Variant message = DecodeVariant(bytes);
    const VariantArray& fields = Shape(message, 4, "a request");
    Request request;
    const std::string& kind = Text(fields.At(0), "the request kind");
    bool known = false;
    for (size_t i = 0; i < std::size(kKindNames); ++i)
        if (kind == kKindNames[i]) {
            request.kind = static_cast<RequestKind>(i);
            known = true;
        }
    if (!known) throw WireError("unknown request kind \"" + kind + "\"");
    request.user = Text(fields.At(1), "the user");
    request.command = Text(fields.At(2), "the command");
    const Variant& paths = fields.At(3);
    if (!paths.IsArray() || paths.AsArray().Kind() != ElementKind::String)
        throw WireError("the item paths are " + TypeName(paths) + ", not String()");
    for (const Variant& path : paths.AsArray().Elements()) request.paths.push_back(path.AsString());
    return request;
}

Response DecodeResponse(std::string_view bytes) {
    const Variant message = DecodeVariant(bytes);
    const VariantArray& fields = Shape(message, 2, "a response");
    if (fields.At(1).Kind() != VarKind::Long)
        throw WireError("the status is " + TypeName(fields.At(1)) + ", not a Long");
    return Response{fields.At(0), fields.At(1).AsLong()};
}

}  // namespace trovane::net
