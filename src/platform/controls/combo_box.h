#pragma once
// ComboBox: a list of texts with one selected entry (ListIndex, -1 for none) and a text.
//
// Selecting an entry (ListIndex) sets the text to it and raises Click. In the drop-down combo
// style the text is free and its changes raise Change; in the drop-down list style the text can
// only name an entry: setting it selects the first entry equal to it, or raises error 383 when none
// is. Indexes are 0-based: a ListIndex outside the list raises error 380 (invalid property value),
// adding or removing at a position that is not there error 5, and reading past the list gives "".
// Texts are UTF-8. The operator's edit of the free text (typing, paste, drop, undo in the edit
// field) arrives whole through EditText and raises Change, whose handlers may set the text back.

#include <vector>

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class ComboBox : public Control {
  public:
    enum class Style : int16_t { DropDownCombo = 0, SimpleCombo = 1, DropDownList = 2 };

    explicit ComboBox(std::string name) : Control(std::move(name), "ComboBox") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    Style ListStyle() const { return style_; }
    void SetListStyle(Style style) { Assign(style_, style, ControlProperty::Style); }

    // Inserts at `index` (-1 appends); a selection at or after it moves along with its entry.
    void AddItem(std::string item, int32_t index = -1);
    void RemoveItem(int32_t index);
    void Clear();
    int32_t ListCount() const { return static_cast<int32_t>(items_.size()); }
    const std::string& List(int32_t index) const;
    const std::vector<std::string>& Items() const { return items_; }

    int32_t ListIndex() const { return listIndex_; }
    void SetListIndex(int32_t index);
    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    // The operator's edit of the text; ignored while the control takes no input and in the
    // drop-down list style, which has no free text.
    void EditText(std::string text);

    Signal<> onChange;

  private:
    void CheckIndex(int32_t index) const;
    Style style_ = Style::DropDownCombo;
    std::vector<std::string> items_;
    int32_t listIndex_ = -1;
    std::string text_;
};

}  // namespace trovane

#include "core/api_end.h"
