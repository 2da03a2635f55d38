#pragma once
// The connection object: the host's link to the SCADA server, for commands and subscriptions.
//
// The host hands it to the library as an object inside a variant (start information
// "USED_OPC_SERVER", the panels' Activate). A connection implemented in C++ derives from Connection;
// an object of any other class is reached late-bound by the same member names through
// LateBoundConnection, so a host may pass whatever object it has.

#include <cstdint>
#include <memory>
#include <string>

#include "core/object.h"
#include "platform/data_callback.h"
#include "core/api_begin.h"

namespace trovane {

class Connection : public Object {
  public:
    std::string ClassName() const override { return "Connection"; }

    // True when commands can be executed now.
    virtual bool IsReady() = 0;
    // Runs `command` in server application `application`; writes its value and the status (0 = ok).
    virtual void ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                                int32_t& status) = 0;

    // Subscribes the item paths (array of strings) with the parallel client handles (array of 32-bit),
    // of the given item type (0 for plain attribute values) and update rate; writes the new
    // subscription handle and the per-item results.
    virtual void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                          int32_t updateRate, int32_t& subscriptionHandle, Variant& results) = 0;
    // Routes the subscription's changes to `callback` until RemoveItems. The callback is not owned:
    // whoever registers it removes the subscription before the callback goes away.
    virtual void SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) = 0;
    virtual void RemoveItems(int32_t subscriptionHandle) = 0;
    // Sends the subscription's current values again.
    virtual void RefreshItems(int32_t subscriptionHandle, int32_t source, Variant& results) = 0;

    // The same members by name: "IsReady", "ExecuteCommand", "AddItems", "RemoveItems", "RefreshItems".
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;
};

// The connection held by a variant: the object itself when it is a Connection, a late-bound adapter
// over any other object, nullptr for Nothing or a non-object.
std::shared_ptr<Connection> ConnectionOf(const Variant& value);

}  // namespace trovane

#include "core/api_end.h"
