#include "common/panel_charset.h"

#include <exception>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"
#include "platform/late_bound.h"

namespace trovane {

namespace {

void SetItemCharset(const Variant& ctrls, int32_t position, int32_t charset) {
    try {
        PutProperty(GetProperty(CallMethod(ctrls, "Item", {position}), "Font"), "Charset", charset);
    } catch (const std::exception&) {
        // A control without a font keeps none.
    }
}

}  // namespace

int32_t FontHelper::SystemCharset() const {
    const std::string codePage = locale_.DefaultAnsiCodePage();
    if (!IsNumeric(std::string_view(codePage))) return 0;
    try {
        const double number = ParseNumber(codePage);
        if (number < 0 || number > 0xFFFF) return 0;
        return locale_.CharsetOfCodePage(static_cast<uint32_t>(number)).value_or(0);
    } catch (const Error&) {
        return 0;
    }
}

void FontHelper::SetCharset(const Variant& ctrls) const {
    const int32_t charset = SystemCharset();
    if (charset == 0) return;
    if (ctrls.IsObject() && !ctrls.IsNothing()) {
        if (auto* form = dynamic_cast<Form*>(ctrls.AsObject().get())) {
            SetCharset(*form);
            return;
        }
    }
    const int32_t count = ToInt32(GetProperty(ctrls, "Count"));
    for (int32_t i = 0; i < count; ++i) SetItemCharset(ctrls, i, charset);
}

void FontHelper::SetCharset(Form& form) const {
    const int32_t charset = SystemCharset();
    if (charset == 0) return;
    for (Control& control : form.Controls())
        if (control.HasFont()) control.SetFontCharset(charset);
}

void CommonFunctions::SetCharsetValues(const Variant& ctrls) {
    FontHelper(*platform_.locale).SetCharset(ctrls);
}

}  // namespace trovane
