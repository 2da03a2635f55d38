#pragma once
// Menu: one entry of a form's menu, with a check mark. It raises Click like a button and has no
// font of its own.

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class Menu : public Control {
  public:
    explicit Menu(std::string name) : Control(std::move(name), "Menu") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;
    bool HasFont() const override { return false; }

    bool Checked() const { return checked_; }
    void SetChecked(bool checked) { Assign(checked_, checked, ControlProperty::Checked); }

  private:
    bool checked_ = false;
};

}  // namespace trovane

#include "core/api_end.h"
