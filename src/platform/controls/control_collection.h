#pragma once
// The late-bound view of a form's controls: "Count", and "Item" by 0-based position or by name, as
// a host or CommonFunctions::SetCharsetValues walks them.

#include <memory>

#include "core/object.h"

namespace trovane {

class Form;

ObjectRef MakeControlCollection(std::shared_ptr<Form> form);

}  // namespace trovane
