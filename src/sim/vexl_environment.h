#pragma once
// What the Vexl interpreter needs of the server around it.
//
// The interpreter (vexl_interpreter.h) parses and evaluates command text; everything that touches
// server state goes through this interface, which the process database implements (server.h). Object
// notation is split before it reaches here: in `ABC:PCV10` the object name is "ABC", the object type
// letter 'P', the attribute "CV" and the index 10; in `APL:BNA` the name "APL", type 'B', attribute
// "NA", no index; in `BGU_BLOCK:C` the name "BGU_BLOCK", type 'C', no attribute (a procedure).
// Names arrive upper-cased (Vexl names are case-insensitive).
//
// Failures are reported by throwing VexlStatus with the server status code; the interpreter turns
// it into the command's non-zero status.

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane::sim {

// A server status code (non-zero) raised while executing a command.
class VexlStatus : public std::runtime_error {
public:
    VexlStatus(int32_t code, const std::string& what) : std::runtime_error(what), code_(code) {}
    int32_t Code() const { return code_; }

private:
    int32_t code_;
};

struct ObjectReference {
    std::string name;            // "ABC"
    char type = 'P';             // 'P' process object, 'B' base system object, 'C' command procedure, ...
    std::string attribute;       // "CV"; empty for a bare procedure reference
    std::optional<int32_t> index;  // 10 in ABC:PCV10
};

class VexlEnvironment {
public:
    virtual ~VexlEnvironment() = default;

    // Reads and writes object attributes (`#return ABC:PGC`, `#SET ABC:PAR10=1`).
    virtual Variant ReadAttribute(const ObjectReference& ref) = 0;
    virtual void WriteAttribute(const ObjectReference& ref, const Variant& value) = 0;

    // Calls a command procedure (`do(BGU_BLOCK:C, arg1, ...)`) with its evaluated arguments.
    virtual Variant CallProcedure(const ObjectReference& procedure, std::span<const Variant> args) = 0;

    // Server functions that depend on server state (PATH, fm_vexl_directory, ...). Returns nothing
    // when the environment does not know the function, so the interpreter can try its own built-ins.
    virtual std::optional<Variant> CallFunction(const std::string& upperName, std::span<const Variant> args) = 0;

    // The time now, for functions that default to it.
    virtual Date Now() = 0;
};

// Status codes the simulated server uses (values chosen for this server; status_code_name names them).
namespace status {
inline constexpr int32_t kSyntaxError = 2001;             // "VEXL_SYNTAX_ERROR"
inline constexpr int32_t kUnknownFunction = 2002;         // "VEXL_UNKNOWN_FUNCTION"
inline constexpr int32_t kUnknownObject = 2003;           // "VEXL_UNKNOWN_OBJECT"
inline constexpr int32_t kUnknownAttribute = 2004;        // "VEXL_UNKNOWN_ATTRIBUTE"
inline constexpr int32_t kUnknownVariable = 2005;         // "VEXL_UNKNOWN_VARIABLE"
inline constexpr int32_t kWrongArgument = 2006;           // "VEXL_WRONG_ARGUMENT"
inline constexpr int32_t kTypeMismatch = 2007;            // "VEXL_TYPE_MISMATCH"
inline constexpr int32_t kIndexOutOfRange = 2008;         // "VEXL_INDEX_OUT_OF_RANGE"
inline constexpr int32_t kTooDeep = 2009;                 // "VEXL_EXPRESSION_TOO_DEEP"
inline constexpr int32_t kNotReady = 2010;                // "VEXL_SERVER_NOT_READY"
inline constexpr int32_t kProcedureFailed = 2011;         // "VEXL_PROCEDURE_FAILED"
inline constexpr int32_t kValueTooLarge = 2012;           // "VEXL_VALUE_TOO_LARGE"
}  // namespace status

}  // namespace trovane::sim

#include "core/api_end.h"
