#pragma once
// The requests of OVGR_TAGOUT:C, split by subject, and the tagout error codes.
//
// Tagout requests report failures as answers, not as command status: the answer is then a Long
// error code (5001 and up), which the panel turns into a message with "GET_ERRORMSG". Counts stay
// below 100, so the panel can tell a count from a code.

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "core/variant.h"
#include "sim/procedure_arguments.h"
#include "sim/process_database.h"

namespace trovane::sim {

namespace tagout_error {
inline constexpr int32_t kUnknownObject = 5001;
inline constexpr int32_t kUnknownProperty = 5002;
inline constexpr int32_t kUnknownAttribute = 5003;
inline constexpr int32_t kUnknownTagout = 5004;
inline constexpr int32_t kDuplicateKey = 5005;
inline constexpr int32_t kEmptyKey = 5006;
inline constexpr int32_t kNoClass = 5007;
inline constexpr int32_t kNoActionMethods = 5008;
inline constexpr int32_t kValueTooLong = 5009;
inline constexpr int32_t kUnknownMethod = 5010;
inline constexpr int32_t kTooManyTagouts = 5011;
}  // namespace tagout_error

// The message "GET_ERRORMSG" answers for a code.
std::string TagoutErrorMessage(int32_t code);

// Class queries: "GET_CLASS", "GET_CLASS_ACTIONMETHODS", "GET_CLASS_ATTRIBUTES",
// "GET_CLASS_ATTRIBUTE_PROPERTY", "GET_CLASS_ATTRIBUTE_POSTPROCESSING"; nothing when the request is
// not one of them.
std::optional<Variant> TagoutClassRequest(ProcessDatabase& database, const std::string& request,
                                          std::span<const Variant> args);

// Stores one of the object's tag indication attributes ("TP", "TT", "LB") and, when it changed,
// tells every subscriber of the object.
void SetTagIndication(ProcessDatabase& database, const ObjectAddress& address, const std::string& attribute,
                      const std::function<void(ObjectTagouts&)>& change);

// "EVENT_FUNCTIONS" and "MISC_FUNCTIONS".
Variant TagoutEventFunction(ProcessDatabase& database, std::span<const Variant> args);
Variant TagoutMiscFunction(ProcessDatabase& database, std::span<const Variant> args);

}  // namespace trovane::sim
