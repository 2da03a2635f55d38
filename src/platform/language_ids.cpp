#include "platform/language_ids.h"

#include <array>
#include <charconv>
#include <utility>

#include "core/object.h"

namespace trovane {

namespace {
constexpr std::array<std::pair<std::string_view, uint16_t>, 34> kLanguages{{
    {"AR", 1025}, {"BG", 1026}, {"CA", 1027}, {"CS", 1029}, {"DA", 1030}, {"DE", 1031}, {"EL", 1032},
    {"EN", 1033}, {"ES", 1034}, {"ET", 1061}, {"FI", 1035}, {"FR", 1036}, {"HE", 1037}, {"HR", 1050},
    {"HU", 1038}, {"IS", 1039}, {"IT", 1040}, {"JA", 1041}, {"KO", 1042}, {"LT", 1063}, {"LV", 1062},
    {"NL", 1043}, {"NO", 1044}, {"PL", 1045}, {"PT", 1046}, {"RO", 1048}, {"RU", 1049}, {"SK", 1051},
    {"SL", 1060}, {"SV", 1053}, {"TR", 1055}, {"UK", 1058}, {"ZH", 2052}, {"SR", 2074},
}};
}  // namespace

uint16_t LanguageIdForCode(std::string_view code) {
    for (const auto& [name, id] : kLanguages)
        if (EqualsIgnoringCase(name, code)) return id;
    unsigned number = 0;
    const auto [end, error] = std::from_chars(code.data(), code.data() + code.size(), number);
    if (error == std::errc() && end == code.data() + code.size() && number > 0 && number <= 0xFFFF)
        return static_cast<uint16_t>(number);
    return 0;
}

}  // namespace trovane
