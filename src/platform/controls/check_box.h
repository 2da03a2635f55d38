#pragma once
// CheckBox: a value of 0 (unchecked), 1 (checked) or 2 (grey).
//
// As in the classic model, setting the value raises Click, whether program code or the operator
// set it: panels rely on that, and guard their Click handlers where they set the value themselves.
// A value that is already set raises nothing. The operator's click unchecks a checked box and
// checks an unchecked or grey one; only code makes a box grey. A mouse click raises MouseDown and
// MouseUp before that Click, as on a command button.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class CheckBox : public Control {
  public:
    static constexpr int16_t Unchecked = 0;
    static constexpr int16_t Checked = 1;
    static constexpr int16_t Grayed = 2;

    explicit CheckBox(std::string name) : Control(std::move(name), "CheckBox") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    int16_t Value() const { return value_; }
    // Values other than 0, 1 and 2 raise error 380 (invalid property value).
    void SetValue(int16_t value);
    void Click() override;

  private:
    int16_t value_ = Unchecked;
};

}  // namespace trovane

#include "core/api_end.h"
