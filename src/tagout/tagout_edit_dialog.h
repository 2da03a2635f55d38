#pragma once
// TagoutEditDialog: the form in which an operator fills in a new tagout (mode "ADD") or changes the
// selected one (mode "EDIT").
//
// It has no fixed fields: when it loads it asks the panel for the tagout class and builds one tab a
// tab title, each showing one frame of the Frame1 array, and on the tab named by an attribute's
// TAB_INDEX a caption (lblAttr) and a value control chosen by the attribute's type: a drop-down
// list (cboAttr) for "SELECTOR", a text box (txtAttr) for "DATE", "TIME", "TEXT" (at most
// MAX_LENGTH characters) and for types it does not know, a check box (CbxAttr, "X" or "-") for
// "CHECK_BOX", nothing for "NONE". Each value control keeps its attribute's name in DataField and
// the value it showed when built in DataMember; OK writes what differs (everything in mode "ADD")
// into the panel's model and hands the server work back to the panel. Date and time are stamped by
// the server on OK, so their boxes are read-only. An attribute the class marks invisible gets no
// controls; a disabled one is shown but cannot be changed. Class properties that are missing or of
// the wrong type give stand-ins, never a failure: the dialog is always usable.
//
// The panel is held weakly (it owns the dialog). Closing the dialog other than by OK writes nothing
// and forgets the attributes the build recorded as changed.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/variant.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/controls/label.h"
#include "platform/controls/tab_strip.h"
#include "core/api_begin.h"

namespace trovane {

class Tagout;

class TagoutEditDialog : public Form {
  public:
    static constexpr int32_t kAddHeadingText = 525;
    static constexpr int32_t kEditHeadingText = 526;
    static constexpr int32_t kReadFailedText = 510;
    static constexpr int32_t kDefaultUsedText = 511;

    TagoutEditDialog();

    // Set before the dialog loads.
    void SetPanel(const std::shared_ptr<Tagout>& panel, std::string mode);
    const std::string& Mode() const { return mode; }
    // Whether the dialog is open.
    bool I_Am_Open() const { return Loaded(); }

    // The frame a tab shows (1-based tab), or nullptr.
    Frame* TabFrame(int32_t tab) const;

    TabStrip& TabStrip1;
    Label& lblInfo;
    // Made when the dialog loads, after the fields, so that the keyboard reaches them last.
    CommandButton* btnOK = nullptr;
    CommandButton* btnCancel = nullptr;

  private:
    struct Field;
    struct Layout;

    void OnLoad();
    void OnUnload();
    void OnOk();
    void Build(Tagout& panel);
    void BuildTabs(Tagout& panel);
    void BuildHeading(Tagout& panel);
    std::vector<Field> ReadFields(Tagout& panel);
    void AddField(Tagout& panel, const Field& field, Frame& frame, Layout& layout);
    Control& AddValueControl(Tagout& panel, const Field& field, Frame& frame, Layout& layout);
    void SelectTitle(Tagout& panel, class ComboBox& box, const std::string& value);
    void AddButtons(int32_t top);
    void ShowTab();

    std::weak_ptr<Tagout> panel;
    std::string mode;
    bool written = false;
    int16_t labels = 0;
    int16_t textBoxes = 0;
    int16_t lists = 0;
    int16_t checkBoxes = 0;
};

}  // namespace trovane

#include "core/api_end.h"
