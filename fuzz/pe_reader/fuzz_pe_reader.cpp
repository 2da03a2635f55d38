// Reads the bytes as a language file, preferring a language taken from the first byte, and looks up
// ids across the whole range of a table that was accepted.
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/pe_string_table.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const uint16_t language = size > 0 ? static_cast<uint16_t>(1024 + data[0]) : 0;
    const auto table = trovane::PeStringTable::Read(std::span<const uint8_t>(data, size), language);
    if (table) {
        for (int32_t id = 0; id < 0x10000; id += 7) (void)table->Load(id);
    }
    return 0;
}
