// Feeds arbitrary bytes to the wire decoders, as any client of the broker could publish them. A
// decoder must either throw WireError or answer a value; a value must encode back to exactly the
// bytes it came from (the encoding has one form per value), and the message decoders must accept
// or refuse without any other failure.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "net/variant_wire.h"
#include "net/wire_messages.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const trovane::Variant value = trovane::net::DecodeVariant(bytes);
        if (trovane::net::EncodeVariant(value) != bytes) std::abort();
    } catch (const trovane::net::WireError&) {
    }
    try {
        (void)trovane::net::DecodeRequest(bytes);
    } catch (const trovane::net::WireError&) {
    }
    try {
        (void)trovane::net::DecodeResponse(bytes);
    } catch (const trovane::net::WireError&) {
    }
    return 0;
}
