#pragma once
// TagoutRemovalDialog (form "frmTagoutRemoval"): asks whether the selected tagout is to be removed.
//
// The panel fills the four texts (window caption, question, OK and Cancel captions) before the
// dialog loads, and hands over itself; OK asks it to remove the tagout selected at that moment,
// Cancel only closes. The panel is held weakly: it owns the dialog.

#include <array>
#include <memory>
#include <string>

#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "core/api_begin.h"

namespace trovane {

class Tagout;

class TagoutRemovalDialog : public Form {
  public:
    TagoutRemovalDialog();

    // Caption, question, OK, Cancel.
    void SetTexts(std::array<std::string, 4> texts);
    void SetPanel(const std::shared_ptr<Tagout>& panel);

    Label& lblText;
    CommandButton& btnOK;
    CommandButton& btnCancel;

  private:
    void LayOutControls();
    void OnLoad();
    void OnOk();

    std::array<std::string, 4> texts;
    std::weak_ptr<Tagout> panel;
};

}  // namespace trovane

#include "core/api_end.h"
