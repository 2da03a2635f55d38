#pragma once
// Reading the arguments of a server procedure call.
//
// Procedures receive their evaluated arguments as variants. An object reference arrives as the
// vector ("ABC",10); requests and names as text. A missing or malformed argument is the caller's
// mistake and fails the command with the status "wrong argument", never with a crash.

#include <cstdint>
#include <span>
#include <string>

#include "core/variant.h"

namespace trovane::sim {

struct ObjectAddress {
    std::string name;  // upper case
    int32_t index = 0;
};

const Variant& Argument(std::span<const Variant> args, size_t position);
std::string TextArgument(std::span<const Variant> args, size_t position);
int32_t IntegerArgument(std::span<const Variant> args, size_t position);
bool BooleanArgument(std::span<const Variant> args, size_t position);
// ("ABC",10): a vector of a name and an integer index.
ObjectAddress ObjectArgument(std::span<const Variant> args, size_t position);

[[noreturn]] void ThrowWrongArgument(const std::string& message);

}  // namespace trovane::sim
