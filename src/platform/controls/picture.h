#pragma once
// A picture as the headless controls hold it: the bytes of an image file (an icon read from disk)
// and a name that says where it came from. The model never decodes the bytes; a front end does
// when it shows them. An empty picture has neither.

#include <cstdint>
#include <string>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

struct Picture {
    std::string name;
    std::vector<uint8_t> bytes;

    bool IsEmpty() const { return name.empty() && bytes.empty(); }
    friend bool operator==(const Picture&, const Picture&) = default;
};

}  // namespace trovane

#include "core/api_end.h"
