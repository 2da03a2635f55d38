#pragma once
// Small helpers for objects that publish their members by name through a DispatchObject.
//
// A late-bound caller may pass too few arguments; RequiredArgument (core/object.h) raises 449 for
// that. Many members are operations without a result, which answer Empty to a late-bound caller.

#include <cstdint>
#include <span>
#include <string>

#include "core/api_begin.h"
#include "core/conversions.h"
#include "core/error.h"
#include "platform/late_bound.h"

namespace trovane {

// Wraps an operation without result as a late-bound method answering Empty.
template <typename F>
DispatchObject::Handler ReturningEmpty(F operation) {
    return [operation](std::span<Variant> args) {
        operation(args);
        return Variant();
    };
}

// Publishes the identity of the process object a panel works on, which the host sets by name
// before Init: "logicalName" and "baseIndex".
inline void PublishObjectIdentity(DispatchObject& members, std::string& logicalName, int32_t& baseIndex) {
    members.Property(
        "logicalName", [&logicalName] { return Variant(logicalName); },
        [&logicalName](const Variant& v) { logicalName = ToString(v); });
    members.Property(
        "baseIndex", [&baseIndex] { return Variant(baseIndex); },
        [&baseIndex](const Variant& v) { baseIndex = ToInt32(v); });
}

}  // namespace trovane

#include "core/api_end.h"
