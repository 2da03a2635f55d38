#pragma once
// Reading a bound list view as the operator sees it, and the headless list it shows, in one shape,
// so a test can compare the two row by row.

#include <string>
#include <vector>

#include <QAbstractItemView>
#include <QApplication>
#include <QBrush>
#include <QHeaderView>
#include <QIcon>
#include <QItemSelectionModel>
#include <QTreeView>

#include "platform/controls/list_view.h"

namespace trovane::testing {

struct ShownRow {
    std::vector<std::string> texts;  // one per column
    bool hasIcon = false;
    bool ghosted = false;
    bool selected = false;
    friend bool operator==(const ShownRow&, const ShownRow&) = default;
};

inline std::ostream& operator<<(std::ostream& out, const ShownRow& row) {
    for (const std::string& text : row.texts) out << '"' << text << "\" ";
    return out << (row.hasIcon ? "icon " : "") << (row.ghosted ? "ghosted " : "")
               << (row.selected ? "selected" : "");
}

// The rows on screen, after the view has caught up with the model's announcements.
inline std::vector<ShownRow> ShownRows(QAbstractItemView& view) {
    QApplication::processEvents();
    const QAbstractItemModel& model = *view.model();
    const QColor grey = view.palette().color(QPalette::Disabled, QPalette::Text);
    std::vector<ShownRow> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        ShownRow shown;
        for (int column = 0; column < model.columnCount(); ++column)
            shown.texts.push_back(model.index(row, column).data().toString().toStdString());
        shown.hasIcon = !model.index(row, 0).data(Qt::DecorationRole).value<QIcon>().isNull();
        const QVariant foreground = model.index(row, 0).data(Qt::ForegroundRole);
        shown.ghosted = foreground.isValid() && foreground.value<QBrush>().color() == grey;
        shown.selected = view.selectionModel()->isRowSelected(row);
        rows.push_back(std::move(shown));
    }
    return rows;
}

// The rows the headless list holds, in the same shape.
inline std::vector<ShownRow> ModelRows(const ListView& list) {
    std::vector<ShownRow> rows;
    for (int32_t index = 1; index <= list.ItemCount(); ++index) {
        const ListItem& item = list.Item(index);
        ShownRow row;
        row.texts.push_back(item.Text());
        for (int32_t column = 2; column <= std::max(list.ColumnCount(), 1); ++column)
            row.texts.push_back(item.SubItem(column - 1));
        row.hasIcon = item.SmallIcon() >= 1 && item.SmallIcon() <= list.SmallIcons().Count();
        row.ghosted = item.Ghosted();
        row.selected = item.Selected();
        rows.push_back(std::move(row));
    }
    return rows;
}

inline QString HeaderText(const QAbstractItemView& view, int column) {
    return view.model()->headerData(column, Qt::Horizontal).toString();
}

inline QPoint CentreOfRow(QAbstractItemView& view, int row) {
    QApplication::processEvents();
    return view.visualRect(view.model()->index(row, 0)).center();
}

}  // namespace trovane::testing
