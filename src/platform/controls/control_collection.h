#pragma once
// The late-bound view of a form's controls: "Count", and "Item" by 0-based position or by name, as
// a host or CommonFunctions::SetCharsetValues walks them.
//
// The view does not keep its form alive: whoever holds on to it (a container that records the
// arguments it was given, say) must not close a reference cycle through the form and its
// container. Once a form owned by a shared reference is gone, the view raises error 91.

#include <memory>

#include "core/object.h"
#include "core/api_begin.h"

namespace trovane {

class Form;

ObjectRef MakeControlCollection(Form& form);

}  // namespace trovane

#include "core/api_end.h"
