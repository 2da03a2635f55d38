#pragma once
// OptionButton: one choice of a group.
//
// The group is every option button of the same form with the same container (the form itself or
// one frame). Selecting a button (Value true, by code or by the operator) clears the others of its
// group, which report their change but raise no Click, and then raises Click on the selected one.
// Setting the value a button already has raises nothing (the operator's click on the selected
// button does raise Click again); clearing a button by code leaves the group without a selection.
// The operator's mouse click raises Click between MouseDown and MouseUp: a MouseUp handler finds
// the group already changed.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class OptionButton : public Control {
  public:
    explicit OptionButton(std::string name) : Control(std::move(name), "OptionButton") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    bool Value() const { return value_; }
    void SetValue(bool value);
    void Click() override;
    void ClickWithMouse(int16_t button, int16_t shift, float x, float y) override;

  private:
    void ClearSiblings();
    bool value_ = false;
};

}  // namespace trovane

#include "core/api_end.h"
