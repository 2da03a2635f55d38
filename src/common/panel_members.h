#pragma once
// Small helpers for objects that publish their members by name through a DispatchObject.
//
// A late-bound caller may pass too few arguments; RequiredArgument (core/object.h) raises 449 for
// that. Many members are operations without a result, which answer Empty to a late-bound caller.

#include <span>

#include "core/error.h"
#include "platform/late_bound.h"
#include "core/api_begin.h"

namespace trovane {

// Wraps an operation without result as a late-bound method answering Empty.
template <typename F>
DispatchObject::Handler ReturningEmpty(F operation) {
    return [operation](std::span<Variant> args) {
        operation(args);
        return Variant();
    };
}

}  // namespace trovane

#include "core/api_end.h"
