#include "platform/connection.h"

#include "core/conversions.h"
#include "core/error.h"
#include "platform/late_bound.h"

namespace trovane {

namespace {

Variant& Arg(std::span<Variant> args, size_t index) {
    return RequiredArgument(args, index);
}

// Any object reached by the connection's member names.
class LateBoundConnection final : public Connection {
  public:
    explicit LateBoundConnection(Variant target) : target_(std::move(target)) {}

    std::string ClassName() const override { return target_.AsObject()->ClassName(); }
    bool IsReady() override { return ToBool(GetProperty(target_, "IsReady")); }
    void ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                        int32_t& status) override {
        Variant args[] = {application, command, Variant(), status};
        CallMethod(target_, "ExecuteCommand", args);
        result = std::move(args[2]);
        status = ToInt32(args[3]);
    }
    void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                  int32_t updateRate, int32_t& subscriptionHandle, Variant& results) override {
        Variant args[] = {clientHandles, itemPaths, itemType, updateRate, subscriptionHandle, Variant()};
        CallMethod(target_, "AddItems", args);
        subscriptionHandle = ToInt32(args[4]);
        results = std::move(args[5]);
    }
    void SetCallback(SysDataCallback*, int32_t) override {
        // A late-bound connection cannot take a C++ callback; hosts that subscribe pass a Connection.
        throw Error(ErrorNumber::MemberNotSupported, "SetCallback");
    }
    void RemoveItems(int32_t subscriptionHandle) override {
        CallMethod(target_, "RemoveItems", {subscriptionHandle});
    }
    void RefreshItems(int32_t subscriptionHandle, int32_t source, Variant& results) override {
        Variant args[] = {subscriptionHandle, source, Variant()};
        CallMethod(target_, "RefreshItems", args);
        results = std::move(args[2]);
    }

  private:
    Variant target_;
};

}  // namespace

Variant Connection::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (EqualsIgnoringCase(member, "IsReady")) return IsReady();
    if (kind != CallKind::Method) return Object::Invoke(member, kind, args);
    if (EqualsIgnoringCase(member, "ExecuteCommand")) {
        int32_t status = ToInt32(Arg(args, 3));
        ExecuteCommand(ToInt16(Arg(args, 0)), ToString(Arg(args, 1)), Arg(args, 2), status);
        args[3] = status;
        return Variant();
    }
    if (EqualsIgnoringCase(member, "AddItems")) {
        int32_t handle = 0;
        AddItems(Arg(args, 0), Arg(args, 1), ToInt32(Arg(args, 2)), ToInt32(Arg(args, 3)), handle,
                 Arg(args, 5));
        args[4] = handle;
        return Variant();
    }
    if (EqualsIgnoringCase(member, "RemoveItems")) {
        RemoveItems(ToInt32(Arg(args, 0)));
        return Variant();
    }
    if (EqualsIgnoringCase(member, "RefreshItems")) {
        RefreshItems(ToInt32(Arg(args, 0)), ToInt32(Arg(args, 1)), Arg(args, 2));
        return Variant();
    }
    return Object::Invoke(member, kind, args);
}

std::shared_ptr<Connection> ConnectionOf(const Variant& value) {
    if (!value.IsObject() || value.IsNothing()) return nullptr;
    if (auto connection = std::dynamic_pointer_cast<Connection>(value.AsObject())) return connection;
    return std::make_shared<LateBoundConnection>(value);
}

}  // namespace trovane
