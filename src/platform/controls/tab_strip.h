#pragma once
// TabStrip: a row of tabs (caption, key, tag), numbered from 1, one of them selected.
//
// The first tab added becomes the selected one without an event. Selecting another tab, by code or
// by the operator (ClickTab), raises Click, as the classic control does; selecting the tab that is
// already selected raises nothing. A position outside 1..TabCount raises error 35600, a non-empty
// key that is already used error 35602.

#include <vector>

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

struct Tab {
    std::string caption;
    std::string key;
    std::string tag;
};

class TabStrip : public Control {
  public:
    explicit TabStrip(std::string name) : Control(std::move(name), "TabStrip") {}

    int32_t AddTab(std::string caption, std::string key = "", std::string tag = "");
    int32_t TabCount() const { return static_cast<int32_t>(tabs_.size()); }
    const Tab& GetTab(int32_t position) const;
    void SetTabCaption(int32_t position, std::string caption);
    void ClearTabs();

    int32_t SelectedTab() const { return selectedTab_; }  // 0 while there are no tabs
    void SelectTab(int32_t position);
    void ClickTab(int32_t position);

  private:
    void CheckPosition(int32_t position) const;
    std::vector<Tab> tabs_;
    int32_t selectedTab_ = 0;
};

}  // namespace trovane

#include "core/api_end.h"
