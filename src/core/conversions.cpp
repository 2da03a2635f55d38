#include "core/conversions.h"

#include <cfenv>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "core/error.h"
#include "core/object.h"

namespace trovane {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads "&H1F" / "&O17" integers; returns false when the text is not of that form.
bool ParseRadixInteger(std::string_view text, double& out) {
    if (text.size() < 3 || text[0] != '&') return false;
    const char marker = static_cast<char>(text[1] | 0x20);
    const int radix = marker == 'h' ? 16 : marker == 'o' ? 8 : 0;
    if (radix == 0) return false;
    uint64_t value = 0;
    for (char c : text.substr(2)) {
        int digit = -1;
        if (IsDigit(c))
            digit = c - '0';
        else if (radix == 16 && (c | 0x20) >= 'a' && (c | 0x20) <= 'f')
            digit = (c | 0x20) - 'a' + 10;
        if (digit < 0 || digit >= radix) return false;
        value = value * static_cast<uint64_t>(radix) + static_cast<uint64_t>(digit);
        if (value > 0xFFFFFFFFull) return false;
    }
    // Hex and octal literals are two's-complement 16- or 32-bit values, as the classic runtime reads them.
    if (value <= 0xFFFF && text.size() <= 6)
        out = static_cast<int16_t>(static_cast<uint16_t>(value));
    else
        out = static_cast<int32_t>(static_cast<uint32_t>(value));
    return true;
}

// Reads [sign] digits [. digits] [E [sign] digits], with at least one digit in the mantissa.
bool ParseDecimal(std::string_view text, double& out) {
    size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    size_t digits = 0;
    while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
    }
    if (digits == 0) return false;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        size_t exponentDigits = 0;
        while (i < text.size() && IsDigit(text[i])) ++i, ++exponentDigits;
        if (exponentDigits == 0) return false;
    }
    if (i != text.size()) return false;
    // from_chars reads "." whatever the process locale is (a GUI toolkit may have switched
    // LC_NUMERIC to the user's, where strtod would stop at the point); it takes no leading "+".
    std::string copy(text.front() == '+' ? text.substr(1) : text);
    for (char& c : copy)
        if (c == 'd' || c == 'D') c = 'E';
    const auto [end, error] = std::from_chars(copy.data(), copy.data() + copy.size(), out);
    return error == std::errc() && end == copy.data() + copy.size() && std::isfinite(out);
}

bool TryParseNumber(std::string_view text, double& out) {
    text = TrimBlanks(text);
    if (text.empty()) return false;
    return ParseRadixInteger(text, out) || ParseDecimal(text, out);
}

bool EqualsWord(std::string_view text, std::string_view word) {
    return EqualsIgnoringCase(TrimBlanks(text), word);
}

// Any variant as a double, for the numeric conversions. Strings are parsed, Booleans are -1 / 0.
double NumericValue(const Variant& value) {
    switch (value.Kind()) {
        case VarKind::Empty:
            return 0;
        case VarKind::Null:
            throw Error(ErrorNumber::InvalidUseOfNull);
        case VarKind::Integer:
            return value.AsInteger();
        case VarKind::Long:
            return value.AsLong();
        case VarKind::Single:
            return value.AsSingle();
        case VarKind::Double:
            return value.AsDouble();
        case VarKind::Currency:
            return static_cast<double>(value.AsCurrency().scaled) / 10000.0;
        case VarKind::Date:
            return value.AsDate().serial;
        case VarKind::Boolean:
            return value.AsBoolean() ? -1 : 0;
        case VarKind::String: {
            const std::string& text = value.AsString();
            if (EqualsWord(text, "True")) return -1;
            if (EqualsWord(text, "False")) return 0;
            return ParseNumber(text);
        }
        case VarKind::Object:
        case VarKind::Array:
            break;
    }
    throw Error(ErrorNumber::TypeMismatch);
}

double RoundHalfEven(double value) {
    // nearbyint honours the current rounding mode, which is round-to-nearest-even by default.
    return std::nearbyint(value);
}

template <typename T>
T RoundChecked(double value) {
    if (std::isnan(value)) throw Error(ErrorNumber::Overflow);
    const double rounded = RoundHalfEven(value);
    if (rounded < static_cast<double>(std::numeric_limits<T>::min()) ||
        rounded > static_cast<double>(std::numeric_limits<T>::max()))
        throw Error(ErrorNumber::Overflow);
    return static_cast<T>(rounded);
}

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// Days from 1899-12-30 to the given civil date (proleptic Gregorian calendar).
int64_t DaysFromEpoch(int year, int month, int day) {
    // Days from 0000-03-01 based algorithm (H. Hinnant's days_from_civil).
    year -= month <= 2 ? 1 : 0;
    const int64_t era = (year >= 0 ? year : year - 399) / 400;
    const int64_t yearOfEra = year - era * 400;
    const int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    const int64_t daysFrom1970 = era * 146097 + dayOfEra - 719468;
    return daysFrom1970 + 25569;  // 1899-12-30 is 25569 days before 1970-01-01
}

void CivilFromDays(int64_t serialDays, int& year, int& month, int& day) {
    const int64_t z = serialDays - 25569 + 719468;
    const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
    const int64_t dayOfEra = z - era * 146097;
    const int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t mp = (5 * dayOfYear + 2) / 153;
    day = static_cast<int>(dayOfYear - (153 * mp + 2) / 5 + 1);
    month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    year = static_cast<int>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
}

}  // namespace

double ParseNumber(std::string_view text) {
    double value = 0;
    if (!TryParseNumber(text, value)) throw Error(ErrorNumber::TypeMismatch);
    return value;
}

bool IsNumeric(std::string_view text) {
    double ignored = 0;
    return TryParseNumber(text, ignored);
}

bool IsNumeric(const Variant& value) {
    switch (value.Kind()) {
        case VarKind::Empty:
        case VarKind::Integer:
        case VarKind::Long:
        case VarKind::Single:
        case VarKind::Double:
        case VarKind::Currency:
        case VarKind::Boolean:
            return true;
        case VarKind::String:
            return IsNumeric(std::string_view(value.AsString()));
        default:
            return false;
    }
}

int16_t RoundToInt16(double value) {
    return RoundChecked<int16_t>(value);
}
int32_t RoundToInt32(double value) {
    return RoundChecked<int32_t>(value);
}

int16_t ToInt16(const Variant& value) {
    if (value.Kind() == VarKind::Integer) return value.AsInteger();
    return RoundToInt16(NumericValue(value));
}

int32_t ToInt32(const Variant& value) {
    if (value.Kind() == VarKind::Long) return value.AsLong();
    if (value.Kind() == VarKind::Integer) return value.AsInteger();
    return RoundToInt32(NumericValue(value));
}

float ToSingle(const Variant& value) {
    const double number = NumericValue(value);
    if (std::fabs(number) > std::numeric_limits<float>::max()) throw Error(ErrorNumber::Overflow);
    return static_cast<float>(number);
}

double ToDouble(const Variant& value) {
    return NumericValue(value);
}

Currency ToCurrency(const Variant& value) {
    if (value.Kind() == VarKind::Currency) return value.AsCurrency();
    const double scaled = RoundHalfEven(NumericValue(value) * 10000.0);
    if (!(std::fabs(scaled) < 9.2233720368547758e18)) throw Error(ErrorNumber::Overflow);
    return Currency{static_cast<int64_t>(scaled)};
}

bool ToBool(const Variant& value) {
    switch (value.Kind()) {
        case VarKind::Boolean:
            return value.AsBoolean();
        case VarKind::String: {
            const std::string& text = value.AsString();
            if (EqualsWord(text, "True")) return true;
            if (EqualsWord(text, "False")) return false;
            return ParseNumber(text) != 0;
        }
        default:
            return NumericValue(value) != 0;
    }
}

Date ToDate(const Variant& value) {
    if (value.Kind() == VarKind::Date) return value.AsDate();
    if (value.Kind() == VarKind::String) throw Error(ErrorNumber::TypeMismatch);  // no locale date parsing
    return Date{NumericValue(value)};
}

std::string NumberText(double value) {
    if (value == 0) return "0";
    // to_chars, unlike printf, ignores the process locale: the separator is always ".".
    char buffer[40];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    std::string text(buffer, written.ptr);
    // Split off an exponent, trim trailing zeros of the mantissa, and write the exponent as E+nn.
    std::string exponent;
    if (const auto e = text.find('e'); e != std::string::npos) {
        exponent = text.substr(e);
        text.resize(e);
    }
    if (text.find('.') != std::string::npos) {
        while (text.back() == '0') text.pop_back();
        if (text.back() == '.') text.pop_back();
    }
    if (!exponent.empty()) {
        const int power = std::atoi(exponent.c_str() + 1);
        std::snprintf(buffer, sizeof buffer, "E%c%02d", power < 0 ? '-' : '+', power < 0 ? -power : power);
        text += buffer;
    }
    return text;
}

std::string CurrencyText(Currency value) {
    const bool negative = value.scaled < 0;
    const uint64_t magnitude =
        negative ? static_cast<uint64_t>(-(value.scaled + 1)) + 1 : static_cast<uint64_t>(value.scaled);
    std::string text = std::to_string(magnitude / 10000);
    if (uint64_t fraction = magnitude % 10000; fraction != 0) {
        std::string digits = std::to_string(fraction);
        digits.insert(0, 4 - digits.size(), '0');
        while (digits.back() == '0') digits.pop_back();
        text += "." + digits;
    }
    return negative ? "-" + text : text;
}

std::string ToString(const Variant& value) {
    switch (value.Kind()) {
        case VarKind::Empty:
            return "";
        case VarKind::Null:
            throw Error(ErrorNumber::InvalidUseOfNull);
        case VarKind::Integer:
            return std::to_string(value.AsInteger());
        case VarKind::Long:
            return std::to_string(value.AsLong());
        case VarKind::Single: {
            // Singles show the digits a single holds (7), not the noise of its double widening.
            char buffer[32];
            const auto written =
                std::to_chars(buffer, buffer + sizeof buffer, static_cast<double>(value.AsSingle()),
                              std::chars_format::general, 7);
            double shown = 0;
            std::from_chars(buffer, written.ptr, shown);
            return NumberText(shown);
        }
        case VarKind::Double:
            return NumberText(value.AsDouble());
        case VarKind::Currency:
            return CurrencyText(value.AsCurrency());
        case VarKind::Date:
            return DateText(value.AsDate());
        case VarKind::String:
            return value.AsString();
        case VarKind::Boolean:
            return value.AsBoolean() ? "True" : "False";
        case VarKind::Object:
        case VarKind::Array:
            break;
    }
    throw Error(ErrorNumber::TypeMismatch);
}

Date MakeDate(int year, int month, int day, int hour, int minute, int second) {
    static constexpr int kDaysInMonth[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || hour < 0 || hour > 23 ||
        minute < 0 || minute > 59 || second < 0 || second > 59)
        throw Error(ErrorNumber::InvalidCall);
    const int monthDays = kDaysInMonth[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
    if (day > monthDays) throw Error(ErrorNumber::InvalidCall);
    const double days = static_cast<double>(DaysFromEpoch(year, month, day));
    const double time = (hour * 3600.0 + minute * 60.0 + second) / 86400.0;
    // Before the epoch the fraction counts away from zero: -1.25 is 1899-12-29 06:00.
    return Date{days < 0 ? days - time : days + time};
}

DateParts SplitDate(Date date) {
    const double whole = std::trunc(date.serial);
    int64_t seconds = std::llround(std::fabs(date.serial - whole) * 86400.0);
    int64_t days = static_cast<int64_t>(whole);
    if (seconds >= 86400) {
        seconds -= 86400;
        days += date.serial < 0 ? -1 : 1;
    }
    DateParts parts{};
    CivilFromDays(days, parts.year, parts.month, parts.day);
    parts.hour = static_cast<int>(seconds / 3600);
    parts.minute = static_cast<int>(seconds / 60 % 60);
    parts.second = static_cast<int>(seconds % 60);
    return parts;
}

std::string DateText(Date date) {
    const DateParts p = SplitDate(date);
    char datePart[16];
    char timePart[16];
    std::snprintf(datePart, sizeof datePart, "%04d-%02d-%02d", p.year, p.month, p.day);
    std::snprintf(timePart, sizeof timePart, "%02d:%02d:%02d", p.hour, p.minute, p.second);
    const bool midnight = p.hour == 0 && p.minute == 0 && p.second == 0;
    if (std::trunc(date.serial) == 0 && !midnight) return timePart;
    if (midnight) return datePart;
    return std::string(datePart) + " " + timePart;
}

}  // namespace trovane
