#pragma once
// Bindings of the controls the operator presses: command button, check box (grey shows as partly
// checked), option button. Groups of option buttons are the model's business (same container), so
// the radio buttons are not exclusive on their own: each shows exactly the value its model holds.
//
// The model, not Qt, orders the events of a mouse click: the binding keeps the mouse from the
// button, and when the button is released over the control it has the model raise the whole
// classic sequence (ClickWithMouse); released elsewhere, only MouseDown and MouseUp. The keyboard's
// click (space bar, access key) reaches the model as a plain Click.

#include <QAbstractButton>

#include "qt/control_binding.h"
#include "core/api_begin.h"

namespace trovane::qt {

class PressableBinding : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    void ShowCaption() override;
    // Connects the button's keyboard click to the model's Click.
    void ForwardClicks(QAbstractButton* button);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Press(QEvent* event);
    void Release(QEvent* event);

    Qt::MouseButton pressed = Qt::NoButton;
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

#include "core/api_end.h"
