// The alarm panel's list: rebuilding it from the server, selecting a row, acknowledging alarms.

#include "alarms/alarms.h"

#include <algorithm>

#include "core/checked_int.h"
#include "core/conversions.h"

namespace trovane {

namespace {
constexpr int32_t kObjectTextId = 278;
constexpr int32_t kAlarmStateTextId = 279;

// The list and the acknowledge loops count with 16-bit integers, so a bound beyond 32767 is an
// overflow error, raised before the walk starts; within the range the walk itself cannot overflow.
int16_t UpperBound16(int32_t upperBound) {
    return CheckedNarrow<int16_t>(upperBound);
}
}  // namespace

bool Alarms::IsAlarmHandlingAllowed() const {
    return IsAllowed("IsAlarmHandlingAllowed");
}

void Alarms::RefreshAlarms() {
    if (DisableUpdate) return;
    rowIdentities.clear();
    stateTexts.clear();
    widestSignalText = 0;
    widestStateText = 0;
    EnsureColumns();
    ListView1.ClearItems();
    const Variant alarmList = services.GetListItem(CallContainer("GetAlarms"), "COMBO_LIST");
    anyUnacknowledged = false;
    ListItem* reselected = AddRows(alarmList);
    btnAck.SetEnabled(IsAlarmHandlingAllowed() && anyUnacknowledged);
    btnAckSelected.SetEnabled(false);
    if (CanSelectSingleBlocking) FollowRememberedSignal(reselected);
    FitColumns();
}

// Adds a row for every signal of a known state, in the server's order; returns the row of the
// remembered signal when the selection drives the blocking panel (selected, without an event).
ListItem* Alarms::AddRows(const Variant& alarmList) {
    if (!alarmList.IsArray()) return nullptr;  // no alarm list: an empty view
    const VariantArray& elements = alarmList.AsArray();
    const int16_t upper = UpperBound16(elements.UpperBound());
    rowIdentities.reserve(static_cast<size_t>(std::max<int16_t>(upper, 0)));
    ListItem* reselected = nullptr;
    for (int32_t i = 1; i <= upper; ++i) {
        if (!elements.Contains(i)) continue;  // below a list's lower bound: Empty, which is no row
        std::optional<AlarmRow> row = ClassifyAlarmElement(elements.At(i));
        if (!row) continue;
        const bool isRemembered = CanSelectSingleBlocking && row->identity == rememberedSignal;
        ListItem* item = AddRow(std::move(*row));
        if (isRemembered) {
            ListView1.SelectItem(item);
            reselected = item;
        }
    }
    return reselected;
}

// The blocking panel keeps working on the remembered signal while it is listed, and falls back to
// the whole object when it is not.
void Alarms::FollowRememberedSignal(const ListItem* reselected) {
    if (reselected == nullptr)
        CallContainer("SetSingleBlocking", {Variant(false)});
    else
        SelectRow(false);
}

void Alarms::EnsureColumns() {
    if (ListView1.ColumnCount() > 0) return;
    ListView1.AddColumn("");
    ListView1.AddColumn(GetNlsString(kObjectTextId));
    ListView1.AddColumn(GetNlsString(kAlarmStateTextId));
}

// The nine state texts come from the container, and are measured, once per refresh, not once per row.
const Alarms::MeasuredText& Alarms::StateText(const AlarmState& state) {
    auto found = stateTexts.find(state.stateTextId);
    if (found == stateTexts.end()) {
        std::string text = GetNlsString(state.stateTextId);
        const int32_t width = TextWidth(text);
        found = stateTexts.emplace(state.stateTextId, MeasuredText{std::move(text), width}).first;
    }
    return found->second;
}

ListItem* Alarms::AddRow(AlarmRow&& row) {
    ListItem& item = ListView1.AddItem("", std::move(row.key), row.state->iconPosition);
    rowIdentities.push_back(std::move(row.identity));
    widestSignalText = std::max(widestSignalText, TextWidth(row.signalText));
    item.SetSubItem(1, std::move(row.signalText));
    const MeasuredText& stateText = StateText(*row.state);
    widestStateText = std::max(widestStateText, stateText.width);
    item.SetSubItem(2, stateText.text);
    if (!row.tag.empty()) {
        item.SetTag(std::move(row.tag));
        anyUnacknowledged = true;
    }
    // An alarm that can no longer be acknowledged is drawn greyed.
    if (row.ghosted) item.SetGhosted(true);
    return &item;
}

// The selection step, run by a click and by the navigation keys (which freeze the list), and after
// a rebuild for the reselected row (which must not freeze it).
void Alarms::SelectRow(bool freezeUpdates) {
    if (freezeUpdates) DisableUpdate = true;
    const ListItem* row = ListView1.SelectedItem();
    if (row == nullptr) return;
    btnAckSelected.SetEnabled(CanBeAcknowledged(row->Key(), row->Tag()) && IsAlarmHandlingAllowed());
    const size_t position = static_cast<size_t>(row->Index() - 1);
    if (CanSelectSingleBlocking && position < rowIdentities.size()) HandOverSignal(rowIdentities[position]);
}

// Makes the signal "name:index" the blocking panel's signal, when its index part is a number.
void Alarms::HandOverSignal(const std::string& identity) {
    const size_t colon = identity.find(':');
    if (colon == std::string::npos) return;
    const std::string name = identity.substr(0, colon);
    const size_t next = identity.find(':', colon + 1);
    const std::string index =
        identity.substr(colon + 1, next == std::string::npos ? std::string::npos : next - colon - 1);
    if (!IsNumeric(std::string_view(index))) return;
    CallContainer("SetBlockedSignal", {Variant(name), Variant(ToInt32(Variant(index)))});
    CallContainer("SetSingleBlocking", {Variant(true)});
    rememberedSignal = identity;
}

void Alarms::AcknowledgeAll() {
    std::vector<std::string> keys;
    const int16_t rows = UpperBound16(ListView1.ItemCount());
    for (int32_t i = 1; i <= rows; ++i) {
        const ListItem& row = ListView1.Item(i);
        if (CanBeAcknowledged(row.Key(), row.Tag())) keys.push_back(row.Key());
    }
    // The server's change notification refreshes the list, not the button.
    for (const std::string& key : keys) RunVexlCmd(AcknowledgeCommand(key));
}

void Alarms::AcknowledgeSelected() {
    btnAckSelected.SetEnabled(false);
    DisableUpdate = false;
    const ListItem* row = ListView1.SelectedItem();
    if (row != nullptr && !row->Tag().empty()) RunVexlCmd(AcknowledgeCommand(row->Key()));
}

}  // namespace trovane
