#pragma once
// Label: a caption on the form. It takes no input of its own beyond Click.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class Label : public Control {
  public:
    explicit Label(std::string name) : Control(std::move(name), "Label") {}
};

}  // namespace trovane

#include "core/api_end.h"
