#include "qt/list_view_binding.h"

#include <cmath>

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeWidget>

#include "qt/picture_pixmap.h"
#include "qt/text.h"

namespace trovane::qt {

QWidget* ListViewBinding::CreateView(QWidget* parent) {
    tree = new QTreeWidget(parent);
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    tree->setIconSize(QSize(16, 16));
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionsMovable(false);
    tree->viewport()->installEventFilter(this);
    listConnection = List().onListChanged.Connect([this](ListViewChange change, int32_t position) {
        Mirroring([&] { OnListChanged(change, position); });
    });
    return tree;
}

void ListViewBinding::MirrorAll() {
    ControlBinding::MirrorAll();
    ShowColumns();
    ShowImages();
    ShowRows();
}

void ListViewBinding::OnListChanged(ListViewChange change, int32_t position) {
    switch (change) {
        case ListViewChange::RowChanged:
            if (position >= 1 && position <= tree->topLevelItemCount() && position <= List().ItemCount()) {
                ShowRow(tree->topLevelItem(position - 1), List().Item(position));
                return;
            }
            break;
        case ListViewChange::SelectionChanged:
            ShowSelection();
            return;
        case ListViewChange::ColumnAdded:
        case ListViewChange::ColumnChanged:
        case ListViewChange::ColumnsCleared:
            ShowColumns();
            break;
        case ListViewChange::ImagesChanged:
            ShowImages();
            break;
        default:
            break;
    }
    ShowRows();
}

void ListViewBinding::ShowColumns() {
    const ListView& list = List();
    const int count = std::max(list.ColumnCount(), 1);
    tree->setColumnCount(count);
    QStringList headers;
    for (int32_t position = 1; position <= list.ColumnCount(); ++position)
        headers << ToQString(list.Column(position).text);
    tree->setHeaderLabels(headers);
    // Widths are rounded down: rounding each column to the nearest pixel could add up to more than
    // the list is wide and show a scroll bar the model's layout does not have.
    for (int32_t position = 1; position <= list.ColumnCount(); ++position)
        tree->setColumnWidth(position - 1, WholePixels(list.Column(position).width));
}

int ListViewBinding::WholePixels(int32_t twips) const {
    return static_cast<int>(std::floor(static_cast<double>(twips) / Twips(1, true)));
}

void ListViewBinding::ShowImages() {
    const ImageList& images = List().SmallIcons();
    icons.clear();
    for (int32_t position = 1; position <= images.Count(); ++position)
        icons.push_back(IconOf(images.Item(position)));
}

void ListViewBinding::ShowRows() {
    tree->clear();
    const ListView& list = List();
    for (int32_t index = 1; index <= list.ItemCount(); ++index) {
        auto* row = new QTreeWidgetItem(tree);
        ShowRow(row, list.Item(index));
    }
    ShowSelection();
}

void ListViewBinding::ShowRow(QTreeWidgetItem* row, const ListItem& item) {
    const int columns = tree->columnCount();
    const QBrush text =
        tree->palette().brush(item.Ghosted() ? QPalette::Disabled : QPalette::Active, QPalette::Text);
    row->setText(0, ToQString(item.Text()));
    for (int column = 1; column < columns; ++column) row->setText(column, ToQString(item.SubItem(column)));
    for (int column = 0; column < columns; ++column) row->setForeground(column, text);
    const int32_t icon = item.SmallIcon();
    if (icon >= 1 && icon <= static_cast<int32_t>(icons.size()) && !icons[icon - 1].isNull()) {
        const QIcon& shown = icons[icon - 1];
        row->setIcon(0, item.Ghosted() ? QIcon(shown.pixmap(tree->iconSize(), QIcon::Disabled)) : shown);
    } else {
        row->setIcon(0, QIcon());
    }
}

void ListViewBinding::ShowSelection() {
    const ListItem* selected = List().SelectedItem();
    tree->clearSelection();
    if (!selected) return;
    QTreeWidgetItem* row = tree->topLevelItem(selected->Index() - 1);
    if (!row) return;
    row->setSelected(true);
    tree->setCurrentItem(row, 0, QItemSelectionModel::NoUpdate);
    tree->scrollToItem(row);
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
            QTreeWidgetItem* row = tree->itemAt(mouse->position().toPoint());
            ControlBinding::eventFilter(watched, event);
            if (row && mouse->button() == Qt::LeftButton) {
                const int index = tree->indexOfTopLevelItem(row) + 1;
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
