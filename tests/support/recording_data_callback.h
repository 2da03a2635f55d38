#pragma once
// A data-change callback that keeps every notification it receives, for subscription tests.

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/data_callback.h"

namespace trovane::testing {

class RecordingDataCallback final : public SysDataCallback {
  public:
    struct Change {
        int32_t clientHandle;
        Variant value;
    };
    struct Notification {
        int32_t subscriptionHandle;
        std::vector<Change> changes;
    };

    void OnDataChange(int32_t, int32_t subscriptionHandle, int32_t count, const Variant& clientHandles,
                      const Variant& values, const Variant&, const Variant&) override {
        Notification notification{subscriptionHandle, {}};
        for (int32_t i = 0; i < count; ++i)
            notification.changes.push_back({clientHandles.AsArray().At(i).AsLong(), values.AsArray().At(i)});
        notifications.push_back(std::move(notification));
        if (onChange) onChange();
    }

    // Every change received for one client handle, in order.
    std::vector<Variant> ValuesOf(int32_t clientHandle) const {
        std::vector<Variant> values;
        for (const auto& notification : notifications)
            for (const auto& change : notification.changes)
                if (change.clientHandle == clientHandle) values.push_back(change.value);
        return values;
    }

    std::vector<Notification> notifications;
    std::function<void()> onChange;
};

}  // namespace trovane::testing
