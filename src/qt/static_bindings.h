#pragma once
// Bindings of the controls that mostly show things: label, frame (a group box whose inside holds
// the controls placed in it), picture box, and the timer, which has no widget but a Qt timer that
// ticks the model while it runs.

#include <QTimer>

#include "qt/control_binding.h"
#include "core/api_begin.h"

namespace trovane::qt {

class LabelBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void ShowCaption() override;
};

class FrameBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void ShowCaption() override;
};

class PictureBoxBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
};

class TimerBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;

  private:
    QTimer timer;
};

// Controls without a widget of their own (menus): the model still works, nothing is shown.
class HiddenBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget*) override { return nullptr; }
};

}  // namespace trovane::qt

#include "core/api_end.h"
