#pragma once
// The language-neutral conversions between variant kinds.
//
// They follow the classic runtime's rules, because the panels' behaviour is defined in its terms:
// - to integers: round half to even ("banker's rounding"), overflow (6) outside the target range,
//   type mismatch (13) for text that is not a number, Null raises invalid use of Null (94);
//   True is -1, Empty is 0.
// - to text: integers without a leading blank, reals with up to 15 significant digits and "." as
//   the decimal separator whatever the locale, Boolean as "True"/"False", Empty as "".
// - to Boolean: numbers are true when non-zero; text "True"/"False" in any case, or numeric text.

#include <cstdint>
#include <string>
#include <string_view>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

int16_t ToInt16(const Variant& value);
int32_t ToInt32(const Variant& value);
float ToSingle(const Variant& value);
double ToDouble(const Variant& value);
Currency ToCurrency(const Variant& value);
std::string ToString(const Variant& value);
bool ToBool(const Variant& value);
Date ToDate(const Variant& value);

// Rounds half to even and checks the range of the target type.
int16_t RoundToInt16(double value);
int32_t RoundToInt32(double value);

// Whether text reads as a number: blanks around, a sign, digits with an optional "." fraction and an
// optional exponent, or "&H" / "&O" integers. Empty text is not numeric.
bool IsNumeric(std::string_view text);
// IsNumeric for any variant: numbers and Booleans are numeric, Empty is numeric (it reads as 0),
// text by the rule above, everything else is not.
bool IsNumeric(const Variant& value);

// Parses numeric text (the IsNumeric forms) or raises type mismatch.
double ParseNumber(std::string_view text);

// Date from its parts; raises invalid call (5) for parts out of range.
Date MakeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
struct DateParts {
    int year, month, day, hour, minute, second;
};
DateParts SplitDate(Date date);
// "yyyy-mm-dd hh:nn:ss"; the date alone when the time is midnight, the time alone on day zero.
std::string DateText(Date date);

// Real numbers as text: up to 15 significant digits, no trailing zeros, "E+nn" for large and
// small magnitudes, "." as separator.
std::string NumberText(double value);
std::string CurrencyText(Currency value);

}  // namespace trovane

#include "core/api_end.h"
