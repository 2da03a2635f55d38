#pragma once
// Bindings of the controls that choose one entry of a list: the combo box and the tab strip.
// The operator's choice goes to the model (ListIndex, ClickTab), which raises the events; the
// widget then shows the model's choice. Every edit of a combo box's free text (typing, paste, undo)
// goes to the model as the operator's edit, which raises Change; the field then shows the model's
// text, and a character that a KeyPress handler discarded never reaches it.

#include "qt/control_binding.h"
#include "core/api_begin.h"

namespace trovane::qt {

class ComboBoxBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorOwn(ControlProperty property) override;
    void MirrorAll() override;
    void AfterInput() override;
    bool WidgetTypes() const override;

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

#include "core/api_end.h"
