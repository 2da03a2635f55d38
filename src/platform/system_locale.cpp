#include "platform/system_locale.h"

#include <locale>
#include <stdexcept>

namespace trovane {

// Asked each time: the operator may change the setting while the host runs.
std::string SystemLocale::DecimalSeparator() {
    try {
        const std::locale environment("");
        return std::string(1, std::use_facet<std::numpunct<char>>(environment).decimal_point());
    } catch (const std::runtime_error&) {
        return fallback.DecimalSeparator();
    }
}

}  // namespace trovane
