#include "tagout/public_classes.h"

#include "tagout/cls_tagout.h"
#include "tagout/str_coll.h"

namespace trovane {

ObjectRef CreateTagoutObject(std::string_view className, std::shared_ptr<MessageBox> messageBox) {
    if (EqualsIgnoringCase(className, "cStrColl")) return std::make_shared<cStrColl>(std::move(messageBox));
    if (EqualsIgnoringCase(className, "clsTagout")) return std::make_shared<clsTagout>(std::move(messageBox));
    return nullptr;
}

}  // namespace trovane
