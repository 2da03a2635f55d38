#pragma once
// A host form for integration tests: panels sited on the demo server through the real command
// channel.
//
// The container is the library's StandardContainer on a real CommonFunctions and an in-process
// SimulatedConnection (so commands are numbered and traced as in production, every right granted),
// with the host actions recorded, except "GetAlarms", which answers the alarm list of the dialog's
// object through the server's alarm-list procedure. A test sites a panel under a member name
// ("Alarms1") with Site, and pumps the connection to deliver the server's notifications, as the
// host's event loop does between operator actions.

#include <memory>
#include <string>

#include "common/command_text.h"
#include "common/standard_container.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "sim/simulated_server.h"
#include "support/recording_host_actions.h"

namespace trovane::testing {

class SimulatedHost : public StandardContainer {
  public:
    explicit SimulatedHost(std::string objectName = "ABC", int32_t objectIndex = 10)
        : SimulatedHost(std::make_shared<sim::SimulatedConnection>(
                            std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase())),
                        std::move(objectName), objectIndex) {}

    Variant AsVariant() { return Variant(shared_from_this()); }
    Variant Server() { return Variant(ObjectRef(connection_)); }
    sim::SimulatedConnection& Connection() { return *connection_; }
    sim::ProcessDatabase& Database() { return connection_->Server().Database(); }
    CommonFunctions& Common() { return Functions(); }

    std::shared_ptr<RecordingHostActions> actions = std::make_shared<RecordingHostActions>();

  private:
    SimulatedHost(std::shared_ptr<sim::SimulatedConnection> connection, std::string objectName,
                  int32_t objectIndex)
        : StandardContainer(
              "frmControlDialog", std::make_shared<CommonFunctions>(),
              ContainerSettings{Variant(ObjectRef(connection)), 1, "operator", UserRights::All()}),
          connection_(std::move(connection)) {
        AnswerHostActions(*this, actions);
        Method("GetAlarms",
               [this, object = ObjectReferenceText(objectName, objectIndex)](std::span<Variant>) {
                   return RunVexlCmd("#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", " + object + ")");
               });
    }

    std::shared_ptr<sim::SimulatedConnection> connection_;
};

}  // namespace trovane::testing
