#pragma once
// Signed counters that raise the overflow error instead of wrapping.
//
// Indexes that walk value lists are 16-bit and command numbers are 32-bit; crossing the top of
// either range is an error the caller sees, never a silent wrap to a negative number.

#include <cstdint>
#include <limits>

#include "core/error.h"
#include "core/api_begin.h"

namespace trovane {

template <typename T>
T CheckedAdd(T a, T b) {
    T result{};
    if (__builtin_add_overflow(a, b, &result)) throw Error(ErrorNumber::Overflow);
    return result;
}

template <typename T>
T CheckedSubtract(T a, T b) {
    T result{};
    if (__builtin_sub_overflow(a, b, &result)) throw Error(ErrorNumber::Overflow);
    return result;
}

// Narrows a wider integer to T, raising overflow when it does not fit.
template <typename T, typename From>
T CheckedNarrow(From value) {
    if (value < static_cast<From>(std::numeric_limits<T>::min()) ||
        value > static_cast<From>(std::numeric_limits<T>::max()))
        throw Error(ErrorNumber::Overflow);
    return static_cast<T>(value);
}

template <typename T>
class CheckedCounter {
public:
    constexpr CheckedCounter() = default;
    constexpr explicit CheckedCounter(T start) : value_(start) {}

    T operator++() { return value_ = CheckedAdd<T>(value_, T{1}); }
    T operator+=(T step) { return value_ = CheckedAdd<T>(value_, step); }
    T operator--() { return value_ = CheckedSubtract<T>(value_, T{1}); }
    constexpr T Value() const { return value_; }
    constexpr operator T() const { return value_; }  // NOLINT: reads like the plain integer it replaces

private:
    T value_ = 0;
};

using Counter16 = CheckedCounter<int16_t>;
using Counter32 = CheckedCounter<int32_t>;

}  // namespace trovane

#include "core/api_end.h"
