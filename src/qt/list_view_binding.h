#pragma once
// Binding of the report-style list view to a tree view without branches.
//
// The rows, icons and ghosting are the ListViewModel's (a table model that reads the headless list
// for the cells on screen); the binding adds what belongs to the widget: the column widths, and the
// selection. Selection is the list's: a click on a row becomes ClickItem and the navigation keys
// become the list's PressKey, and the view only shows the row the list selected.

#include "platform/controls/list_view.h"
#include "qt/control_binding.h"
#include "core/api_begin.h"

class QTreeView;

namespace trovane::qt {

class ListViewModel;

class ListViewBinding final : public ControlBinding {
  public:
    using ControlBinding::ControlBinding;

  protected:
    QWidget* CreateView(QWidget* parent) override;
    void MirrorAll() override;
    bool TakesKey(int16_t keyCode, char32_t character) const override;
    void AfterInput() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    ListView& List() const { return static_cast<ListView&>(Model()); }
    void OnListChanged(ListViewChange change, int32_t position);
    void ShowColumnWidths();
    int WholePixels(int32_t twips) const;
    void ShowSelection();

    QTreeView* tree = nullptr;
    ListViewModel* rows = nullptr;
    ScopedConnection listConnection;
};

}  // namespace trovane::qt

#include "core/api_end.h"
