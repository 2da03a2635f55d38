#pragma once
// The runtime error number an action raises, or 0 when it raises none: most rules of the library
// are stated as "raises error N", and this lets a test say so in one line.

#include <cstdint>
#include <functional>

#include "core/error.h"

namespace trovane::testing {

inline int32_t ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

}  // namespace trovane::testing
