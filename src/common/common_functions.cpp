#include "common/common_functions.h"

#include "core/keyed_collection.h"

namespace trovane {

CommonFunctions::CommonFunctions(PlatformServices platform) : platform_(std::move(platform)) {}

CommonFunctions::~CommonFunctions() = default;

}  // namespace trovane
