#pragma once
// ObjectCommentDialog (form "frmObjectComment"): the object's comment with its author and time,
// for an authorised operator to edit or clear.
//
// It works for two owners, both reached by member name and held weakly (the indication bar owns the
// dialog): the services owner (the container: "GetNlsString", "IsUserAuthorized",
// "SetCharsetValues") and the panel that opened it ("ChangeComment", which receives the text on OK).
// OK is enabled exactly while the text differs from the text the dialog was filled with, so editing
// back to it disables OK again. Remove only empties the text; nothing reaches the server before OK.
// Without authorisation the text is read-only and Remove disabled.

#include <cstdint>
#include <memory>
#include <string>

#include "core/variant.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "platform/controls/text_box.h"
#include "core/api_begin.h"

namespace trovane {

class ObjectCommentDialog : public Form {
  public:
    static constexpr int32_t kCaptionText = 126;
    static constexpr int32_t kLastEditText = 415;
    static constexpr int32_t kTimeText = 411;

    ObjectCommentDialog();

    // Set before the dialog loads: its captions come from the services owner.
    void SetOwners(const Variant& ownerServices, const Variant& ownerPanel);
    Variant UpdateDialog(const std::string& author, Date time, const std::string& text);

    const std::string& ShownAuthor() const { return author; }
    Date ShownTime() const { return time; }
    const std::string& FilledText() const { return filledText; }

    TextBox& txtComment;
    Label& lblInfo;
    CommandButton& btnOK;
    CommandButton& btnCancel;
    CommandButton& btnRemove;

  private:
    void LayOutControls();
    void OnLoad();
    void OnTextChanged();
    void OnOk();
    Variant OwnerServices() const;
    Variant OwnerPanel() const;
    std::string Text(int32_t id) const;

    std::weak_ptr<Object> ownerServices;
    std::weak_ptr<Object> ownerPanel;
    std::string author;
    Date time{};
    std::string filledText;
};

}  // namespace trovane

#include "core/api_end.h"
