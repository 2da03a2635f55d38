#pragma once
// A keyed collection in the classic sense: items in insertion order, optionally under a text key
// that is compared without regard to case; adding a key twice raises error 457.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

class KeyedCollection {
public:
    void Add(Variant item, std::string key);
    void Add(Variant item) { items_.push_back(Entry{std::move(item), std::nullopt}); }
    // The item under a key, or nothing.
    const Variant* Find(std::string_view key) const;
    // The item at a 1-based position; subscript out of range (9) outside 1..Count().
    const Variant& Item(int32_t position) const;
    void Remove(std::string_view key);
    int32_t Count() const { return static_cast<int32_t>(items_.size()); }
    void Clear() { items_.clear(); }

private:
    struct Entry {
        Variant item;
        std::optional<std::string> key;
    };
    std::vector<Entry> items_;
};

}  // namespace trovane

#include "core/api_end.h"
