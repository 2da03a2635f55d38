#include "substitution/substitution_signal.h"

#include <cmath>

#include "core/conversions.h"

namespace trovane {

namespace {
const Variant kNotAvailable("N/A");
}  // namespace

std::optional<int32_t> WholeNumber(const Variant& value) {
    if (!value.IsNumber() && !(value.IsString() && IsNumeric(std::string_view(value.AsString()))))
        return std::nullopt;
    double number = 0;
    try {
        number = ToDouble(value);
    } catch (const Error&) {
        return std::nullopt;
    }
    if (number != std::floor(number) || std::fabs(number) > 2147483647.0) return std::nullopt;
    return static_cast<int32_t>(number);
}

SubstitutionSignal::SubstitutionSignal(CommonFunctions& listsIn, Variant signalIn)
    : lists(listsIn), signal(std::move(signalIn)) {
}

Variant SubstitutionSignal::Read(const std::string& name, const Variant& defaultValue) const {
    return lists.GetListItemDef(signal, name, defaultValue);
}

Variant SubstitutionSignal::Text() const {
    return Read("TX", kNotAvailable);
}

Variant SubstitutionSignal::Substituted() const {
    return Read("SB", kNotAvailable);
}

Variant SubstitutionSignal::Type() const {
    return Read("PT", int32_t{kUntypedSignal});
}

Variant SubstitutionSignal::StateValue() const {
    return Read("OV", int32_t{-1});
}

Variant SubstitutionSignal::AnalogValue() const {
    return Read("OV", kNotAvailable);
}

Variant SubstitutionSignal::Bound(const std::string& name) const {
    return Read(name, int32_t{0});
}

std::string SubstitutionSignal::StateText(int32_t state) const {
    const Variant texts = Read("STATE_TEXTS", Variant());
    if (!texts.IsArray() || !texts.AsArray().Contains(state)) return "N/A";
    const Variant& text = texts.AsArray().At(state);
    return text.IsArray() || text.IsObject() ? "N/A" : ToString(text);
}

SignalAddress SubstitutionSignal::Address() const {
    return SignalAddress{ToString(Read("LOGICAL_DEVICE", kNotAvailable)),
                         ToString(Read("LOGICAL_NODE", kNotAvailable)),
                         ToString(Read("DATA_OBJECT", kNotAvailable)),
                         ToString(Read("DATA_ATTRIBUTE", kNotAvailable)),
                         ToString(Read("LN", kNotAvailable)),
                         ToString(Read("IX", int32_t{0}))};
}

int32_t SubstitutionSignal::StateCount(const Variant& type) {
    const std::optional<int32_t> pt = WholeNumber(type);
    if (pt == kBinarySignal) return 2;
    if (pt == kDoubleBinarySignal) return 4;
    return 0;
}

}  // namespace trovane
