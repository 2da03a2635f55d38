#pragma once
// CommandButton: raises Click when the operator presses it (and only while it accepts input); a
// mouse click raises MouseDown, MouseUp and then Click, the space bar only Click.
// A form's default button answers Enter and its cancel button Escape; the front end decides when.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class CommandButton : public Control {
  public:
    explicit CommandButton(std::string name) : Control(std::move(name), "CommandButton") {}

    bool IsDefault() const { return isDefault_; }
    void SetDefault(bool isDefault) { isDefault_ = isDefault; }
    bool IsCancel() const { return isCancel_; }
    void SetCancel(bool isCancel) { isCancel_ = isCancel; }

  private:
    bool isDefault_ = false;
    bool isCancel_ = false;
};

}  // namespace trovane

#include "core/api_end.h"
