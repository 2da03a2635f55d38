#include "common/panel_items.h"

namespace trovane {

namespace {
std::string ApplicationPrefix(int16_t application) {
    return "\\\\APL\\" + std::to_string(application);
}
}  // namespace

std::string ItemPath(int16_t application, const std::string& logicalName, const std::string& attribute) {
    return ApplicationPrefix(application) + "\\P\\" + logicalName + ":" + attribute;
}

std::string IndexedItemPath(int16_t application, const std::string& logicalName, int32_t index,
                            const std::string& attribute) {
    return ApplicationPrefix(application) + "\\P\\" + logicalName + "\\" + std::to_string(index) + ":" +
           attribute;
}

std::string ApplicationItemPath(int16_t application, const std::string& attribute) {
    return ApplicationPrefix(application) + ":" + attribute;
}

}  // namespace trovane
