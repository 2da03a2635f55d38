#pragma once
// DialogHost: the control dialog without its windows.
//
// It owns the in-process server and its connection, the one CommonFunctions object, the container
// (the library's standard members, the dialog's sites and its host actions) and the sited panels,
// and runs the dialog's life: Start gives CommonFunctions the start information and starts the
// table of sites in order (first server reads, subscriptions); Pump delivers the server's queued
// change notifications; Stop stops the panels in reverse order. The front end adds the windows,
// and calls Pump from its event loop.

#include <memory>
#include <string>
#include <vector>

#include "common/common_functions.h"
#include "common/panel_sites.h"
#include "common/standard_container.h"
#include "demo_host_actions.h"
#include "dialog_options.h"
#include "net/network_connection.h"
#include "panel_sites.h"
#include "sim/simulated_connection.h"

namespace trovane::dialog {

class DialogHost {
  public:
    // Loads the scenario (the built-in demo when the options name none); throws on a bad scenario.
    DialogHost(const DialogOptions& options, PlatformServices platform);
    // On a database already loaded from the options' scenario (by a caller that looked into it first).
    DialogHost(const DialogOptions& options, PlatformServices platform,
               std::unique_ptr<sim::ProcessDatabase> database);
    ~DialogHost();
    DialogHost(const DialogHost&) = delete;
    DialogHost& operator=(const DialogHost&) = delete;

    // Start information, then the panels, in siting order. `frameHandle` is the dialog's window.
    void Start(int32_t frameHandle);
    void Stop();
    // Delivers queued notifications; returns how many items were delivered.
    int32_t Pump();

    CommonFunctions& Functions() { return *functions; }
    StandardContainer& Container() { return *container; }
    DemoHostActions& Actions() { return *actions; }
    sim::SimulatedConnection& Connection() { return *connection; }
    // The connection to trovane-server with --server, else null.
    net::NetworkConnection* Network() { return network.get(); }
    sim::SimulatedServer& Server() { return connection->Server(); }
    const SitedPanels& Panels() const { return panels; }
    int16_t Application() const { return application; }
    std::string ObjectCaption() const;

  private:
    Variant StartInformation(int32_t frameHandle);
    // What the panels work through: the network connection with --server, else the in-process one.
    Variant ServerConnection() const;

    DialogOptions options;
    PlatformServices platform;
    std::shared_ptr<sim::SimulatedConnection> connection;
    // With --server the local scenario only shapes the dialog (its pages, the caption).
    std::shared_ptr<net::NetworkConnection> network;
    std::shared_ptr<CommonFunctions> functions;
    std::shared_ptr<StandardContainer> container;
    std::shared_ptr<DemoHostActions> actions;
    SitedPanels panels;
    int16_t application = 1;
    bool started = false;
};

// The directory the demo server uses as its installation root: the library's default icons and the
// demo application's configuration (FrameWindow.ini, the colour scheme); empty when there is none.
std::string LocalServerRoot(const std::string& executablePath);

}  // namespace trovane::dialog
