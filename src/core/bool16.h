#pragma once
// The 16-bit Boolean of the panels' rules: true is -1 (all bits set), false is 0.
//
// Panel code combines rights and flags bitwise ("allowed And anyUnacknowledged"), which only works
// as a logical And when true has every bit set. A Bool16 built from any other non-zero integer (a
// host that answers 1 for "allowed") keeps its bits, so combining it behaves as the classic runtime
// does: 1 And -1 is 1 (true), 1 And 2 is 0 (false).

#include <cstdint>
#include "core/api_begin.h"

namespace trovane {

class Bool16 {
public:
    constexpr Bool16() = default;
    constexpr Bool16(bool value) : bits_(value ? int16_t{-1} : int16_t{0}) {}  // NOLINT: implicit by design
    static constexpr Bool16 FromBits(int16_t bits) {
        Bool16 b;
        b.bits_ = bits;
        return b;
    }

    constexpr int16_t Bits() const { return bits_; }
    constexpr explicit operator bool() const { return bits_ != 0; }

    friend constexpr Bool16 operator&(Bool16 a, Bool16 b) { return FromBits(static_cast<int16_t>(a.bits_ & b.bits_)); }
    friend constexpr Bool16 operator|(Bool16 a, Bool16 b) { return FromBits(static_cast<int16_t>(a.bits_ | b.bits_)); }
    friend constexpr Bool16 operator~(Bool16 a) { return FromBits(static_cast<int16_t>(~a.bits_)); }
    friend constexpr bool operator==(Bool16 a, Bool16 b) { return a.bits_ == b.bits_; }

private:
    int16_t bits_ = 0;
};

inline constexpr Bool16 kTrue16{true};
inline constexpr Bool16 kFalse16{false};

}  // namespace trovane

#include "core/api_end.h"
