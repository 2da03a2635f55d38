// Feeds arbitrary command text to the Vexl interpreter over the tests' fake server. Whatever the
// text, Execute must return (no crash, no unbounded recursion or memory), a failed command must
// answer Empty, and every answer must be writable as Vexl notation.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "sim/vexl_interpreter.h"
#include "support/fake_vexl_environment.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string command(reinterpret_cast<const char*>(data), size);
    trovane::sim::testing::FakeVexlEnvironment environment;
    trovane::sim::VexlInterpreter interpreter(environment);
    int32_t status = -1;
    const trovane::Variant result = interpreter.Execute(command, status);
    if (status != 0 && !result.IsEmpty()) std::abort();
    if (status != 0 && trovane::sim::StatusCodeName(status).empty()) std::abort();
    (void)trovane::sim::VexlNotation(result);
    return 0;
}
