#pragma once
// Frame: a captioned container. Controls placed in it name it as their container; option buttons
// in one frame form one group, and disabling a frame stops operator input to everything inside.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class Frame : public Control {
  public:
    explicit Frame(std::string name) : Control(std::move(name), "Frame") {}
};

}  // namespace trovane

#include "core/api_end.h"
