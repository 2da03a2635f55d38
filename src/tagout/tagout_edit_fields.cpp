// The edit dialog's build from the tagout class: tabs, heading, and one caption and value control
// for every attribute shown.
//
// Layout, in twips: the heading line on top, then the tab strip with the frames of its tabs
// stacked inside it (only the selected tab's frame is visible), then OK and Cancel at the bottom
// right. In a frame every attribute takes one line, caption left and value right; the comment takes
// a box of three lines. All frames have the size of the fullest one, so switching tabs moves
// nothing.

#include <algorithm>

#include "core/conversions.h"
#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/text_box.h"
#include "platform/late_bound.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_values.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kInfoHeight = 285;
constexpr int32_t kTabTop = kMargin + kInfoHeight + 60;
constexpr int32_t kTabHeaderHeight = 360;
constexpr int32_t kTabInset = 75;
constexpr int32_t kFramePadding = 150;
constexpr int32_t kFirstRowTop = 210;
constexpr int32_t kRowHeight = 315;
constexpr int32_t kRowPitch = 420;
constexpr int32_t kCommentLines = 3;
constexpr int32_t kLabelGap = 120;
constexpr int32_t kLeastLabelWidth = 1440;
constexpr int32_t kValueWidth = 3600;
constexpr int32_t kCheckWidth = 315;

bool IsCheckedText(const std::string& value) {
    return value == "X";
}
}  // namespace

struct TagoutEditDialog::Field {
    int16_t position = 0;
    std::string name;
    std::string title;
    std::string type;
    int32_t tab = 0;
    bool visible = true;
    bool enabled = true;
};

struct TagoutEditDialog::Layout {
    int32_t top = kFirstRowTop;
    int32_t labelWidth = kLeastLabelWidth;
};

void TagoutEditDialog::Build(Tagout& owner) {
    SetCaption(owner.GetNlsString(mode == "ADD" ? kAddHeadingText : kEditHeadingText));
    BuildTabs(owner);
    BuildHeading(owner);
    const std::vector<Field> fields = ReadFields(owner);
    Layout layout;
    for (const Field& field : fields)
        layout.labelWidth = std::max(layout.labelWidth, TextWidth(field.title) + kLabelGap);
    int32_t frameHeight = kFirstRowTop;
    for (int32_t tab = 1; tab <= TabStrip1.TabCount(); ++tab) {
        layout.top = kFirstRowTop;
        for (const Field& field : fields)
            if (field.tab == tab) AddField(owner, field, *TabFrame(tab), layout);
        frameHeight = std::max(frameHeight, layout.top);
    }
    const int32_t frameWidth = 2 * kFramePadding + layout.labelWidth + kValueWidth;
    frameHeight += kFramePadding;
    for (int32_t tab = 1; tab <= TabStrip1.TabCount(); ++tab)
        TabFrame(tab)->Move(kMargin + kTabInset, kTabTop + kTabHeaderHeight + kTabInset, frameWidth,
                            frameHeight);
    const int32_t tabWidth = frameWidth + 2 * kTabInset;
    const int32_t tabHeight = kTabHeaderHeight + frameHeight + 2 * kTabInset;
    TabStrip1.Move(kMargin, kTabTop, tabWidth, tabHeight);
    Move(Left(), Top(), tabWidth + 2 * kMargin, Height());
    lblInfo.Move(kMargin, kMargin, tabWidth, kInfoHeight);
    AddButtons(kTabTop + tabHeight + kMargin);
    SetCaptionsFromTags(*this, ContainerTexts(owner.Parent()));
    CallMethod(owner.Parent(), "SetCharsetValues", {ControlsObject()});
    ShowTab();
}

// One tab a title of the class's tab strip, from title 1 on; a class without titles has one tab.
void TagoutEditDialog::BuildTabs(Tagout& owner) {
    const Variant titles = owner.GetVOSKClassAttributeProperty("TAB_STRIP", "TITLES", "String()");
    const int32_t count = std::max(1, UpperBoundOf(titles));
    for (int32_t tab = 1; tab <= count; ++tab) {
        const std::string title = TextOf(ElementOf(titles, tab));
        TabStrip1.AddTab(title.empty() ? std::to_string(tab) : title);
        Add<Frame>("Frame1", static_cast<int16_t>(tab - 1));
    }
}

void TagoutEditDialog::BuildHeading(Tagout& owner) {
    if (mode == "ADD") {
        lblInfo.SetCaption(owner.GetNlsString(kAddHeadingText));
        return;
    }
    const clsTagout& model = *owner.clsActiveTagouts;
    const int16_t selected = model.SelectedTagout();
    const std::string number =
        selected >= 1 && selected <= model.CountTagouts() ? model.AttrValue(selected, "#") : std::string();
    lblInfo.SetCaption(number + " : " + owner.GetNlsString(kEditHeadingText));
}

// The class's attributes with their tab; the visibility and enabled flags are kept per class
// attribute, which sits one place before its model position (the row number "#" comes first).
std::vector<TagoutEditDialog::Field> TagoutEditDialog::ReadFields(Tagout& owner) {
    const clsTagout& model = *owner.clsActiveTagouts;
    const Variant enabled = owner.GetVoskClassAttributes("ENABLED", "Long()");
    const Variant visible = owner.GetVoskClassAttributes("VISIBLE", "Long()");
    std::vector<Field> fields;
    for (int16_t p = 1; p <= model.Count("Name"); ++p) {
        Field field;
        field.position = p;
        field.name = model.AttrInstValue(p, "Name");
        field.title = model.AttrInstValue(p, "Title");
        field.type = model.AttrInstValue(p, "Type");
        field.tab = WholeOf(owner.GetVOSKClassAttributeProperty(field.name, "TAB_INDEX", "Integer"), -1);
        field.visible = TruthOf(ElementOf(visible, p - 1), true);
        field.enabled = TruthOf(ElementOf(enabled, p - 1), true);
        if (field.tab >= 1 && field.tab <= TabStrip1.TabCount()) fields.push_back(std::move(field));
    }
    return fields;
}

// The value shown: the tagout's own in mode "EDIT", the class's default for a new tagout, whose
// every attribute is then written.
void TagoutEditDialog::AddField(Tagout& owner, const Field& field, Frame& frame, Layout& layout) {
    if (field.type == "NONE" && mode != "ADD") return;
    if (mode == "ADD") owner.AddChangedAttrName(field.name);
    if (field.type == "NONE" || !field.visible) return;
    Label& caption = Add<Label>("lblAttr", labels++);
    caption.SetContainer(&frame);
    caption.SetCaption(field.title);
    caption.Move(kFramePadding, layout.top + 45, layout.labelWidth - kLabelGap, kRowHeight);
    Control& value = AddValueControl(owner, field, frame, layout);
    value.SetDataField(field.name);
    value.SetEnabled(field.enabled);
    value.SetTabIndex(static_cast<int16_t>(ControlCount()));
}

Control& TagoutEditDialog::AddValueControl(Tagout& owner, const Field& field, Frame& frame, Layout& layout) {
    const clsTagout& model = *owner.clsActiveTagouts;
    std::string value;
    if (mode == "ADD") {
        value = TextOf(owner.GetVOSKClassAttributeProperty(field.name, "VALUE", "String"));
    } else if (model.SelectedTagout() >= 1 && model.SelectedTagout() <= model.CountTagouts()) {
        value = TextOf(ElementOf(model.AttrValues(model.SelectedTagout()), field.position));
    }
    const int32_t left = kFramePadding + layout.labelWidth;
    const int32_t top = layout.top;
    layout.top += kRowPitch;
    if (field.type == "SELECTOR") {
        ComboBox& list = Add<ComboBox>("cboAttr", lists++);
        list.SetContainer(&frame);
        list.SetListStyle(ComboBox::Style::DropDownList);
        list.Move(left, top, kValueWidth, kRowHeight);
        const Variant titles = owner.GetVOSKClassAttributeProperty(field.name, "TITLES", "String()");
        if (titles.IsArray())
            for (int32_t i = titles.AsArray().LowerBound(); i <= titles.AsArray().UpperBound(); ++i)
                list.AddItem(TextOf(titles.AsArray().At(i)));
        SelectTitle(owner, list, value);
        list.SetDataMember(list.Text());
        return list;
    }
    if (field.type == "CHECK_BOX") {
        CheckBox& box = Add<CheckBox>("CbxAttr", checkBoxes++);
        box.SetContainer(&frame);
        box.Move(left, top, kCheckWidth, kRowHeight);
        box.SetValue(IsCheckedText(value) ? 1 : 0);
        box.SetDataMember(IsCheckedText(value) ? "X" : "-");
        if (field.name.starts_with("AM_LOCAL") && !owner.GetBlockingEnabled(field.name))
            box.SetEnabled(false);
        return box;
    }
    TextBox& text = Add<TextBox>("txtAttr", textBoxes++);
    text.SetContainer(&frame);
    if (field.type == "TEXT")
        text.SetMaxLength(std::max(
            0, WholeOf(owner.GetVOSKClassAttributeProperty(field.name, "MAX_LENGTH", "Integer"), 0)));
    if (field.type == "DATE" || field.type == "TIME") text.SetLocked(true);
    if (field.name == "OWNER") value = owner.userName;
    if (field.name == "COMMENT") {
        text.SetMultiLine(true);
        text.Move(left, top, kValueWidth, kCommentLines * kRowHeight);
        layout.top += (kCommentLines - 1) * kRowHeight;
    } else {
        text.Move(left, top, kValueWidth, kRowHeight);
    }
    text.SetText(value);
    text.SetDataMember(text.Text());
    return text;
}

// The first title equal to the value; none in mode "EDIT" warns that the stored value is lost.
void TagoutEditDialog::SelectTitle(Tagout& owner, ComboBox& list, const std::string& value) {
    for (int32_t i = 0; i < list.ListCount(); ++i) {
        if (list.List(i) == value) {
            list.SetListIndex(i);
            return;
        }
    }
    if (mode != "EDIT") return;
    owner.Platform().messageBox->Show(
        owner.GetNlsString(kReadFailedText) + "\r\n" + owner.GetNlsString(kDefaultUsedText), "Warning",
        MessageIcon::Exclamation);
}

void TagoutEditDialog::ShowTab() {
    for (int32_t tab = 1; tab <= TabStrip1.TabCount(); ++tab)
        if (Frame* frame = TabFrame(tab)) frame->SetVisible(tab == TabStrip1.SelectedTab());
}

}  // namespace trovane
