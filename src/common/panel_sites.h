#pragma once
// The panels a host sites, as a table.
//
// Each panel is one row: its site name ("Alarms1", "Blocking1", "IndicationBar1", ...), the page of
// the dialog that shows it, how to make it, how to start it (identity, then Init or Activate), how
// to stop it (Deactivate, for a panel that subscribes) and, optionally, what "RefreshSubscriptions"
// asks of it. SitedPanels starts the rows in table order: it makes each panel with the host's
// platform services, gives it the container as its parent, sites it in the container under its
// name and starts it; it stops them in reverse order, unsites them and lets go of them. Adding a
// panel to a dialog is one row and one factory.
//
// A row whose start fails does not stop the dialog: the failure is traced, the panel stays sited
// (an operator sees it, empty) and the rows after it start as usual.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/panel.h"
#include "common/standard_container.h"
#include "core/api_begin.h"

namespace trovane {

// The process object the dialog controls.
struct ObjectIdentity {
    std::string logicalName = "ABC";
    int32_t index = 10;
};

struct SiteContext {
    StandardContainer& container;
    PlatformServices platform;
    Variant connection;
    int16_t application = 1;
    ObjectIdentity object;
};

struct PanelSite {
    std::string name;
    std::string page;  // "" for the area above the pages
    std::function<std::shared_ptr<Panel>(const SiteContext&)> create;
    std::function<void(Panel&, const SiteContext&)> start;
    std::function<void(Panel&)> stop;
    std::function<void(Panel&)> refresh;
    int32_t titleText = 0;  // text identifier of the frame around the panel on its page; 0: none
};

// A row for a panel of type T, made with the host's platform services; the operations take the
// panel as a T.
template <typename T>
PanelSite SiteOf(std::string name, std::string page, std::function<void(T&, const SiteContext&)> start,
                 std::function<void(T&)> stop = nullptr, std::function<void(T&)> refresh = nullptr) {
    PanelSite site{std::move(name),
                   std::move(page),
                   [](const SiteContext& context) { return std::make_shared<T>(context.platform); },
                   [start = std::move(start)](Panel& panel, const SiteContext& context) {
                       if (start) start(static_cast<T&>(panel), context);
                   },
                   nullptr,
                   nullptr,
                   0};
    if (stop) site.stop = [stop = std::move(stop)](Panel& panel) { stop(static_cast<T&>(panel)); };
    if (refresh)
        site.refresh = [refresh = std::move(refresh)](Panel& panel) { refresh(static_cast<T&>(panel)); };
    return site;
}

class SitedPanels {
  public:
    struct Sited {
        PanelSite site;
        std::shared_ptr<Panel> panel;
    };

    SitedPanels() = default;
    SitedPanels(const SitedPanels&) = delete;
    SitedPanels& operator=(const SitedPanels&) = delete;
    ~SitedPanels();

    void Start(const std::vector<PanelSite>& table, const SiteContext& context);
    void Stop();
    // Asks every sited panel that has a refresh for fresh data, in table order.
    void RefreshAll() const;

    const std::vector<Sited>& Panels() const { return sited; }
    // The panel at a site, or nullptr.
    std::shared_ptr<Panel> Find(std::string_view siteName) const;
    template <typename T>
    std::shared_ptr<T> FindAs(std::string_view siteName) const {
        return std::dynamic_pointer_cast<T>(Find(siteName));
    }

  private:
    std::vector<Sited> sited;
    // Held weakly: the host may let go of its container before it stops its panels.
    std::weak_ptr<Object> container;
};

}  // namespace trovane

#include "core/api_end.h"
