#include "panel_sites.h"

#include "alarms/alarms.h"
#include "blocking/blocking.h"
#include "indication/indication_bar.h"
#include "substitution_site.h"
#include "tagout_site.h"

namespace trovane::dialog {

namespace {
constexpr int32_t kAlarmListText = 237;
constexpr int32_t kBlockingText = 196;
constexpr int32_t kBayControlText = 593;
constexpr int32_t kCommunicationText = 382;

PanelSite Titled(PanelSite site, int32_t titleText) {
    site.titleText = titleText;
    return site;
}

PanelSite AlarmSite(bool selectsBlockedSignal) {
    return SiteOf<Alarms>(
        kAlarmSite, "alarms",
        [selectsBlockedSignal](Alarms& alarms, const SiteContext& context) {
            alarms.CanSelectSingleBlocking = selectsBlockedSignal;
            alarms.Activate(context.application, context.connection);
        },
        [](Alarms& alarms) { alarms.Deactivate(); }, [](Alarms& alarms) { alarms.RefreshAlarms(); });
}

PanelSite BlockingSite() {
    return Titled(SiteOf<Blocking>(
                      kBlockingSite, "alarms",
                      [](Blocking& blocking, const SiteContext& context) {
                          blocking.logicalName = context.object.logicalName;
                          blocking.baseIndex = context.object.index;
                          blocking.EnableSingleBlocking();
                          blocking.Init();
                      },
                      nullptr, [](Blocking& blocking) { blocking.RefreshStates(); }),
                  kBlockingText);
}

PanelSite IndicationSite() {
    return SiteOf<IndicationBar>(
        kIndicationSite, kTopArea,
        [](IndicationBar& bar, const SiteContext& context) {
            bar.Activate(context.application, context.object.logicalName,
                         context.container.Settings().userName, context.connection);
        },
        [](IndicationBar& bar) { bar.Deactivate(); });
}
}  // namespace

const std::vector<DialogPage>& DialogPages() {
    static const std::vector<DialogPage> pages = {
        {"alarms", kAlarmListText},
        {"operation", kBayControlText},
        {"communication", kCommunicationText},
        {kSubstitutionPage, kSubstitutionText},
        {kTagoutPage, kTagoutText},
    };
    return pages;
}

const DialogPage* FindDialogPage(std::string_view name) {
    for (const DialogPage& page : DialogPages())
        if (page.name == name) return &page;
    return nullptr;
}

std::string JoinedPageNames(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
    return joined;
}

std::string DialogPageNames() {
    std::vector<std::string> names;
    for (const DialogPage& page : DialogPages()) names.push_back(page.name);
    return JoinedPageNames(names);
}

// The alarm list comes first, above the blocking panel on its page; its selection drives the
// blocking panel, through the container, from the first notification on. The indication bar stands
// above the pages and writes comments under the operator's name. Every other row is there only when
// the object has what it shows (object_features.h).
std::vector<PanelSite> ControlDialogSites(const ObjectFeatures& features) {
    std::vector<PanelSite> sites;
    if (features.alarmList) sites.push_back(AlarmSite(features.blocking));
    if (features.blocking) sites.push_back(BlockingSite());
    sites.push_back(IndicationSite());
    for (auto&& more : {OperationSites(features), CommunicationSites(features)})
        sites.insert(sites.end(), more.begin(), more.end());
    if (features.substitution) sites.push_back(SubstitutionSite());
    if (features.tagout) sites.push_back(TagoutSite());
    return sites;
}

std::vector<std::string> OfferedPages(const ObjectFeatures& features) {
    const std::vector<PanelSite> sites = ControlDialogSites(features);
    std::vector<std::string> offered;
    for (const DialogPage& page : DialogPages())
        for (const PanelSite& site : sites)
            if (site.page == page.name) {
                offered.push_back(page.name);
                break;
            }
    return offered;
}

}  // namespace trovane::dialog
