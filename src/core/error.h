#pragma once
// Runtime errors of the classic object runtime, carried as a number and a description.
//
// The panels' rules speak of these errors by number ("an overflow error", "error 438"), and hosts
// that drive the library late-bound compare the numbers, so the numbers are part of the interface.

#include <cstdint>
#include <stdexcept>
#include <string>
#include "core/api_begin.h"

namespace trovane {

enum class ErrorNumber : int32_t {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    MemberNotSupported = 438,
    ArgumentNotOptional = 449,
    DuplicateKey = 457,
};

class Error : public std::runtime_error {
  public:
    Error(int32_t number, std::string description);
    explicit Error(ErrorNumber number);
    Error(ErrorNumber number, const std::string& detail);

    int32_t Number() const { return number_; }
    const std::string& Description() const { return description_; }

  private:
    int32_t number_;
    std::string description_;
};

// The standard description of a numbered runtime error ("Overflow", "Type mismatch", ...).
std::string StandardDescription(ErrorNumber number);

}  // namespace trovane

#include "core/api_end.h"
