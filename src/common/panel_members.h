#pragma once
// Small helpers for panels that publish their members by name through a DispatchObject.
//
// A late-bound caller may pass too few arguments; that is an invalid call (5), not a crash. Many
// members are operations without a result, which answer Empty to a late-bound caller.

#include <span>

#include "core/error.h"
#include "platform/late_bound.h"

namespace trovane {

inline const Variant& RequiredArgument(std::span<Variant> args, size_t i) {
    if (i >= args.size()) throw Error(ErrorNumber::InvalidCall, "argument missing");
    return args[i];
}

// Wraps an operation without result as a late-bound method answering Empty.
template <typename F>
DispatchObject::Handler ReturningEmpty(F operation) {
    return [operation](std::span<Variant> args) {
        operation(args);
        return Variant();
    };
}

}  // namespace trovane
