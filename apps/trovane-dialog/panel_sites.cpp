#include "panel_sites.h"

#include "alarms/alarms.h"
#include "blocking/blocking.h"

namespace trovane::dialog {

// The alarm list drives the blocking panel: its selected row becomes the blocked signal.
SitedForm SiteAlarmPanel(const SiteContext& context) {
    auto alarms = std::make_shared<Alarms>(context.platform);
    alarms->SetParent(context.containerRef);
    alarms->CanSelectSingleBlocking = true;
    context.container.Site(HostContainer::kAlarmSite, Variant(ObjectRef(alarms)),
                           [alarms] { alarms->RefreshAlarms(); });
    alarms->Activate(context.application, context.connection);
    return {alarms, [alarms] {
                alarms->Deactivate();
                alarms->SetParent(Variant::Nothing());
            }};
}

SitedForm SiteBlockingPanel(const SiteContext& context) {
    auto blocking = std::make_shared<Blocking>(context.platform);
    blocking->SetParent(context.containerRef);
    blocking->logicalName = context.container.Object().logicalName;
    blocking->baseIndex = context.container.Object().index;
    context.container.Site(HostContainer::kBlockingSite, Variant(ObjectRef(blocking)),
                           [blocking] { blocking->RefreshStates(); });
    blocking->EnableSingleBlocking();
    blocking->Init();
    return {blocking, [blocking] { blocking->SetParent(Variant::Nothing()); }};
}

}  // namespace trovane::dialog
