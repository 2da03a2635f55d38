#pragma once
// A host form for integration tests: panels sited on the demo server through the real command
// channel.
//
// The container answers the members panels ask of a host: the command pair through a real
// CommonFunctions and an in-process SimulatedConnection (so commands are numbered and traced as in
// production), texts and character sets through the same CommonFunctions, every rights query with
// true, and the alarm list of the dialog's object through the server's alarm-list procedure. The
// selection requests of the alarm panel and the subscription refresh are recorded. A test sites a
// panel under a member name ("Alarms1") with Site, and pumps the connection to deliver the
// server's notifications, as the host's event loop does between operator actions.

#include <memory>
#include <string>
#include <vector>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "platform/late_bound.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "sim/simulated_server.h"

namespace trovane::testing {

class SimulatedHost : public DispatchObject {
  public:
    explicit SimulatedHost(std::string objectName = "ABC", int32_t objectIndex = 10)
        : DispatchObject("frmControlDialog"),
          server_(std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase())),
          connection_(std::make_shared<sim::SimulatedConnection>(server_)),
          objectName_(std::move(objectName)),
          objectIndex_(objectIndex) {
        Method("RunVexlCmd",
               [this](std::span<Variant> args) { return RunVexlCmd(ToString(RequiredArgument(args, 0))); });
        Method("RunVexlCmdWithStatus", [this](std::span<Variant> args) {
            int32_t status = ToInt32(RequiredArgument(args, 1));
            Variant result =
                common_.RunVexlCmdGlobalWithStatus(Server(), ToString(RequiredArgument(args, 0)), 1, status);
            args[1] = status;
            return result;
        });
        Method("GetNlsString", [this](std::span<Variant> args) {
            return Variant(common_.GetNlsString(ToInt32(RequiredArgument(args, 0))));
        });
        Method("SetCharsetValues", [this](std::span<Variant> args) {
            common_.SetCharsetValues(RequiredArgument(args, 0));
            return Variant();
        });
        for (const char* right : {"IsUserAuthorized", "IsUserEngineer", "IsAlarmHandlingAllowed",
                                  "IsBlockingHandlingAllowed", "IsSubstitutionHandlingAllowed"})
            Method(right, [](std::span<Variant>) { return Variant(true); });
        Method("GetAlarms", [this](std::span<Variant>) {
            return RunVexlCmd("#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", (\"" + objectName_ + "\"," +
                              std::to_string(objectIndex_) + "))");
        });
        for (const char* request : {"SetBlockedSignal", "SetSingleBlocking", "RefreshSubscriptions"})
            Method(request, [this, name = std::string(request)](std::span<Variant> args) {
                requests.push_back({name, std::vector<Variant>(args.begin(), args.end())});
                return Variant();
            });
    }

    // Makes a panel reachable as a member of the container ("Alarms1").
    void Site(const std::string& member, ObjectRef panel) {
        Property(member, [panel] { return Variant(panel); });
    }

    Variant AsVariant() { return Variant(shared_from_this()); }
    Variant Server() { return Variant(ObjectRef(connection_)); }
    sim::SimulatedConnection& Connection() { return *connection_; }
    sim::ProcessDatabase& Database() { return server_->Database(); }
    CommonFunctions& Common() { return common_; }
    Variant RunVexlCmd(const std::string& command) { return common_.RunVexlCmdGlobal(Server(), command, 1); }

    struct Request {
        std::string member;
        std::vector<Variant> args;
    };
    std::vector<Request> requests;

  private:
    std::shared_ptr<sim::SimulatedServer> server_;
    std::shared_ptr<sim::SimulatedConnection> connection_;
    CommonFunctions common_;
    std::string objectName_;
    int32_t objectIndex_;
};

}  // namespace trovane::testing
