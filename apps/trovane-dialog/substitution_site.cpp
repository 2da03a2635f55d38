#include "substitution_site.h"

#include "substitution/substitute.h"

namespace trovane::dialog {

PanelSite SubstitutionSite() {
    return SiteOf<Substitute>(
        kSubstitutionSite, kSubstitutionPage,
        [](Substitute& panel, const SiteContext& context) {
            panel.logicalName = context.object.logicalName;
            panel.baseIndex = context.object.index;
            panel.Init();
        },
        nullptr, [](Substitute& panel) { panel.initUI(); });
}

}  // namespace trovane::dialog
