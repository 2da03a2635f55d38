#include "tagout/tagout.h"

namespace trovane {

Tagout::Tagout(PlatformServices platform)
    : Panel("Tagout", std::move(platform)),
      clsActiveTagouts(std::make_shared<clsTagout>(services.Platform().messageBox)),
      colChangedAttrNames(std::make_shared<cStrColl>(services.Platform().messageBox)) {
    RegisterMembers();
}

}  // namespace trovane
