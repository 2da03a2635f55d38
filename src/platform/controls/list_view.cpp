#include "platform/controls/list_view.h"

#include <algorithm>

#include "platform/controls/control_errors.h"
#include "platform/controls/key_codes.h"

namespace trovane {

using namespace keys;

namespace {
constexpr int32_t kRowsPerPage = 10;
}  // namespace

ListView::ListView(std::string name) : Control(std::move(name), "ListView") {
    smallIcons_.onChanged.Connect([this] { onListChanged.Emit(ListViewChange::ImagesChanged, 0); });
}

int32_t ListView::AddColumn(std::string text, int32_t width) {
    if (width < 0) throw InvalidPropertyValue();
    columns_.push_back(ColumnHeader{std::move(text), width});
    onListChanged.Emit(ListViewChange::ColumnAdded, ColumnCount());
    return ColumnCount();
}

size_t ListView::ColumnSlot(int32_t position) const {
    if (position < 1 || position > ColumnCount()) throw IndexOutOfBounds();
    return static_cast<size_t>(position - 1);
}

const ColumnHeader& ListView::Column(int32_t position) const {
    return columns_[ColumnSlot(position)];
}

void ListView::SetColumnText(int32_t position, std::string text) {
    ColumnHeader& column = columns_[ColumnSlot(position)];
    if (column.text == text) return;
    column.text = std::move(text);
    onListChanged.Emit(ListViewChange::ColumnChanged, position);
}

void ListView::SetColumnWidth(int32_t position, int32_t width) {
    if (width < 0) throw InvalidPropertyValue();
    ColumnHeader& column = columns_[ColumnSlot(position)];
    if (column.width == width) return;
    column.width = width;
    onListChanged.Emit(ListViewChange::ColumnChanged, position);
}

void ListView::ClearColumns() {
    if (columns_.empty()) return;
    columns_.clear();
    onListChanged.Emit(ListViewChange::ColumnsCleared, 0);
}

ListItem& ListView::AddItem(std::string text, std::string key, int32_t smallIcon) {
    if (!key.empty() && FindItem(key) != nullptr) throw KeyNotUnique();
    items_.push_back(NewRow(std::move(text), std::move(key), smallIcon));
    ListItem& item = *items_.back();
    if (!item.Key().empty()) {
        try {
            IndexKey(item);
        } catch (...) {
            items_.pop_back();  // a row the index does not know must not stay in the list
            throw;
        }
    }
    item.index_ = ItemCount();
    onListChanged.Emit(ListViewChange::RowAdded, ItemCount());
    return item;
}

// A list is mostly rebuilt whole: clear, then add about as many rows again. The rows and index entries
// of the last clear are reused, so a rebuild allocates nothing for rows it had before.
std::unique_ptr<ListItem> ListView::NewRow(std::string text, std::string key, int32_t smallIcon) {
    if (spareRows_.empty()) {
        auto row = std::make_unique<ListItem>(*this, std::move(text), std::move(key), smallIcon);
        // A row usually gets a text for every column; one allocation for them, not one per column.
        if (ColumnCount() > 1) row->subItems_.reserve(static_cast<size_t>(ColumnCount() - 1));
        return row;
    }
    std::unique_ptr<ListItem> row = std::move(spareRows_.back());
    spareRows_.pop_back();
    row->Reuse(std::move(text), std::move(key), smallIcon);
    return row;
}

void ListView::IndexKey(ListItem& item) {
    if (spareKeys_.empty()) {
        rowsByKey_.emplace(item.Key(), &item);
        return;
    }
    KeyIndex::node_type entry = std::move(spareKeys_.back());
    spareKeys_.pop_back();
    entry.key() = item.Key();
    entry.mapped() = &item;
    rowsByKey_.insert(std::move(entry));
}

ListItem& ListView::Item(int32_t index) const {
    if (index < 1 || index > ItemCount()) throw IndexOutOfBounds();
    return *items_[static_cast<size_t>(index - 1)];
}

ListItem* ListView::FindItem(std::string_view key) const {
    if (key.empty()) return nullptr;
    const auto found = rowsByKey_.find(key);
    return found == rowsByKey_.end() ? nullptr : found->second;
}

void ListView::RemoveItem(int32_t index) {
    ListItem& item = Item(index);
    if (selected_ == &item) SelectItem(nullptr);
    if (!item.Key().empty()) rowsByKey_.erase(item.Key());
    items_.erase(items_.begin() + (index - 1));
    Renumber();
    onListChanged.Emit(ListViewChange::RowRemoved, index);
}

void ListView::ClearItems() {
    if (items_.empty()) return;
    selected_ = nullptr;
    spareKeys_.reserve(spareKeys_.size() + rowsByKey_.size());
    while (!rowsByKey_.empty()) spareKeys_.push_back(rowsByKey_.extract(rowsByKey_.begin()));
    spareRows_.reserve(spareRows_.size() + items_.size());
    for (auto& item : items_) spareRows_.push_back(std::move(item));
    items_.clear();
    onListChanged.Emit(ListViewChange::RowsCleared, 0);
}

void ListView::Renumber() {
    for (size_t i = 0; i < items_.size(); ++i) items_[i]->index_ = static_cast<int32_t>(i + 1);
}

void ListView::SelectItem(ListItem* item) {
    if (item == selected_) return;
    if (selected_ != nullptr) selected_->selected_ = false;
    selected_ = item;
    if (item != nullptr) item->selected_ = true;
    onListChanged.Emit(ListViewChange::SelectionChanged, item != nullptr ? item->Index() : 0);
}

void ListView::ClickItem(int32_t index) {
    if (!AcceptsInput()) return;
    ListItem& item = Item(index);
    SelectItem(&item);
    onItemClick.Emit(item);
    onClick.Emit();
}

// The navigation keys move the selection between KeyDown and KeyUp; without a selection every one
// of them lands on the first row.
void ListView::ApplyKey(int16_t keyCode, int16_t /*shift*/) {
    if (items_.empty()) return;
    const int32_t last = ItemCount();
    const int32_t current = selected_ != nullptr ? selected_->Index() : 0;
    int32_t target = 0;
    switch (keyCode) {
        case kUp:
            target = current - 1;
            break;
        case kDown:
            target = current + 1;
            break;
        case kPageUp:
            target = current - kRowsPerPage;
            break;
        case kPageDown:
            target = current + kRowsPerPage;
            break;
        case kHome:
            target = 1;
            break;
        case kEnd:
            target = last;
            break;
        default:
            return;
    }
    if (current == 0) target = 1;
    SelectItem(&Item(std::clamp(target, 1, last)));
}

}  // namespace trovane
