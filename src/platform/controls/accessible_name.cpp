#include "platform/controls/accessible_name.h"

#include "platform/controls/form.h"

namespace trovane {

std::string WithoutMnemonic(std::string_view caption) {
    std::string plain;
    plain.reserve(caption.size());
    for (size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;  // the marker goes; "&&" leaves one "&"
        plain += caption[i];
    }
    return plain;
}

std::string AccessibleName(const Control& control) {
    if (!control.Caption().empty()) return WithoutMnemonic(control.Caption());
    if (const Form* form = control.ParentForm()) {
        const Control* previous = nullptr;
        for (const Control* next : form->TabOrder()) {
            if (next == &control) break;
            previous = next;
        }
        if (previous && previous->TypeName() == "Label" && !previous->Caption().empty())
            return WithoutMnemonic(previous->Caption());
    }
    return control.Name();
}

}  // namespace trovane
