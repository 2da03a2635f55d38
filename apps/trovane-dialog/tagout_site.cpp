#include "tagout_site.h"

#include "tagout/tagout.h"

namespace trovane::dialog {

// The panel reads the object's tagouts once at start and again on each refresh; what it changes it
// shows at once, so it needs no subscription.
PanelSite TagoutSite() {
    return SiteOf<Tagout>(
        kTagoutSite, kTagoutPage,
        [](Tagout& panel, const SiteContext& context) {
            panel.logicalName = context.object.logicalName;
            panel.baseIndex = context.object.index;
            panel.Init();
            panel.RefreshTagouts();
        },
        [](Tagout& panel) { panel.UnLoadTagoutEditDialog(); }, [](Tagout& panel) { panel.RefreshTagouts(); });
}

}  // namespace trovane::dialog
