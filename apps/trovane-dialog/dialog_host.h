#pragma once
// DialogHost: the control dialog without its windows.
//
// It owns the in-process server and its connection, the one CommonFunctions object, the host
// container and the sited panels, and runs the dialog's life: Start gives CommonFunctions the start
// information and sites the panels (first server reads, subscriptions); Pump delivers the server's
// queued change notifications; Stop deactivates the panels in reverse order. The front end adds
// the windows, and calls Pump from its event loop.

#include <memory>
#include <string>
#include <vector>

#include "common/common_functions.h"
#include "dialog_options.h"
#include "host_container.h"
#include "panel_sites.h"
#include "sim/simulated_connection.h"

namespace trovane::dialog {

class DialogHost {
  public:
    // Loads the scenario (the built-in demo when the options name none); throws on a bad scenario.
    DialogHost(const DialogOptions& options, PlatformServices platform);
    ~DialogHost();
    DialogHost(const DialogHost&) = delete;
    DialogHost& operator=(const DialogHost&) = delete;

    // Start information, then the panels, in siting order. `frameHandle` is the dialog's window.
    void Start(int32_t frameHandle);
    void Stop();
    // Delivers queued notifications; returns how many items were delivered.
    int32_t Pump();

    CommonFunctions& Functions() { return *functions; }
    HostContainer& Container() { return *container; }
    sim::SimulatedConnection& Connection() { return *connection; }
    sim::SimulatedServer& Server() { return connection->Server(); }
    const std::vector<SitedForm>& Panels() const { return panels; }
    int16_t Application() const { return application; }
    std::string ObjectCaption() const;

  private:
    Variant StartInformation(int32_t frameHandle);
    void SitePanels();

    DialogOptions options;
    PlatformServices platform;
    std::shared_ptr<sim::SimulatedConnection> connection;
    std::unique_ptr<CommonFunctions> functions;
    std::shared_ptr<HostContainer> container;
    std::vector<SitedForm> panels;
    int16_t application = 1;
    bool started = false;
};

// The directory next to the executable that the demo server uses as its installation root, where
// the library's default icons are installed; empty when there is none.
std::string LocalServerRoot(const std::string& executablePath);

}  // namespace trovane::dialog
