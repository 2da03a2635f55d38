#include "qt/list_view_model.h"

#include <algorithm>

#include "qt/picture_pixmap.h"
#include "qt/text.h"

namespace trovane::qt {

namespace {
constexpr QSize kSmallIconSize(16, 16);
}  // namespace

ListViewModel::ListViewModel(ListView& listIn, QBrush ghostedTextIn, QObject* parent)
    : QAbstractTableModel(parent), list(listIn), ghostedText(std::move(ghostedTextIn)) {
    shownRows = list.ItemCount();
    shownColumns = std::max(list.ColumnCount(), 1);
    ShowImages();
}

int ListViewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shownRows;
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shownColumns;
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= shownRows || index.row() >= list.ItemCount()) return {};
    const ListItem& item = list.Item(index.row() + 1);
    switch (role) {
        case Qt::DisplayRole:
            return ToQString(index.column() == 0 ? item.Text() : item.SubItem(index.column()));
        case Qt::DecorationRole:
            if (index.column() == 0)
                if (const QIcon* icon = IconOf(item)) return *icon;
            return {};
        case Qt::ForegroundRole:
            return item.Ghosted() ? QVariant(ghostedText) : QVariant();
        default:
            return {};
    }
}

const QIcon* ListViewModel::IconOf(const ListItem& item) const {
    const int32_t position = item.SmallIcon();
    if (position < 1 || position > static_cast<int32_t>(icons.size())) return nullptr;
    const QIcon& icon = (item.Ghosted() ? ghostedIcons : icons)[static_cast<size_t>(position - 1)];
    return icon.isNull() ? nullptr : &icon;
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    if (section < 0 || section >= list.ColumnCount()) return {};
    return ToQString(list.Column(section + 1).text);
}

// Rows are chosen through the model's selection only; the view never edits a cell.
Qt::ItemFlags ListViewModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

void ListViewModel::OnListChanged(ListViewChange change, int32_t position) {
    switch (change) {
        case ListViewChange::RowAdded:
            ScheduleAnnouncement();
            break;
        case ListViewChange::RowRemoved:
            // A row removed before it was announced is simply never announced.
            if (position >= 1 && position <= shownRows) {
                beginRemoveRows({}, position - 1, position - 1);
                --shownRows;
                endRemoveRows();
            }
            break;
        case ListViewChange::RowChanged:
            if (position >= 1 && position <= shownRows)
                emit dataChanged(index(position - 1, 0), index(position - 1, shownColumns - 1));
            break;
        case ListViewChange::RowsCleared:
            // A removal rather than a reset: the header keeps the widths the binding gave it.
            ++clears;
            if (shownRows > 0) {
                beginRemoveRows({}, 0, shownRows - 1);
                shownRows = 0;
                endRemoveRows();
            }
            break;
        case ListViewChange::ColumnAdded:
        case ListViewChange::ColumnsCleared:
            ShowColumnCount();
            break;
        case ListViewChange::ColumnChanged:
            emit headerDataChanged(Qt::Horizontal, position - 1, position - 1);
            break;
        case ListViewChange::ImagesChanged:
            ShowImages();
            if (shownRows > 0) emit dataChanged(index(0, 0), index(shownRows - 1, 0), {Qt::DecorationRole});
            break;
        case ListViewChange::SelectionChanged:
            break;
    }
}

void ListViewModel::ScheduleAnnouncement() {
    if (announcementScheduled) return;
    announcementScheduled = true;
    QMetaObject::invokeMethod(this, &ListViewModel::AnnounceAppendedRows, Qt::QueuedConnection);
}

void ListViewModel::AnnounceAppendedRows() {
    announcementScheduled = false;
    const int rows = list.ItemCount();
    if (rows <= shownRows) return;
    beginInsertRows({}, shownRows, rows - 1);
    shownRows = rows;
    endInsertRows();
}

void ListViewModel::ShowColumnCount() {
    const int columns = std::max(list.ColumnCount(), 1);
    if (columns > shownColumns) {
        beginInsertColumns({}, shownColumns, columns - 1);
        shownColumns = columns;
        endInsertColumns();
    } else if (columns < shownColumns) {
        beginRemoveColumns({}, columns, shownColumns - 1);
        shownColumns = columns;
        endRemoveColumns();
    }
    emit headerDataChanged(Qt::Horizontal, 0, shownColumns - 1);
}

void ListViewModel::ShowImages() {
    const ImageList& images = list.SmallIcons();
    icons.clear();
    ghostedIcons.clear();
    for (int32_t position = 1; position <= images.Count(); ++position) {
        QIcon icon = qt::IconOf(images.Item(position));
        ghostedIcons.push_back(icon.isNull() ? QIcon() : QIcon(icon.pixmap(kSmallIconSize, QIcon::Disabled)));
        icons.push_back(std::move(icon));
    }
}

}  // namespace trovane::qt
