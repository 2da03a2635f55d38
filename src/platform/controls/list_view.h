#pragma once
// ListView: a report-style list with column headers, rows and a small-icon image list.
//
// Columns and rows are numbered from 1 (error 35600 outside); a non-empty row key must be unique
// (error 35602); an index from key to row keeps adding, finding and removing rows independent of
// the list's length, so a refresh of N rows costs N steps, not N squared. One row at most is selected.
// Program code selects with SelectItem and raises no event; the operator clicks a row (ClickItem: selection,
// then ItemClick, then Click) or moves the selection with the navigation keys (PressKey with 38/40 up/down,
// 33/34 a page of 10 rows, 36/35 first/last row: KeyDown, the move, KeyUp). Every change of rows, columns and
// images is reported through onListChanged with the 1-based position concerned (0 for the whole list).

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/controls/control.h"
#include "platform/controls/image_list.h"
#include "platform/controls/list_item.h"
#include "core/api_begin.h"

namespace trovane {

enum class ListViewChange {
    RowAdded,
    RowRemoved,
    RowChanged,
    RowsCleared,
    ColumnAdded,
    ColumnChanged,
    ColumnsCleared,
    ImagesChanged,
    SelectionChanged
};

struct ColumnHeader {
    std::string text;
    int32_t width = 1440;
};

class ListView : public Control {
  public:
    explicit ListView(std::string name);

    int32_t AddColumn(std::string text, int32_t width = 1440);
    int32_t ColumnCount() const { return static_cast<int32_t>(columns_.size()); }
    const ColumnHeader& Column(int32_t position) const;
    void SetColumnText(int32_t position, std::string text);
    void SetColumnWidth(int32_t position, int32_t width);
    void ClearColumns();

    ListItem& AddItem(std::string text, std::string key = "", int32_t smallIcon = 0);
    int32_t ItemCount() const { return static_cast<int32_t>(items_.size()); }
    ListItem& Item(int32_t index) const;
    ListItem* FindItem(std::string_view key) const;  // nullptr when no row has the key
    void RemoveItem(int32_t index);
    void ClearItems();

    ListItem* SelectedItem() const { return selected_; }
    void SelectItem(ListItem* item);  // nullptr clears the selection
    void ClickItem(int32_t index);

    ImageList& SmallIcons() { return smallIcons_; }
    const ImageList& SmallIcons() const { return smallIcons_; }

    Signal<ListViewChange, int32_t> onListChanged;
    Signal<ListItem&> onItemClick;

  protected:
    void ApplyKey(int16_t keyCode, int16_t shift) override;

  private:
    friend class ListItem;
    size_t ColumnSlot(int32_t position) const;  // the vector slot, or error 35600
    void RowChanged(const ListItem& item) { onListChanged.Emit(ListViewChange::RowChanged, item.Index()); }
    void Renumber();

    std::vector<ColumnHeader> columns_;
    using KeyIndex = std::unordered_map<std::string_view, ListItem*>;  // views of the rows' own keys
    std::unique_ptr<ListItem> NewRow(std::string text, std::string key, int32_t smallIcon);
    void IndexKey(ListItem& item);

    std::vector<std::unique_ptr<ListItem>> items_;
    KeyIndex rowsByKey_;
    std::vector<std::unique_ptr<ListItem>> spareRows_;  // the rows of the last clear, for the next adds
    std::vector<KeyIndex::node_type> spareKeys_;
    ListItem* selected_ = nullptr;
    ImageList smallIcons_;
};

}  // namespace trovane

#include "core/api_end.h"
