#pragma once
// clsTagout: the tagouts of one process object in memory, one of the library's public classes.
//
// It holds the tagout class's attribute definitions as four parallel cStrColl lists (names, titles,
// types, visibility flags kept as text), one cStrColl of values for each tagout in an ordered
// collection (the value at position p belongs to the attribute at name position p; the list's
// CollName is the tagout's key), and which tagout is selected. A definition list is chosen by the
// exact words "Name", "Title", "Type" and "Visible"; any other selector answers no object, "" or 0.
//
// Rules callers rely on:
// - AttrValue reads through StrArray, so the last slot of a full value list is readable there
//   although `item` hides it; an attribute the class does not define reads as "?";
// - AddAttrValueColl skips element 0: callers pass arrays whose first value sits at 1;
// - ClearAll leaves the selected tagout's name as it was;
// - a tagout position outside 1 .. CountTagouts raises subscript out of range (9) to the caller,
//   unchecked: only unknown selectors and attribute names are forgiven.

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/object.h"
#include "platform/message_box.h"
#include "tagout/member_table.h"
#include "tagout/str_coll.h"
#include "core/api_begin.h"

namespace trovane {

class clsTagout : public Object {
  public:
    // The lists it creates show themselves (Display) through `messageBox`.
    explicit clsTagout(std::shared_ptr<MessageBox> messageBox = std::make_shared<StandardErrorMessageBox>());
    clsTagout(const clsTagout&) = delete;
    clsTagout& operator=(const clsTagout&) = delete;

    std::string ClassName() const override { return "clsTagout"; }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    // ---- Attribute definitions ---------------------------------------------------------------
    // index >= 1 sets that slot, 0 appends, -1 appends when absent, below -1 does nothing.
    void AddAttrName(const std::string& value, int16_t index);
    void AddAttrTitle(const std::string& value, int16_t index);
    void AddAttrType(const std::string& value, int16_t index);
    void AddAttrVisible(const std::string& value, int16_t index);
    // The chosen definition list itself (shared), or nullptr for an unknown selector.
    std::shared_ptr<cStrColl> AttrInstValues(std::string_view selector) const;
    std::string AttrInstValue(int16_t index, std::string_view selector) const;
    int16_t Count(std::string_view selector) const;
    void ClearAll();

    // ---- Tagouts and the selection -----------------------------------------------------------
    int16_t CountTagouts() const;
    int16_t SelectedTagout() const { return selectedTagout; }
    void SetSelectedTagout(int16_t position) { selectedTagout = position; }
    const std::string& SelectedTagoutName() const { return selectedTagoutName; }
    void ClearSelectedTagoutName() { selectedTagoutName.clear(); }
    void SetSelectedTagoutName(int16_t index);

    // ---- Values of one tagout ----------------------------------------------------------------
    void AddAttrValueColl(const Variant& values);
    void AddEmptyAttrValueColl();
    void RemoveAttrValueColl(int16_t index);
    std::shared_ptr<cStrColl> AttrValueColl(int16_t index) const;
    Variant AttrValues(int16_t index) const;
    std::string AttrValue(int16_t index, const std::string& name) const;
    void SetAttrValue(int16_t index, const std::string& name, const std::string& value);
    std::string GetCollName(int16_t index) const;
    void SetCollName(int16_t index, const std::string& name);

  private:
    static void AddTo(cStrColl& list, const std::string& value, int16_t index);
    std::shared_ptr<cStrColl> NewList() const;
    const std::shared_ptr<cStrColl>& ValueList(int16_t index) const;
    void RegisterMembers();

    std::shared_ptr<MessageBox> messageBox;
    int16_t selectedTagout = 0;
    std::string selectedTagoutName;
    std::shared_ptr<cStrColl> names;
    std::shared_ptr<cStrColl> types;
    std::shared_ptr<cStrColl> titles;
    std::shared_ptr<cStrColl> visibles;
    std::vector<std::shared_ptr<cStrColl>> valueLists;  // position n is valueLists[n - 1]
    MemberTable members;
};

}  // namespace trovane

#include "core/api_end.h"
