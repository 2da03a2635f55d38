#include "common/panel_captions.h"

#include <algorithm>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"
#include "platform/late_bound.h"

namespace trovane {

TextSource ContainerTexts(Variant container) {
    return [container = std::move(container)](int32_t id) {
        return ToString(CallMethod(container, "GetNlsString", {id}));
    };
}

TextSource CommonFunctionsTexts(CommonFunctions& functions) {
    return [&functions](int32_t id) { return functions.GetNlsString(id); };
}

void SetCaptionsFromTags(Form& form, const TextSource& texts, std::span<const std::string_view> kinds) {
    for (Control& control : form.Controls()) {
        if (control.Tag().empty() || std::find(kinds.begin(), kinds.end(), control.TypeName()) == kinds.end())
            continue;
        try {
            control.SetCaption(texts(ToInt32(Variant(control.Tag()))));
        } catch (const Error&) {
            // Not a text identifier, or no text to be had: the designed caption stays.
        }
    }
}

}  // namespace trovane
