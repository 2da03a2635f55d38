#include "qt/list_view_binding.h"

#include <cmath>

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

#include "qt/list_view_model.h"

namespace trovane::qt {

QWidget* ListViewBinding::CreateView(QWidget* parent) {
    tree = new QTreeView(parent);
    rows = new ListViewModel(List(), tree->palette().brush(QPalette::Disabled, QPalette::Text), tree);
    tree->setModel(rows);
    tree->setRootIsDecorated(false);
    tree->setItemsExpandable(false);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree->setIconSize(QSize(16, 16));
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionsMovable(false);
    tree->header()->setSectionResizeMode(QHeaderView::Interactive);
    tree->viewport()->installEventFilter(this);
    listConnection = List().onListChanged.Connect([this](ListViewChange change, int32_t position) {
        Mirroring([&] { OnListChanged(change, position); });
    });
    return tree;
}

void ListViewBinding::MirrorAll() {
    ControlBinding::MirrorAll();
    ShowColumnWidths();
    ShowSelection();
}

void ListViewBinding::OnListChanged(ListViewChange change, int32_t position) {
    rows->OnListChanged(change, position);
    switch (change) {
        case ListViewChange::ColumnAdded:
        case ListViewChange::ColumnChanged:
        case ListViewChange::ColumnsCleared:
            ShowColumnWidths();
            break;
        case ListViewChange::SelectionChanged:
        case ListViewChange::RowRemoved:  // the view moves its selection off a removed row by itself
        case ListViewChange::RowsCleared:
            ShowSelection();
            break;
        default:
            break;
    }
}

// Widths are rounded down: rounding each column to the nearest pixel could add up to more than the
// list is wide and show a scroll bar the model's layout does not have.
void ListViewBinding::ShowColumnWidths() {
    const ListView& list = List();
    for (int32_t position = 1; position <= list.ColumnCount(); ++position) {
        const int width = WholePixels(list.Column(position).width);
        if (tree->columnWidth(position - 1) != width) tree->setColumnWidth(position - 1, width);
    }
}

int ListViewBinding::WholePixels(int32_t twips) const {
    return static_cast<int>(std::floor(static_cast<double>(twips) / Twips(1, true)));
}

void ListViewBinding::ShowSelection() {
    const ListItem* selected = List().SelectedItem();
    if (!selected) {
        tree->clearSelection();
        return;
    }
    rows->AnnounceAppendedRows();  // the selected row may have just been added
    const QModelIndex row = rows->index(selected->Index() - 1, 0);
    if (!row.isValid()) return;
    tree->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    tree->selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    tree->scrollTo(row);
}

// The navigation keys move the model's selection; the tree must not move its own.
bool ListViewBinding::TakesKey(int16_t keyCode, char32_t) const {
    return keyCode >= 33 && keyCode <= 40;
}

void ListViewBinding::AfterInput() {
    ShowSelection();
}

// A press on the rows area is the operator choosing a row: the model selects it and raises its
// events; the tree's own selection handling never sees the press. The mouse events still reach the
// model through the base filter.
bool ListViewBinding::eventFilter(QObject* watched, QEvent* event) {
    if (tree && watched == tree->viewport()) {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            const QModelIndex row = tree->indexAt(mouse->position().toPoint());
            ControlBinding::eventFilter(watched, event);
            if (row.isValid() && mouse->button() == Qt::LeftButton) {
                const int index = row.row() + 1;
                Input([&] { List().ClickItem(index); });
            }
            tree->setFocus(Qt::MouseFocusReason);
            return true;
        }
        if (event->type() == QEvent::MouseButtonDblClick) {
            Input([&] { List().DblClick(); });
            return true;
        }
    }
    return ControlBinding::eventFilter(watched, event);
}

}  // namespace trovane::qt
