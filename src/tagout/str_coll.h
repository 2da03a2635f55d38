#pragma once
// cStrColl: a growable list of strings with a name of its own, one of the library's public classes.
//
// The tagout model keeps one for each kind of attribute definition and one for the values of each
// tagout (named by the tagout's key); hosts may create and use it by name too. Its rules are kept
// exactly, odd as some are, because callers depend on them:
// - slots are numbered from 1; the array holds `Size` slots, 30 at first and 30 more each time an
//   Add finds it full, and never shrinks except through Clear;
// - `item` get answers only below `Size`: the last slot reads as empty even when it is in use, so
//   Find cannot see it either (while StrArray copies it like any other slot);
// - `item` let at or beyond `Size` is silently ignored and may move Count past empty slots;
// - an index below 1 raises subscript out of range (9), a Count beyond 32767 overflow (6).

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/object.h"
#include "platform/message_box.h"
#include "tagout/member_table.h"
#include "core/api_begin.h"

namespace trovane {

class cStrColl : public Object {
  public:
    // Display shows the items through `messageBox`.
    explicit cStrColl(std::shared_ptr<MessageBox> messageBox = std::make_shared<StandardErrorMessageBox>());
    cStrColl(const cStrColl&) = delete;
    cStrColl& operator=(const cStrColl&) = delete;

    std::string ClassName() const override { return "cStrColl"; }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    const std::string& CollName() const { return collName; }
    void SetCollName(std::string name) { collName = std::move(name); }
    int32_t Size() const { return static_cast<int32_t>(slotTexts.size()); }
    int16_t Count() const { return count; }

    std::string Item(int16_t index) const;
    void SetItem(int16_t index, const std::string& value);
    // A copy of every slot, 1 to Size, used or not: a "String()" array with lower bound 1.
    Variant StrArray() const;

    void Add(const std::string& value);
    void AddNew(const std::string& value);
    void Clear();
    // The first position whose item equals `value` exactly, or -1.
    int16_t Find(const std::string& value) const;
    // The items, each followed by "\r\n", in an information message box titled `title`.
    void Display(const std::string& title) const;

  private:
    void RegisterMembers();

    std::vector<std::string> slotTexts;  // slot n is slotTexts[n - 1]; not "slots", which Qt takes for itself
    int16_t count = 0;
    std::string collName;
    std::shared_ptr<MessageBox> messageBox;
    MemberTable members;
};

}  // namespace trovane

#include "core/api_end.h"
