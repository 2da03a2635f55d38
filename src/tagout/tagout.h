#pragma once
// Tagout: the panel that keeps the tagouts (hold cards) of one process object.
//
// The server keeps the tagouts and the tagout class that defines their attributes; the panel holds
// what it read in a clsTagout model (`clsActiveTagouts`) and collects in `colChangedAttrNames` the
// attributes whose change the server must hear of as an event. Every request goes through the
// container's "RunVexlCmd"; texts come from its "GetNlsString" and errors go to its "ShowError".
//
// Server answers are checked by type name. A failed check never raises: the operation falls back to
// a documented default and, where the operator must know, shows why: text 512 when the answer is
// the error code 5007 (the tagout class database does not exist), otherwise the server's message
// for the code (asked with GET_ERRORMSG), or text 513 when there is no code or no message. Writes
// are fire-and-forget: their answer is kept in `lastResult` and nothing else is done with it.
// What the container raises goes on to the caller, and so does the model's index error when a
// tagout position is outside the model.
//
// The model's attribute position 1 is the row number "#", never a class attribute, so every
// write walks the attributes from position 2.
//
// The table shows one row a tagout: its number, then the value of each visible attribute. Only the
// owner of a tagout (compared without regard to case) may edit or remove it, only an authorised
// user may add, and a panel whose object is selected on another monitor changes nothing. Adding and
// editing happen in the edit dialog (TagoutEditDialog), removal after the removal dialog
// (frmTagoutRemoval) confirms; both are opened through the presenter and ordered by the
// container's "SetWindowOrder". Further container members: "sUserName",
// "IsSelectedOnOtherMonitor", "IsUserAuthorized" (read once, at set-up), "DebugInfo" and the host
// window's "Left", "Top", "Width" and "Height".

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "common/panel.h"
#include "platform/controls/command_button.h"
#include "platform/controls/list_view.h"
#include "tagout/cls_tagout.h"
#include "tagout/str_coll.h"
#include "core/api_begin.h"

namespace trovane {

class TagoutEditDialog;
class TagoutRemovalDialog;

class Tagout : public Panel {
  public:
    explicit Tagout(PlatformServices platform = PlatformServices::Defaults());
    ~Tagout() override;

    // ---- Set-up and the table ----------------------------------------------------------------
    // Once: the class's attributes into the model and the table's columns, then the user's name
    // and flags from the container.
    Variant Init();
    // Reads every active tagout (99 at most) into the model and the table.
    void RefreshTagouts();
    // Rewrites the table from the model and selects the row of `position` (none for 0).
    void RefreshTagoutListView(int16_t position);
    // A new tagout with empty values and a fresh key, selected, in the model and the table only.
    void AddEmptyTagout();
    // Takes the selected tagout away, on the server too; the tag indication follows the last
    // remaining tagout, or is reset when none remains.
    void RemoveTagout();
    void SetButtonState();

    // ---- The dialogs -------------------------------------------------------------------------
    // Opens the edit dialog in mode "ADD" or "EDIT".
    void ShowTagoutEditDialog(const std::string& mode);
    void ShowRemovalDialog();
    void UnLoadTagoutEditDialog();
    void On_UnloadTagoutEditDialog();
    // The open dialogs, or nullptr.
    TagoutEditDialog* EditDialog() const;
    TagoutRemovalDialog* RemovalDialog() const;

    // Forwarded to the container, for the dialogs.
    using Panel::GetNlsString;
    using Panel::SetCharsetValues;
    const PlatformServices& Platform() const { return services.Platform(); }

    bool RowSelected() const { return rowSelected; }
    bool OwnTagout() const { return ownTagout; }
    bool OnOtherMonitor() const { return onOtherMonitor; }
    bool Authorized() const { return authorized; }

    // ---- Class queries -----------------------------------------------------------------------
    bool bClassHasActionMethods();
    // The class's list of one property for every attribute ("NAMES", "VISIBLE", ...) when it has
    // the expected type name, else Nothing.
    Variant GetVoskClassAttributes(const std::string& propertyName, const std::string& expectedType);
    // One property of one attribute; an answer of another type is replaced by the expected type's
    // stand-in ("Integer": -1 unless numeric, "String": "Error in SDB", "Array": ("Error","in SDB")).
    Variant GetVOSKClassAttributeProperty(const std::string& attributeName, const std::string& propertyName,
                                          const std::string& expectedType);
    Variant GetVOSKClassAttributePostProcessing(const std::string& attributeName);

    // ---- Server date and time ----------------------------------------------------------------
    void NotifyVOSKTime(const std::string& text);
    std::string GetVOSKDate();
    std::string GetVOSKTime();
    // Whether local blocking may be set from a tagout: always, whatever the attribute.
    bool GetBlockingEnabled(const std::string& name) const;

    // ---- Writes --------------------------------------------------------------------------------
    void AddChangedAttrName(const std::string& name);
    // Tells the server about each changed attribute that drives the object's tag (PRIORITY,
    // TAG_TEXT, TAG_REPR), resetting the tag when `reset`; then forgets the changed names.
    void EventShoot(bool reset);
    void AddEmptyTagoutToSDB();
    // Writes the changed attributes of the tagout at a model position.
    void EditTagoutInSDB(int16_t position);
    // Takes the selected tagout back on the server: its action methods undone, then removed and
    // deleted.
    void RemoveTagoutFromSDB();
    // A key for a new tagout: the server's, or one made here when the server has none.
    std::string CreateUniqueKeyName();

    // ---- The panel's own checks and reads (not published by name) ---------------------------
    bool CheckTagoutResult(const Variant& result, std::string_view expectedType, bool show);
    // 0 when the answer is not a count; never 100 or more.
    int32_t CountActiveTagouts();
    // The keys of the active tagouts; ("") at index 1 when the server gave none.
    Variant GetTagoutNames();
    // The value, or the server's message when it answers an error code.
    Variant ReadTagoutAttributeValue(const std::string& key, const std::string& attributeName);
    // Sets classExists.
    void QueryTagoutClass();

    // Identity of the object, set by the container before the panel is used.
    std::string logicalName;
    int32_t baseIndex = 0;
    std::string userName;

    bool classExists = false;
    Variant lastResult;
    std::shared_ptr<clsTagout> clsActiveTagouts;
    std::shared_ptr<cStrColl> colChangedAttrNames;

    ListView& ListView1;
    CommandButton& btnAdd;
    CommandButton& btnEdit;
    CommandButton& btnRemove;

  private:
    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();
    void RegisterPanelMembers();

    void BuildColumns();
    void ReadContainerFlags();
    void ResetTagouts();
    void AddTableRow(int16_t position);
    void Widen(int32_t column, const std::string& text);
    int32_t ColumnWidth(const std::string& text) const;
    void OnItemClick();
    void OnDblClick();
    void PlaceOverHost(Form& dialog);
    void PresentDialog(Form& dialog);
    // The server's message for an error code, or text 513 when it has none.
    std::string ErrorText(int32_t code);
    void Write(const std::string& command);
    std::string EditedValue(int16_t position, int16_t attribute, const std::string& name);
    std::string LocalKeyName() const;

    bool setUpDone = false;
    bool onOtherMonitor = false;
    bool authorized = false;
    bool rowSelected = false;
    bool ownTagout = false;
    std::shared_ptr<TagoutEditDialog> editDialog;
    std::shared_ptr<TagoutRemovalDialog> removalDialog;
};

}  // namespace trovane

#include "core/api_end.h"
