#include "core/keyed_collection.h"

#include <algorithm>

#include "core/error.h"
#include "core/object.h"

namespace trovane {

void KeyedCollection::Add(Variant item, std::string key) {
    if (Find(key) != nullptr) throw Error(ErrorNumber::DuplicateKey);
    items_.push_back(Entry{std::move(item), std::move(key)});
}

const Variant* KeyedCollection::Find(std::string_view key) const {
    const auto found = std::find_if(items_.begin(), items_.end(), [&](const Entry& entry) {
        return entry.key.has_value() && EqualsIgnoringCase(*entry.key, key);
    });
    return found == items_.end() ? nullptr : &found->item;
}

const Variant& KeyedCollection::Item(int32_t position) const {
    if (position < 1 || position > Count()) throw Error(ErrorNumber::SubscriptOutOfRange);
    return items_[static_cast<size_t>(position - 1)].item;
}

void KeyedCollection::Remove(std::string_view key) {
    const auto found = std::find_if(items_.begin(), items_.end(), [&](const Entry& entry) {
        return entry.key.has_value() && EqualsIgnoringCase(*entry.key, key);
    });
    if (found == items_.end()) throw Error(ErrorNumber::InvalidCall);
    items_.erase(found);
}

}  // namespace trovane
