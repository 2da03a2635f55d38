#pragma once
// ListItem: one row of a report-style list view.
//
// A row has its text (first column), sub-items (the texts of columns 2, 3, ..., numbered from 1),
// a key fixed when it is added, a tag, a small icon (a 1-based image position, 0 for none), the
// ghosted (greyed) flag and its selected state. Every change is reported through its list view, so
// a front end sees row changes as well. Index is the row's 1-based position.

#include <cstdint>
#include <string>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

class ListView;

class ListItem {
  public:
    ListItem(ListView& owner, std::string text, std::string key, int32_t smallIcon);
    ListItem(const ListItem&) = delete;
    ListItem& operator=(const ListItem&) = delete;

    int32_t Index() const { return index_; }
    const std::string& Key() const { return key_; }
    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    const std::string& Tag() const { return tag_; }
    void SetTag(std::string tag);
    int32_t SmallIcon() const { return smallIcon_; }
    void SetSmallIcon(int32_t position);
    bool Ghosted() const { return ghosted_; }
    void SetGhosted(bool ghosted);
    // Sub-item i (1-based) is the text of column i + 1; unset ones read as "". i < 1 raises 380.
    const std::string& SubItem(int32_t i) const;
    void SetSubItem(int32_t i, std::string text);
    bool Selected() const { return selected_; }
    void SetSelected(bool selected);  // selecting one row deselects the others

  private:
    friend class ListView;
    template <typename T>
    void Update(T& field, T value);
    // Makes a cleared row a new one, keeping the sub-items' storage; raises nothing.
    void Reuse(std::string text, std::string key, int32_t smallIcon);

    ListView* owner_;
    int32_t index_ = 0;
    std::string key_;
    std::string text_;
    std::string tag_;
    int32_t smallIcon_ = 0;
    bool ghosted_ = false;
    bool selected_ = false;
    std::vector<std::string> subItems_;
};

}  // namespace trovane

#include "core/api_end.h"
