// What a headless host does with the installed library: a command through CommonFunctions over the
// simulated server, then the blocking panel driven only by member name. Exits non-zero on any
// difference, with the reason on stderr.

#include <iostream>
#include <memory>
#include <string>

#include "blocking/blocking.h"
#include "common/common_functions.h"
#include "common/standard_container.h"
#include "core/conversions.h"
#include "core/version.h"
#include "platform/late_bound.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "sim/simulated_server.h"

namespace {

int Fail(const std::string& what) {
    std::cerr << "consumer: " << what << "\n";
    return 1;
}

}  // namespace

int main() {
    using namespace trovane;
    static_assert(TROVANE_VERSION_MAJOR >= 0 && TROVANE_VERSION > 0, "the version header is generated");

    auto connection = std::make_shared<sim::SimulatedConnection>(
        std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()));
    const Variant server{ObjectRef(connection)};
    auto functions = std::make_shared<CommonFunctions>();

    if (ToString(functions->RunVexlCmdGlobal(server, "#return 6 * 7", 1)) != "42")
        return Fail("the command through CommonFunctions did not answer 42");
    if (ToInt32(functions->RunVexlCmdGlobal(server, "#return ABC:PCB10", 1)) != 0)
        return Fail("the demo object starts with control blocked");

    auto host = std::make_shared<StandardContainer>(
        "frmHost", functions, ContainerSettings{server, 1, "operator", UserRights::All()});
    auto blocking = std::make_shared<Blocking>();
    blocking->SetParent(Variant(ObjectRef(host)));
    const Variant panel{ObjectRef(blocking)};
    PutProperty(panel, "logicalName", Variant(std::string("ABC")));
    PutProperty(panel, "baseIndex", Variant(int32_t{10}));
    CallMethod(panel, "Init");
    CallMethod(panel, "SetBlocking",
               {Variant(int16_t{0}), Variant(int16_t{1}), Variant(int16_t{0}), Variant(int16_t{0}),
                Variant(int16_t{0}), Variant(int16_t{0})});
    if (ToInt32(functions->RunVexlCmdGlobal(server, "#return ABC:PCB10", 1)) != 1)
        return Fail("SetBlocking by name did not block control on the server");

    std::cout << "TrovaneCommon " << TROVANE_VERSION_STRING << ": command and blocking panel by name OK\n";
    return 0;
}
