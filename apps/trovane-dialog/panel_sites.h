#pragma once
// The panels the control dialog sites, one function each.
//
// Siting a panel means: create it with the dialog's platform services, make the container its
// parent, set its identity and options, site it in the container under its name, and start it
// (Init, or Activate for a panel that subscribes). A new panel is one more function here and one
// more line in DialogHost::SitePanels. Each returns the panel as a form, for the front end to show,
// with the operation that stops it again.

#include <functional>
#include <memory>

#include "host_container.h"
#include "platform/controls/form.h"

namespace trovane::dialog {

struct SitedForm {
    std::shared_ptr<Form> form;
    std::function<void()> stop;  // Deactivate and let go of the container
};

struct SiteContext {
    HostContainer& container;
    Variant containerRef;  // the container as the panels hold it
    const PlatformServices& platform;
    Variant connection;
    int16_t application;
};

SitedForm SiteAlarmPanel(const SiteContext& context);
SitedForm SiteBlockingPanel(const SiteContext& context);

}  // namespace trovane::dialog
