#pragma once
// The data-change callback through which the connection object reports subscribed server values.

#include <cstdint>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

class SysDataCallback {
public:
    virtual ~SysDataCallback() = default;

    // `clientHandles` (32-bit integers) and `values` (variants) are arrays with lower bound 0 and
    // `count` elements at the same indexes. The two leading numbers (transaction and subscription
    // handle) and the two trailing arrays (qualities and time stamps) come from the connection and
    // are not needed by the panels.
    virtual void OnDataChange(int32_t transactionId, int32_t subscriptionHandle, int32_t count,
                              const Variant& clientHandles, const Variant& values, const Variant& qualities,
                              const Variant& timeStamps) = 0;
};

}  // namespace trovane

#include "core/api_end.h"
