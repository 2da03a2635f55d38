#include "alarms/alarm_rows.h"

#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

namespace {
const Variant kMissing;

// The element counted from the array's first element as 1, or Empty when the vector is shorter.
const Variant& ElementAt(const VariantArray& vector, int32_t oneBased) {
    const int64_t index = static_cast<int64_t>(vector.LowerBound()) + oneBased - 1;
    return vector.Contains(index) ? vector.At(index) : kMissing;
}

// Null (the server's "unknown") counts as not unacknowledged, and so does anything that does not
// read as a Boolean: a malformed flag must not stop the whole list.
bool IsUnacknowledged(const Variant& flag) {
    if (flag.IsNull() || flag.IsEmpty()) return false;
    try {
        return ToBool(flag);
    } catch (const Error&) {
        return false;
    }
}

// Text of a name, index or signal text; a value that has no text form (Null, an array) reads as "".
std::string TextOf(const Variant& value) {
    try {
        return ToString(value);
    } catch (const Error&) {
        return "";
    }
}
}  // namespace

std::string AlarmRowKey(const std::string& logicalName, const std::string& index) {
    return logicalName + ":PAR" + index;
}

std::string SignalIdentity(const std::string& logicalName, const std::string& index) {
    return logicalName + ":" + index;
}

std::string AcknowledgeCommand(const std::string& rowKey) {
    return "#SET " + rowKey + "=1";
}

bool CanBeAcknowledged(const std::string& key, const std::string& tag) {
    return !key.empty() && !tag.empty();
}

std::optional<AlarmRow> ClassifyAlarmElement(const Variant& element) {
    if (!element.IsArray()) return std::nullopt;
    const VariantArray& vector = element.AsArray();
    const Variant& keyword = ElementAt(vector, 4);
    const AlarmState* state = keyword.IsString() ? ClassifyAlarmState(keyword.AsString()) : nullptr;
    if (state == nullptr) return std::nullopt;

    const std::string logicalName = TextOf(ElementAt(vector, 1));
    const std::string index = TextOf(ElementAt(vector, 2));
    AlarmRow row;
    row.state = state;
    row.identity = SignalIdentity(logicalName, index);
    row.signalText = TextOf(ElementAt(vector, 3));
    if (state->isAlarming) {
        row.key = AlarmRowKey(logicalName, index);
        if (IsUnacknowledged(ElementAt(vector, 5)))
            row.tag = kAcknowledgeableTag;
        else
            row.ghosted = true;
    }
    return row;
}

}  // namespace trovane
