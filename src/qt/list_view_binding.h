#pragma once
// Binding of the report-style list view to a tree widget without branches.
//
// Columns, rows, small icons and the ghosted (greyed) state follow the model's change reports: one
// row is updated where the report names one, the whole list is rebuilt otherwise. Selection is the
// model's: a click on a row becomes ClickItem and the navigation keys become the model's PressKey,
// and the widget only shows the row the model selected. A ghosted row is drawn in the disabled
// palette colour with the disabled form of its icon.

#include <vector>

#include <QIcon>

#include "platform/controls/list_view.h"
#include "qt/control_binding.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace trovane::qt {

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
    void ShowColumns();
    int WholePixels(int32_t twips) const;
    void ShowImages();
    void ShowRows();
    void ShowRow(QTreeWidgetItem* row, const ListItem& item);
    void ShowSelection();

    QTreeWidget* tree = nullptr;
    std::vector<QIcon> icons;
    ScopedConnection listConnection;
};

}  // namespace trovane::qt
