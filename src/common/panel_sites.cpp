#include "common/panel_sites.h"

#include <exception>

#include "platform/trace.h"

namespace trovane {

namespace {
void TraceFailure(std::string_view what, const std::string& siteName, const std::exception& failure) {
    DebugInfo("Host: ", what, " of ", siteName, " failed: ", failure.what());
}
}  // namespace

SitedPanels::~SitedPanels() {
    Stop();
}

void SitedPanels::Start(const std::vector<PanelSite>& table, const SiteContext& context) {
    Stop();
    container = context.container.weak_from_this();
    const Variant containerRef(context.container.shared_from_this());
    for (const PanelSite& site : table) {
        std::shared_ptr<Panel> panel = site.create(context);
        panel->SetParent(containerRef);
        context.container.Site(site.name, panel);
        sited.push_back(Sited{site, panel});
        try {
            site.start(*panel, context);
        } catch (const std::exception& failure) {
            TraceFailure("the start", site.name, failure);
        }
    }
}

// Stopping must finish for every panel, whatever one of them raises: the dialog is closing.
void SitedPanels::Stop() {
    const auto host = std::static_pointer_cast<StandardContainer>(container.lock());
    for (auto entry = sited.rbegin(); entry != sited.rend(); ++entry) {
        try {
            if (entry->site.stop) entry->site.stop(*entry->panel);
        } catch (const std::exception& failure) {
            TraceFailure("the stop", entry->site.name, failure);
        }
        if (host) host->Unsite(entry->site.name);
        entry->panel->SetParent(Variant::Nothing());
    }
    sited.clear();
    container.reset();
}

void SitedPanels::RefreshAll() const {
    for (const Sited& entry : std::vector<Sited>(sited))
        if (entry.site.refresh) entry.site.refresh(*entry.panel);
}

std::shared_ptr<Panel> SitedPanels::Find(std::string_view siteName) const {
    for (const Sited& entry : sited)
        if (EqualsIgnoringCase(entry.site.name, siteName)) return entry.panel;
    return nullptr;
}

}  // namespace trovane
