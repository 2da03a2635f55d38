#pragma once
// The fuzz targets' container: whatever the server is asked, it answers one value.
//
// The fuzz input is Vexl text and its value is that answer, so the corpus can hold every kind of
// Variant a server could send. Commands with a status are refused with a fixed code, so a panel
// also walks its refusal path. Rights are granted, and the members a panel merely notifies its host
// through answer Empty; a target adds whatever else its panels ask for.

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>

#include "core/variant.h"
#include "platform/late_bound.h"
#include "sim/vexl_interpreter.h"
#include "support/fake_vexl_environment.h"

namespace trovane::testing {

inline Variant AnswerOfVexl(const uint8_t* data, size_t size) {
    sim::testing::FakeVexlEnvironment environment;
    sim::VexlInterpreter interpreter(environment);
    int32_t status = 0;
    return interpreter.Execute(std::string(reinterpret_cast<const char*>(data), size), status);
}

inline std::shared_ptr<DispatchObject> AnsweringContainer(const Variant& answer, int32_t refusingStatus,
                                                          std::initializer_list<const char*> grantedRights,
                                                          std::initializer_list<const char*> notifications) {
    auto container = std::make_shared<DispatchObject>("frmFuzz");
    container->Method("RunVexlCmd", [answer](std::span<Variant>) { return answer; });
    container->Method("RunVexlCmdWithStatus", [answer, refusingStatus](std::span<Variant> args) {
        if (args.size() > 1) args[1] = Variant(refusingStatus);
        return answer;
    });
    container->Method("GetNlsString", [](std::span<Variant>) { return Variant("text"); });
    for (const char* right : grantedRights)
        container->Method(right, [](std::span<Variant>) { return Variant(true); });
    for (const char* member : notifications)
        container->Method(member, [](std::span<Variant>) { return Variant(); });
    return container;
}

}  // namespace trovane::testing
