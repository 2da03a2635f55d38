#pragma once
// Numbers as the operator reads and types them: with the decimal separator of the platform locale.
//
// The separator is the second character of one half written as text in the locale ("0.5", "0,5").
// The server always writes a point; values go to it with a point and come from it with one, so
// every number crosses between the two forms here. Text is numeric in the locale when it is
// numeric once its separators are read as points; in a locale whose separator is not the point, a
// point makes text non-numeric, so "1.5" typed under a comma locale never passes for 15 or 1.5.

#include <string>
#include <string_view>

#include "core/variant.h"
#include "platform/locale.h"
#include "core/api_begin.h"

namespace trovane {

class LocaleNumbers {
  public:
    explicit LocaleNumbers(std::string separator);
    // Asks the locale afresh: the operator's settings may change while a panel is open.
    static LocaleNumbers Of(Locale& locale);

    const std::string& Separator() const { return separator; }

    // Every separator replaced by a point, and the reverse.
    std::string WithPoint(std::string_view text) const;
    std::string WithSeparator(std::string_view text) const;

    bool IsNumeric(std::string_view text) const;
    // The locale's text as a 32-bit float; text that is not numeric raises type mismatch (13).
    float ToSingle(std::string_view text) const;
    // A value in the locale's text form (a Single with its seven digits, text as it stands).
    std::string Text(const Variant& value) const;

  private:
    std::string separator;
};

}  // namespace trovane

#include "core/api_end.h"
