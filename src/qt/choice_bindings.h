#pragma once
// Bindings of the controls that choose one entry of a list: the combo box and the tab strip.
// The operator's choice goes to the model (ListIndex, ClickTab), which raises the events; the
// widget then shows the model's choice.

#include "qt/control_binding.h"

namespace trovane::qt {

class ComboBoxBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
    void AfterInput() override;

  private:
    void ShowItems();
    void ShowChoice();
};

class TabStripBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
    void AfterInput() override;

  private:
    void ShowTabs();
    void ShowSelectedTab();
};

}  // namespace trovane::qt
