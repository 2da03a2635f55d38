#include "factory/class_factory.h"

#include <functional>
#include <memory>
#include <utility>

#include "alarms/alarms.h"
#include "blocking/blocking.h"
#include "common/common_functions.h"
#include "common/mb_icon.h"
#include "core/error.h"
#include "core/object.h"
#include "dialup/dial_up.h"
#include "dialup/update_data.h"
#include "indication/indication_bar.h"
#include "opcounter/misc_functions.h"
#include "operatorplace/operator_place.h"
#include "substitution/substitute.h"
#include "tagout/public_classes.h"
#include "tagout/tagout.h"

namespace trovane {
namespace {

using Creator = std::function<ObjectRef(const PlatformServices&)>;

template <typename PanelClass>
Creator MakePanel() {
    return [](const PlatformServices& platform) { return std::make_shared<PanelClass>(platform); };
}

const std::vector<std::pair<std::string, Creator>>& Registry() {
    static const std::vector<std::pair<std::string, Creator>> registry = {
        {"Alarms", MakePanel<Alarms>()},
        {"Blocking", MakePanel<Blocking>()},
        {"IndicationBar", MakePanel<IndicationBar>()},
        {"MiscFunctions", MakePanel<MiscFunctions>()},
        {"DialUp", MakePanel<DialUp>()},
        {"UpdateData", MakePanel<UpdateData>()},
        {"Tagout", MakePanel<Tagout>()},
        {"OperatorPlace", MakePanel<OperatorPlace>()},
        {"Substitute", MakePanel<Substitute>()},
        // A free-standing icon control: its name is the class name, as a control created alone has.
        {"MBIcon", [](const PlatformServices&) { return std::make_shared<MBIcon>("MBIcon"); }},
        {"CommonFunctions", MakePanel<CommonFunctions>()},
        {"cStrColl",
         [](const PlatformServices& platform) {
             return CreateTagoutObject("cStrColl", platform.messageBox);
         }},
        {"clsTagout",
         [](const PlatformServices& platform) {
             return CreateTagoutObject("clsTagout", platform.messageBox);
         }},
    };
    return registry;
}

}  // namespace

const std::vector<std::string>& RegisteredClassNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const auto& entry : Registry()) all.push_back(entry.first);
        return all;
    }();
    return names;
}

Variant CreateObject(std::string_view className, const PlatformServices& platform) {
    for (const auto& [name, create] : Registry())
        if (EqualsIgnoringCase(name, className)) return Variant(create(platform));
    throw Error(kCannotCreateObject,
                "Cannot create object: no class is registered as \"" + std::string(className) + "\"");
}

}  // namespace trovane
