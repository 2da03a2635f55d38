#include "substitution/locale_numbers.h"

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/utf8_positions.h"

namespace trovane {

namespace {
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    if (from.empty()) return std::string(text);
    size_t start = 0;
    for (size_t found = text.find(from); found != std::string_view::npos;
         start = found + from.size(), found = text.find(from, start)) {
        result.append(text.substr(start, found - start));
        result.append(to);
    }
    result.append(text.substr(start));
    return result;
}
}  // namespace

LocaleNumbers::LocaleNumbers(std::string separatorIn) : separator(std::move(separatorIn)) {
}

LocaleNumbers LocaleNumbers::Of(Locale& locale) {
    const std::string half = ReplaceAll(NumberText(0.5), ".", locale.DecimalSeparator());
    const size_t second = utf8::ByteOffset(half, 1);
    return LocaleNumbers(half.substr(second, utf8::CharacterSize(half, second)));
}

std::string LocaleNumbers::WithPoint(std::string_view text) const {
    return ReplaceAll(text, separator, ".");
}

std::string LocaleNumbers::WithSeparator(std::string_view text) const {
    return ReplaceAll(text, ".", separator);
}

bool LocaleNumbers::IsNumeric(std::string_view text) const {
    if (separator != "." && text.find('.') != std::string_view::npos) return false;
    return trovane::IsNumeric(std::string_view(WithPoint(text)));
}

float LocaleNumbers::ToSingle(std::string_view text) const {
    if (!IsNumeric(text)) throw Error(ErrorNumber::TypeMismatch);
    return trovane::ToSingle(Variant(WithPoint(text)));
}

std::string LocaleNumbers::Text(const Variant& value) const {
    if (value.IsString()) return value.AsString();
    return WithSeparator(ToString(value));
}

}  // namespace trovane
