#pragma once
// Bindings of the controls the operator presses: command button, check box (grey shows as partly
// checked), option button. Groups of option buttons are the model's business (same container), so
// the radio buttons are not exclusive on their own: each shows exactly the value its model holds.

#include <QAbstractButton>

#include "qt/control_binding.h"

namespace trovane::qt {

class PressableBinding : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    void ShowCaption() override;
    // Connects the button's click to the model's Click.
    void ForwardClicks(QAbstractButton* button);
};

class CommandButtonBinding final : public PressableBinding {
  public:
    using PressableBinding::PressableBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
};

class CheckBoxBinding final : public PressableBinding {
  public:
    using PressableBinding::PressableBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
    void AfterInput() override;
};

class OptionButtonBinding final : public PressableBinding {
  public:
    using PressableBinding::PressableBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
    void AfterInput() override;
};

}  // namespace trovane::qt
