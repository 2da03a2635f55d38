#pragma once
// ListViewModel: the headless report-style list as a Qt table model.
//
// The model holds no copy of the rows: a view asks for the cells it paints and the model reads them
// from the list view, so a refresh of ten thousand rows costs what the screen shows, not what the
// list holds. What it keeps is the number of rows the view has been told about. The headless list
// only ever appends rows, so its rows 1 ... shownRows are exactly the view's rows in order, and the
// rows behind them are appended but not yet announced. Appends are announced together, as one
// insertion, when the event loop comes round or as soon as the view needs them (to show a selection);
// a refresh that clears the list and adds its rows again is then one removal and one insertion, however
// long the list. Removals, changes of a shown row, columns and images are announced as they happen.
//
// A ghosted row is drawn in the palette's disabled text colour with the disabled form of its icon.

#include <vector>

#include <QAbstractTableModel>
#include <QBrush>
#include <QIcon>

#include "platform/controls/list_view.h"
#include "core/api_begin.h"

namespace trovane::qt {

class ListViewModel final : public QAbstractTableModel {
  public:
    ListViewModel(ListView& list, QBrush ghostedText, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Follows one change report of the list view.
    void OnListChanged(ListViewChange change, int32_t position);
    // Announces the rows appended since the last announcement.
    void AnnounceAppendedRows();
    // How often the list was cleared, i.e. the view threw all its rows away (for measurements).
    int Clears() const { return clears; }

  private:
    void ScheduleAnnouncement();
    void ShowColumnCount();
    void ShowImages();
    const QIcon* IconOf(const ListItem& item) const;

    ListView& list;
    QBrush ghostedText;
    int shownRows = 0;
    int shownColumns = 1;  // a view always has one column, even for a list without headers
    bool announcementScheduled = false;
    int clears = 0;
    std::vector<QIcon> icons;
    std::vector<QIcon> ghostedIcons;
};

}  // namespace trovane::qt

#include "core/api_end.h"
