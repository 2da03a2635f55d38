#include "platform/controls/tab_strip.h"

#include <algorithm>

#include "platform/controls/control_errors.h"

namespace trovane {

void TabStrip::CheckPosition(int32_t position) const {
    if (position < 1 || position > TabCount()) throw IndexOutOfBounds();
}

int32_t TabStrip::AddTab(std::string caption, std::string key, std::string tag) {
    if (!key.empty() &&
        std::any_of(tabs_.begin(), tabs_.end(), [&](const Tab& tab) { return tab.key == key; }))
        throw KeyNotUnique();
    tabs_.push_back(Tab{std::move(caption), std::move(key), std::move(tag)});
    onChanged.Emit(ControlProperty::Tabs);
    if (selectedTab_ == 0) Assign(selectedTab_, 1, ControlProperty::SelectedTab);
    return TabCount();
}

const Tab& TabStrip::GetTab(int32_t position) const {
    CheckPosition(position);
    return tabs_[static_cast<size_t>(position - 1)];
}

void TabStrip::SetTabCaption(int32_t position, std::string caption) {
    CheckPosition(position);
    std::string& current = tabs_[static_cast<size_t>(position - 1)].caption;
    if (current == caption) return;
    current = std::move(caption);
    onChanged.Emit(ControlProperty::Tabs);
}

void TabStrip::ClearTabs() {
    if (tabs_.empty()) return;
    tabs_.clear();
    onChanged.Emit(ControlProperty::Tabs);
    Assign(selectedTab_, 0, ControlProperty::SelectedTab);
}

void TabStrip::SelectTab(int32_t position) {
    CheckPosition(position);
    if (Assign(selectedTab_, position, ControlProperty::SelectedTab)) onClick.Emit();
}

void TabStrip::ClickTab(int32_t position) {
    if (AcceptsInput()) SelectTab(position);
}

}  // namespace trovane
