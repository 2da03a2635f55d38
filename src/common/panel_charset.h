#pragma once
// FontHelper: giving controls' fonts the system's ANSI character set.
//
// Texts in the language files are in the system's ANSI code page, and a font shows them correctly
// only with the matching character set. The helper asks the locale for the default ANSI code page,
// translates it into its character set and sets that on every control of a collection. When the
// code page is unknown or cannot be translated the character set is 0 and nothing is changed; a
// control without a font (a timer) is passed over.

#include <cstdint>

#include "core/variant.h"
#include "platform/locale.h"
#include "core/api_begin.h"

namespace trovane {

class Form;

class FontHelper {
  public:
    explicit FontHelper(Locale& locale) : locale_(locale) {}

    // The character set of the system's default ANSI code page, 0 when it cannot be found.
    int32_t SystemCharset() const;

    // Sets the character set on every control of `ctrls`: a form (object), or a collection
    // answering "Count" and "Item" (0-based) whose items answer "Font" with a "Charset".
    void SetCharset(const Variant& ctrls) const;
    void SetCharset(Form& form) const;

  private:
    Locale& locale_;
};

}  // namespace trovane

#include "core/api_end.h"
