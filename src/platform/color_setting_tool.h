#pragma once
// The colour-setting tool: a colour scheme configured by named parameters, asked for colours by index.

#include <cstdint>
#include <string>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

class ColorSettingTool {
public:
    virtual ~ColorSettingTool() = default;
    virtual void SetParameter(const std::string& name, const Variant& value) = 0;
    // Reads a parameter; "ColorByIndex" with an index answers a colour (0x00BBGGRR).
    virtual Variant GetParameter(const std::string& name, Variant& index) = 0;
};

}  // namespace trovane

#include "core/api_end.h"
