#include "platform/color_scheme.h"

#include <array>
#include <optional>

#include "core/conversions.h"
#include "core/error.h"
#include "core/object.h"
#include "platform/private_profile.h"

namespace trovane {

namespace {

// The sixteen classic console colours, as 0x00BBGGRR.
constexpr std::array<int32_t, 16> kClassicColors = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
};

constexpr const char* kParameterNames[] = {"UserName", "Language", "ApplicationNumber", "UserFolder",
                                           "AppFolder"};

std::optional<std::string> KnownParameter(const std::string& name) {
    for (const char* known : kParameterNames)
        if (EqualsIgnoringCase(name, known)) return std::string(known);
    return std::nullopt;
}

int32_t HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// "#RRGGBB" as written on the web, turned into the platform's 0x00BBGGRR.
std::optional<int32_t> WebColor(const std::string& text) {
    if (text.size() != 7 || text[0] != '#') return std::nullopt;
    int32_t rgb = 0;
    for (size_t i = 1; i < text.size(); ++i) {
        const int32_t digit = HexDigit(text[i]);
        if (digit < 0) return std::nullopt;
        rgb = rgb * 16 + digit;
    }
    return ((rgb & 0xFF) << 16) | (rgb & 0xFF00) | ((rgb >> 16) & 0xFF);
}

// A colour written as "#RRGGBB", "&HBBGGRR" or a decimal number; nothing for anything else.
std::optional<int32_t> ColorOf(const std::string& text) {
    if (auto web = WebColor(text)) return web;
    if (!IsNumeric(std::string_view(text))) return std::nullopt;
    try {
        return ToInt32(Variant(text));
    } catch (const Error&) {
        return std::nullopt;
    }
}

std::optional<int32_t> IndexOf(const std::string& key) {
    if (!IsNumeric(std::string_view(key))) return std::nullopt;
    try {
        return ToInt16(Variant(key));
    } catch (const Error&) {
        return std::nullopt;
    }
}

}  // namespace

ColorScheme::ColorScheme(std::shared_ptr<Files> files) : files_(std::move(files)) {
    Initialize();
}

void ColorScheme::SetParameter(const std::string& name, const Variant& value) {
    if (EqualsIgnoringCase(name, "Initialize")) {
        if (!EqualsIgnoringCase(ToString(value), "ColorScheme"))
            throw Error(ErrorNumber::InvalidCall, "Initialize " + ToString(value));
        Initialize();
        ReadSchemeFile(parameters_["AppFolder"]);
        ReadSchemeFile(parameters_["UserFolder"]);
        return;
    }
    const auto known = KnownParameter(name);
    if (!known) throw Error(ErrorNumber::InvalidCall, name);
    parameters_[*known] = value;
}

Variant ColorScheme::GetParameter(const std::string& name, Variant& index) {
    if (EqualsIgnoringCase(name, "ColorByIndex")) {
        const auto found = colors_.find(ToInt16(index));
        return found != colors_.end() ? found->second : otherColor_;
    }
    const auto known = KnownParameter(name);
    if (!known) throw Error(ErrorNumber::InvalidCall, name);
    return parameters_[*known];
}

void ColorScheme::Initialize() {
    colors_.clear();
    for (size_t i = 0; i < kClassicColors.size(); ++i) colors_[static_cast<int32_t>(i)] = kClassicColors[i];
    otherColor_ = kDefaultColor;
}

// Lines that are not an index with a colour are skipped: a scheme file never stops the dialog.
void ColorScheme::ReadSchemeFile(const Variant& folder) {
    if (!folder.IsString() || folder.AsString().empty() || !files_) return;
    const std::optional<std::string> content = files_->Read(folder.AsString() + "ColorScheme.ini");
    if (!content) return;
    for (const auto& [key, value] : ProfileText(*content).Section("ColorByIndex")) {
        const std::optional<int32_t> color = ColorOf(value);
        if (!color) continue;
        if (EqualsIgnoringCase(key, "Other")) {
            otherColor_ = *color;
        } else if (const auto index = IndexOf(key)) {
            colors_[*index] = *color;
        }
    }
}

}  // namespace trovane
