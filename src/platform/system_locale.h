#pragma once
// The operator's locale as the operating system sets it for the process environment: its decimal
// separator; the code page and character sets as the portable default has them.

#include "platform/locale.h"
#include "core/api_begin.h"

namespace trovane {

class SystemLocale final : public Locale {
  public:
    // The environment's numeric convention; "." when the environment names no usable locale.
    std::string DecimalSeparator() override;
    std::string DefaultAnsiCodePage() override { return fallback.DefaultAnsiCodePage(); }
    std::optional<int32_t> CharsetOfCodePage(uint32_t codePage) override {
        return fallback.CharsetOfCodePage(codePage);
    }

  private:
    DefaultLocale fallback;
};

}  // namespace trovane

#include "core/api_end.h"
