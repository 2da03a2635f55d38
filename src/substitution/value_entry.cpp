#include "substitution/value_entry.h"

#include "core/conversions.h"
#include "platform/controls/key_press_codes.h"
#include "platform/controls/utf8_positions.h"

namespace trovane {

bool KeepsTypedCharacter(int32_t code, const LocaleNumbers& numbers, int32_t textLength,
                         int32_t selectionLength) {
    if (code == kMinusCode) return textLength == 0 || selectionLength == textLength;
    if (code == kBackspaceCode) return true;
    const std::string character = utf8::Encode(keypress::CharacterOf(code));
    return (code >= '0' && code <= '9') || (code != 0 && character == numbers.Separator());
}

float BoundValue(const Variant& bound, const LocaleNumbers& numbers) {
    return numbers.ToSingle(numbers.WithSeparator(ToString(bound)));
}

bool IsValueInRange(std::string_view text, const Variant& min, const Variant& max,
                    const LocaleNumbers& numbers) {
    if (!numbers.IsNumeric(text)) return false;
    const float low = BoundValue(min, numbers);
    const float high = BoundValue(max, numbers);
    if (low == 0.0F && high == 0.0F) return true;
    const float value = numbers.ToSingle(text);
    return value >= low && value <= high;
}

}  // namespace trovane
