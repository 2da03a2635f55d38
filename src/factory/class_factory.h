#pragma once
// Creation of the library's public classes by their registered names, as a workstation host creates
// them, returned as late-bound objects that answer their members by name.

#include <string>
#include <string_view>
#include <vector>

#include "core/api_begin.h"
#include "core/variant.h"
#include "platform/platform_services.h"

namespace trovane {

// The error number of a name that no class is registered under.
inline constexpr int32_t kCannotCreateObject = 429;

// Every registered name, in the order of the table ("Alarms" ... "clsTagout").
const std::vector<std::string>& RegisteredClassNames();

// A new object of the class registered as `className` (case ignored), held in an object variant.
// Panels are created without a container; a host sets their parent (the container) before Init.
// An unknown name raises kCannotCreateObject with the name in the description.
Variant CreateObject(std::string_view className,
                     const PlatformServices& platform = PlatformServices::Defaults());

}  // namespace trovane

#include "core/api_end.h"
