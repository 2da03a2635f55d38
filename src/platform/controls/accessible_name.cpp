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

namespace {
// The rule, given the control that comes before this one in the tab order.
std::string NameAfter(const Control& control, const Control* previous) {
    if (!control.Caption().empty()) return WithoutMnemonic(control.Caption());
    if (previous && previous->TypeName() == "Label" && !previous->Caption().empty())
        return WithoutMnemonic(previous->Caption());
    return control.Name();
}
}  // namespace

std::string AccessibleName(const Control& control) {
    const Control* previous = nullptr;
    if (const Form* form = control.ParentForm()) {
        for (const Control* next : form->TabOrder()) {
            if (next == &control) break;
            previous = next;
        }
    }
    return NameAfter(control, previous);
}

std::vector<NamedControl> AccessibleNames(const Form& form) {
    std::vector<NamedControl> named;
    const Control* previous = nullptr;
    for (const Control* control : form.TabOrder()) {
        named.push_back({control, NameAfter(*control, previous)});
        previous = control;
    }
    return named;
}

}  // namespace trovane
