#pragma once
// The wire encoding of Variant: how values cross the network between workstations and the server.
//
// A message is the two bytes "TV", the version byte (1), then one value. A value is its tag byte (the
// VarKind number) and the tag's payload, all integers little-endian:
//
//   0 Empty, 1 Null                     nothing
//   2 Integer                           int16
//   3 Long                              int32
//   4 Single, 5 Double                  IEEE-754 bits, uint32 / uint64 (NaN payloads kept)
//   6 Currency                          int64, the value times 10000
//   7 Date                              IEEE-754 bits of the day serial, uint64
//   8 String                            uint32 byte count, the bytes (UTF-8, not checked)
//   9 Boolean                           one byte, 0 or 1
//   10 Nothing                          nothing (a set object reference cannot travel)
//   11 Array                            element kind byte (ElementKind number), int32 lower bound,
//                                       uint32 element count, then each element as a value
//
// Elements of a typed array carry their tag too and must be of the array's kind (Nothing in an
// object array), so the decoder never converts: what arrives is exactly what was sent. Decoding
// checks everything and throws WireError with the offset of the first fault; it never allocates
// more than the message's size can justify.

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>

#include "core/variant.h"

namespace trovane::net {

inline constexpr uint8_t kWireVersion = 1;
// The largest message either side accepts; larger ones are rejected before they are read.
inline constexpr size_t kMaxWireBytes = 4 * 1024 * 1024;
// Arrays inside arrays, deeper than any server LIST.
inline constexpr int kMaxWireDepth = 32;

class WireError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Throws WireError for a value that cannot travel (a set object reference).
std::string EncodeVariant(const Variant& value);
// Throws WireError for anything that is not exactly one well-formed value of this version.
Variant DecodeVariant(std::span<const std::byte> bytes);
Variant DecodeVariant(std::string_view bytes);

}  // namespace trovane::net
