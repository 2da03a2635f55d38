#include "platform/controls/list_item.h"

#include "platform/controls/control_errors.h"
#include "platform/controls/list_view.h"

namespace trovane {

ListItem::ListItem(ListView& owner, std::string text, std::string key, int32_t smallIcon)
    : owner_(&owner), key_(std::move(key)), text_(std::move(text)), smallIcon_(smallIcon) {
}

void ListItem::Reuse(std::string text, std::string key, int32_t smallIcon) {
    index_ = 0;
    key_ = std::move(key);
    text_ = std::move(text);
    tag_.clear();
    smallIcon_ = smallIcon;
    ghosted_ = false;
    selected_ = false;
    for (std::string& subItem : subItems_) subItem.clear();
}

template <typename T>
void ListItem::Update(T& field, T value) {
    if (field == value) return;
    field = std::move(value);
    owner_->RowChanged(*this);
}

void ListItem::SetText(std::string text) {
    Update(text_, std::move(text));
}
void ListItem::SetTag(std::string tag) {
    Update(tag_, std::move(tag));
}
void ListItem::SetSmallIcon(int32_t position) {
    Update(smallIcon_, position);
}
void ListItem::SetGhosted(bool ghosted) {
    Update(ghosted_, ghosted);
}

const std::string& ListItem::SubItem(int32_t i) const {
    static const std::string unset;
    if (i < 1) throw InvalidPropertyValue();
    const auto slot = static_cast<size_t>(i - 1);
    return slot < subItems_.size() ? subItems_[slot] : unset;
}

void ListItem::SetSubItem(int32_t i, std::string text) {
    if (i < 1) throw InvalidPropertyValue();
    const auto slot = static_cast<size_t>(i - 1);
    if (slot >= subItems_.size()) {
        if (text.empty()) return;  // an unset sub-item already reads as ""
        subItems_.resize(slot + 1);
    }
    Update(subItems_[slot], std::move(text));
}

void ListItem::SetSelected(bool selected) {
    if (selected)
        owner_->SelectItem(this);
    else if (selected_)
        owner_->SelectItem(nullptr);
}

}  // namespace trovane
