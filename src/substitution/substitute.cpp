// The substitution panel's set-up and loading: Init, the list of signals and the message that
// takes its place when the server cannot answer.

#include <algorithm>

#include "core/conversions.h"
#include "substitution/substitute.h"
#include "substitution/substitution_commands.h"

namespace trovane {

namespace {
constexpr int32_t kObjectTextCaption = 278;
constexpr int32_t kSubstitutedCaption = 460;
constexpr int32_t kTrueText = 598;
constexpr int32_t kFalseText = 599;
constexpr int32_t kColumnPadding = 180;
constexpr int32_t kScrollBarWidth = 255;
constexpr int32_t kRowHeight = 255;
constexpr int32_t kHeaderHeight = 300;

bool IsFailure(const Variant& status) {
    return WholeNumber(status) == -1;
}
}  // namespace

Variant Substitute::Init() {
    Traced(
        "Init",
        [this] {
            SetUpControls();
            language = ToString(CallContainer("getLang"));
            IsSubstitutionHandlingAllowed = IsAllowed("IsSubstitutionHandlingAllowed");
            initUI();
            return true;
        },
        OnFailure::Raise);
    return Variant();
}

void Substitute::initUI() {
    LoadSignals();
}

std::string Substitute::DecimalSeparator() const {
    return Numbers().Separator();
}

LocaleNumbers Substitute::Numbers() const {
    return LocaleNumbers::Of(*services.Platform().locale);
}

void Substitute::LoadSignals() {
    Traced("LoadSignals", [this] {
        if (singleSignal) ArrangeForSingleSignal();
        lastCommand = GetSubstitutionCommand(logicalName, baseIndex, language, singleSignal);
        const Variant answer = RunVexlCmd(lastCommand);
        EnsureColumns();
        ListView1.ClearItems();
        signalList = Variant();
        if (TypeName(answer) != "Variant()" || answer.AsArray().Size() == 0) return true;
        if (IsFailure(services.GetListItemDef(answer, "STATUS", int32_t{-1}))) {
            ShowSubstitutionMessage(ToString(services.GetListItemDef(answer, "MESSAGE", "N/A")));
            return true;
        }
        ShowListAgain();
        signalList = services.GetListItemDef(answer, "SIGNALS", Variant());
        if (!HasSignals()) return true;
        AddRows();
        FillQualities();
        if (!singleSignal) FitColumns();
        ListView1.SelectItem(&ListView1.Item(1));
        ShowSelectedSignal();
        return true;
    });
}

bool Substitute::HasSignals() const {
    return TypeName(signalList) == "Variant()" && signalList.AsArray().UpperBound() >= 1;
}

void Substitute::EnsureColumns() {
    if (ListView1.ColumnCount() > 0) return;
    ListView1.AddColumn("");
    ListView1.AddColumn(GetNlsString(kObjectTextCaption));
    ListView1.AddColumn(GetNlsString(kSubstitutedCaption));
}

// Rows are counted as the classic 16-bit counter counts them: a longer list overflows.
void Substitute::AddRows() {
    const int32_t count = signalList.AsArray().UpperBound();
    if (count > INT16_MAX) throw Error(ErrorNumber::Overflow);
    const std::string substituted = GetNlsString(kTrueText);
    const std::string notSubstituted = GetNlsString(kFalseText);
    for (int32_t i = 1; i <= count; ++i) {
        const SubstitutionSignal signal(services, signalList.AsArray().At(i));
        ListItem& row = ListView1.AddItem(ToString(signal.Text()));
        row.SetSubItem(1, WholeNumber(signal.Substituted()) == 0 ? notSubstituted : substituted);
    }
}

void Substitute::FillQualities() {
    Cmb_Quality.Clear();
    for (const char* quality : {"Good", "Questionable", "Bad"}) Cmb_Quality.AddItem(quality);
    Cmb_Quality.SetListIndex(0);
}

// Each column as wide as its widest text; the last one then reaches the list's right edge, inside
// the vertical scroll bar when the rows need one.
void Substitute::FitColumns() {
    for (int32_t column = 1; column <= ListView1.ColumnCount(); ++column) {
        int32_t widest = TextWidth(ListView1.Column(column).text);
        for (int32_t row = 1; row <= ListView1.ItemCount(); ++row) {
            const ListItem& item = ListView1.Item(row);
            widest = std::max(widest, TextWidth(column == 1 ? item.Text() : item.SubItem(column - 1)));
        }
        ListView1.SetColumnWidth(column, widest + kColumnPadding);
    }
    const bool scrolls = kHeaderHeight + ListView1.ItemCount() * kRowHeight > ListView1.Height();
    int32_t others = 0;
    for (int32_t column = 1; column < ListView1.ColumnCount(); ++column)
        others += ListView1.Column(column).width;
    const int32_t last = ListView1.ColumnCount();
    const int32_t visible = ListView1.Width() - (scrolls ? kScrollBarWidth : 0) - kColumnPadding - others;
    if (visible > ListView1.Column(last).width) ListView1.SetColumnWidth(last, visible);
}

void Substitute::ShowSubstitutionMessage(const std::string& text) {
    SetValueEntryEnabled(false);
    SetEditButtonsEnabled(false);
    ListView1.SetVisible(false);
    txt_Message.Move(ListView1.Left(), ListView1.Top(), ListView1.Width(), ListView1.Height());
    txt_Message.SetText(text);
    txt_Message.SetVisible(true);
}

// A successful read after a failed one brings the list back in place of the message.
void Substitute::ShowListAgain() {
    txt_Message.SetVisible(false);
    ListView1.SetVisible(true);
}

void Substitute::SetEditButtonsEnabled(bool enabled) {
    Btn_Set.SetEnabled(enabled);
    Btn_Cancel.SetEnabled(enabled);
}

void Substitute::SetValueEntryEnabled(bool enabled) {
    for (int16_t index = 0; index < kStateButtons; ++index) StateButton(index).SetEnabled(enabled);
    txt_Value.SetEnabled(enabled);
}

}  // namespace trovane
