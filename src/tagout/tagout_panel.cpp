// The tagout panel's set-up, its table and the selection rules.
//
// The table's rows are keyed "#1", "#2", ... by their number, never by the tagout's key: keys come
// from the server and an empty or repeated one must not break the table. The first column shows the
// number, which is how a clicked row finds its tagout again.

#include "core/conversions.h"
#include "platform/window_system.h"
#include "tagout/tagout.h"
#include "tagout/tagout_values.h"

namespace trovane {

namespace {
// Beside its widest text a column keeps 20 pixels, for the cell's margins.
constexpr int32_t kColumnPaddingPixels = 20;

std::string Upper(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

std::string RowKey(int16_t position) {
    return "#" + std::to_string(position);
}
}  // namespace

Variant Tagout::Init() {
    if (setUpDone) return Variant();
    setUpDone = true;
    clsActiveTagouts = std::make_shared<clsTagout>(services.Platform().messageBox);
    colChangedAttrNames = std::make_shared<cStrColl>(services.Platform().messageBox);
    QueryTagoutClass();
    if (classExists)
        Traced(
            "Init",
            [this] {
                SetUpControls();
                BuildColumns();
                return true;
            },
            OnFailure::Raise);
    ReadContainerFlags();
    SetButtonState();
    return Variant();
}

// The row number "#" first, then every class attribute; a column for each visible one. Titles and
// visibility the class does not give are taken as the attribute's name and as visible.
void Tagout::BuildColumns() {
    ListView1.ClearColumns();
    const Variant names = GetVoskClassAttributes("NAMES", "String()");
    const Variant titles = GetVoskClassAttributes("TITLES", "String()");
    const Variant visible = GetVoskClassAttributes("VISIBLE", "Long()");
    if (UpperBoundOf(names) < 1) {
        ListView1.SetVisible(false);
        return;
    }
    clsTagout& model = *clsActiveTagouts;
    ListView1.AddColumn("#", ColumnWidth("#"));
    model.AddAttrName("#", 0);
    model.AddAttrTitle("#", 0);
    model.AddAttrType("NONE", 0);
    model.AddAttrVisible("TRUE", 0);
    for (int32_t i = 1; i <= UpperBoundOf(names); ++i) {
        const std::string name = TextOf(ElementOf(names, i));
        const Variant titleValue = ElementOf(titles, i);
        const std::string title = titleValue.IsEmpty() ? name : TextOf(titleValue);
        model.AddAttrTitle(title, 0);
        model.AddAttrName(name, 0);
        model.AddAttrType(TextOf(GetVOSKClassAttributeProperty(name, "TYPE", "String")), 0);
        if (TruthOf(ElementOf(visible, i), true)) {
            model.AddAttrVisible("TRUE", 0);
            ListView1.AddColumn(title, ColumnWidth(title));
        } else {
            model.AddAttrVisible("FALSE", 0);
        }
    }
}

void Tagout::ReadContainerFlags() {
    userName = TextOf(CallContainer("sUserName"));
    onOtherMonitor = TruthOf(CallContainer("IsSelectedOnOtherMonitor"), false);
    authorized = TruthOf(CallContainer("IsUserAuthorized"), false);
}

// Forgets the tagouts read before, keeping the class's attributes.
void Tagout::ResetTagouts() {
    clsTagout& model = *clsActiveTagouts;
    while (model.CountTagouts() > 0) model.RemoveAttrValueColl(1);
    model.SetSelectedTagout(0);
    rowSelected = false;
    ownTagout = false;
}

void Tagout::RefreshTagouts() {
    ListView1.ClearItems();
    ResetTagouts();
    clsTagout& model = *clsActiveTagouts;
    if (model.Count("Name") > 0) {
        const int32_t count = CountActiveTagouts();
        const Variant keys = count >= 1 ? GetTagoutNames() : Variant();
        for (int16_t t = 1; t <= count; ++t) {
            cStrColl values(services.Platform().messageBox);
            values.Add(std::to_string(t));
            const std::string key = TextOf(ElementOf(keys, t));
            for (int16_t p = 2; p <= model.Count("Name"); ++p)
                values.Add(TextOf(ReadTagoutAttributeValue(key, model.AttrInstValue(p, "Name"))));
            model.AddAttrValueColl(values.StrArray());
            model.SetCollName(t, key);
            AddTableRow(t);
        }
    }
    if (ListView1.ItemCount() > 0) ListView1.SelectItem(&ListView1.Item(1));
    OnItemClick();
}

void Tagout::RefreshTagoutListView(int16_t position) {
    ListView1.ClearItems();
    for (int16_t t = 1; t <= clsActiveTagouts->CountTagouts(); ++t) AddTableRow(t);
    ListView1.SelectItem(position >= 1 && position <= ListView1.ItemCount() ? &ListView1.Item(position)
                                                                            : nullptr);
    OnItemClick();
}

// A row of the model's tagout at `position`: its number, then each visible value. A value list
// shorter than the class's attributes shows empty cells.
void Tagout::AddTableRow(int16_t position) {
    const clsTagout& model = *clsActiveTagouts;
    const Variant values = model.AttrValues(position);
    ListItem& row = ListView1.AddItem(std::to_string(position), RowKey(position));
    Widen(1, row.Text());
    int32_t column = 1;
    for (int16_t p = 2; p <= model.Count("Name"); ++p) {
        if (model.AttrInstValue(p, "Visible") != "TRUE") continue;
        const std::string value = TextOf(ElementOf(values, p));
        row.SetSubItem(column, value);
        Widen(++column, value);
    }
}

void Tagout::Widen(int32_t column, const std::string& text) {
    if (column > ListView1.ColumnCount()) return;
    const int32_t width = ColumnWidth(text);
    if (ListView1.Column(column).width < width) ListView1.SetColumnWidth(column, width);
}

int32_t Tagout::ColumnWidth(const std::string& text) const {
    return TextWidth(text) +
           RoundToInt32(kColumnPaddingPixels * services.Platform().windows->TwipsPerPixelX());
}

void Tagout::AddEmptyTagout() {
    clsTagout& model = *clsActiveTagouts;
    model.AddEmptyAttrValueColl();
    const int16_t selected = model.CountTagouts();
    model.SetSelectedTagout(selected);
    model.SetCollName(selected, CreateUniqueKeyName());
    model.SetSelectedTagoutName(selected);
    AddTableRow(selected);
    ListView1.SelectItem(&ListView1.Item(ListView1.ItemCount()));
}

// The selected row's number is its tagout's position; a row without a key is no tagout.
void Tagout::OnItemClick() {
    clsTagout& model = *clsActiveTagouts;
    rowSelected = false;
    ownTagout = false;
    model.SetSelectedTagout(0);
    const ListItem* item = ListView1.SelectedItem();
    const int32_t position = item && !item->Key().empty() ? WholeOf(Variant(item->Text()), 0) : 0;
    if (position >= 1 && position <= model.CountTagouts()) {
        const auto selected = static_cast<int16_t>(position);
        model.SetSelectedTagout(selected);
        model.SetSelectedTagoutName(selected);
        ownTagout = Upper(model.AttrValue(selected, "OWNER")) == Upper(userName);
        rowSelected = true;
    }
    SetButtonState();
}

void Tagout::SetButtonState() {
    const bool mayChange = !onOtherMonitor && authorized && classExists;
    btnAdd.SetEnabled(mayChange);
    btnEdit.SetEnabled(mayChange && rowSelected && ownTagout);
    btnRemove.SetEnabled(mayChange && rowSelected && ownTagout);
}

void Tagout::OnDblClick() {
    if (rowSelected && ownTagout && !onOtherMonitor && classExists) ShowTagoutEditDialog("EDIT");
}

void Tagout::RemoveTagout() {
    clsTagout& model = *clsActiveTagouts;
    const int16_t selected = model.SelectedTagout();
    if (selected < 1 || selected > model.CountTagouts()) return;
    if (ListItem* row = ListView1.SelectedItem()) ListView1.RemoveItem(row->Index());
    RemoveTagoutFromSDB();
    model.RemoveAttrValueColl(selected);
    for (const char* name : {"PRIORITY", "TAG_REPR", "TAG_TEXT"}) colChangedAttrNames->AddNew(name);
    const int16_t remaining = model.CountTagouts();
    if (remaining > 0) {
        model.SetSelectedTagout(remaining);
        model.SetSelectedTagoutName(remaining);
        EventShoot(false);
    } else {
        model.SetSelectedTagout(0);
        model.ClearSelectedTagoutName();
        EventShoot(true);
    }
    RefreshTagoutListView(remaining);
}

}  // namespace trovane
