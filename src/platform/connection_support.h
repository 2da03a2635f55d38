#pragma once
// What every Connection implementation does alike, whatever carries its data: checking the
// arguments of AddItems, numbering subscriptions and transactions, and handing a batch of changed
// items to the subscriber in the four parallel arrays of OnDataChange.

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/error.h"
#include "core/variant.h"
#include "platform/data_callback.h"

namespace trovane {

// The client handles and item paths of AddItems, checked to be arrays of one length.
struct AddItemsArguments {
    const VariantArray& handles;
    const VariantArray& paths;
};

inline const VariantArray& AddItemsArray(const Variant& value, const char* what) {
    if (!value.IsArray())
        throw Error(ErrorNumber::InvalidCall, std::string("AddItems: ") + what + " must be an array");
    return value.AsArray();
}

inline AddItemsArguments CheckedAddItemsArguments(const Variant& clientHandles, const Variant& itemPaths) {
    AddItemsArguments arguments{AddItemsArray(clientHandles, "the client handles"),
                                AddItemsArray(itemPaths, "the item paths")};
    if (arguments.handles.Size() != arguments.paths.Size())
        throw Error(ErrorNumber::InvalidCall, "AddItems: as many client handles as item paths are needed");
    return arguments;
}

// Handles and transaction numbers count from 1 and start over rather than overflow.
inline int32_t NextNumber(int32_t& counter) {
    const int32_t number = counter;
    counter = counter == INT32_MAX ? 1 : counter + 1;
    return number;
}

// One OnDataChange call in the making: the items are set by position, then sent at once.
class DataChangeBatch {
  public:
    explicit DataChangeBatch(size_t count)
        : clientHandles(ElementKind::Long, 0, count),
          values(ElementKind::Variant, 0, count),
          qualities(ElementKind::Long, 0, count),
          timeStamps(ElementKind::Date, 0, count) {}

    void Set(size_t position, int32_t clientHandle, Variant value, int32_t quality, Date timeStamp) {
        const auto index = static_cast<int64_t>(position);
        clientHandles.Set(index, clientHandle);
        values.Set(index, std::move(value));
        qualities.Set(index, quality);
        timeStamps.Set(index, timeStamp);
    }

    void Send(SysDataCallback& callback, int32_t transactionId, int32_t subscriptionHandle) {
        const auto count = static_cast<int32_t>(clientHandles.Size());
        callback.OnDataChange(transactionId, subscriptionHandle, count, Variant(std::move(clientHandles)),
                              Variant(std::move(values)), Variant(std::move(qualities)),
                              Variant(std::move(timeStamps)));
    }

  private:
    VariantArray clientHandles;
    VariantArray values;
    VariantArray qualities;
    VariantArray timeStamps;
};

}  // namespace trovane
