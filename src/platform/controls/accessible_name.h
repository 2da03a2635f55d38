#pragma once
// The name a screen reader announces for a control.
//
// A control with a caption is named by it, without the access key's marker ("&OK" is "OK", "&&"
// stays one "&"). A control without one (a text box, a list) is named by the label just before it
// in the form's tab order, as the classic forms place a label before the box it describes, and
// failing that by its own name, so that no control is announced as nothing.

#include <string>
#include <string_view>
#include <vector>

#include "core/api_begin.h"
#include "platform/controls/control.h"

namespace trovane {

std::string WithoutMnemonic(std::string_view caption);
std::string AccessibleName(const Control& control);

class Form;
struct NamedControl {
    const Control* control;
    std::string name;
};
// Every control of the form with its name, in tab order, from one pass: a caption changes on every
// notification a label shows, so the names are worked out once per change, not once per control.
std::vector<NamedControl> AccessibleNames(const Form& form);

}  // namespace trovane

#include "core/api_end.h"
