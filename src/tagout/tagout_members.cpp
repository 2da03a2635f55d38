// The tagout panel's public members by name, for the host and for the edit dialog that works on
// the panel's model. Names the panel does not know itself fall through to the form.

#include "common/panel_members.h"
#include "core/conversions.h"
#include "tagout/tagout.h"

namespace trovane {

namespace {
using Args = std::span<Variant>;

std::string Text(Args args, size_t index) {
    return ToString(RequiredArgument(args, index));
}
}  // namespace

void Tagout::RegisterMembers() {
    PublishObjectIdentity(Members(), logicalName, baseIndex);
    Members().Property("clsActiveTagouts", [this] { return Variant(ObjectRef(clsActiveTagouts)); });
    Members().Property("colChangedAttrNames", [this] { return Variant(ObjectRef(colChangedAttrNames)); });
    Members().Method("bClassHasActionMethods", [this](Args) { return Variant(bClassHasActionMethods()); });
    Members().Method("GetVoskClassAttributes",
                     [this](Args a) { return GetVoskClassAttributes(Text(a, 0), Text(a, 1)); });
    Members().Method("GetVOSKClassAttributeProperty", [this](Args a) {
        return GetVOSKClassAttributeProperty(Text(a, 0), Text(a, 1), Text(a, 2));
    });
    Members().Method("GetVOSKClassAttributePostProcessing",
                     [this](Args a) { return GetVOSKClassAttributePostProcessing(Text(a, 0)); });
    Members().Method("NotifyVOSKTime", ReturningEmpty([this](Args a) { NotifyVOSKTime(Text(a, 0)); }));
    Members().Method("GetVOSKDate", [this](Args) { return Variant(GetVOSKDate()); });
    Members().Method("GetVOSKTime", [this](Args) { return Variant(GetVOSKTime()); });
    Members().Method("GetBlockingEnabled",
                     [this](Args a) { return Variant(GetBlockingEnabled(Text(a, 0))); });
    Members().Method("AddChangedAttrName",
                     ReturningEmpty([this](Args a) { AddChangedAttrName(Text(a, 0)); }));
    Members().Method("EventShoot",
                     ReturningEmpty([this](Args a) { EventShoot(ToBool(RequiredArgument(a, 0))); }));
    Members().Method("AddEmptyTagoutToSDB", ReturningEmpty([this](Args) { AddEmptyTagoutToSDB(); }));
    Members().Method("EditTagoutInSDB",
                     ReturningEmpty([this](Args a) { EditTagoutInSDB(ToInt16(RequiredArgument(a, 0))); }));
    Members().Method("CreateUniqueKeyName", [this](Args) { return Variant(CreateUniqueKeyName()); });
}

// The panel's own operations, for the host and for its dialogs.
void Tagout::RegisterPanelMembers() {
    Members().Method("Init", [this](Args) { return Init(); });
    Members().Method("RefreshTagouts", ReturningEmpty([this](Args) { RefreshTagouts(); }));
    Members().Method("RefreshTagoutListView", ReturningEmpty([this](Args a) {
                         RefreshTagoutListView(ToInt16(RequiredArgument(a, 0)));
                     }));
    Members().Method("AddEmptyTagout", ReturningEmpty([this](Args) { AddEmptyTagout(); }));
    Members().Method("RemoveTagout", ReturningEmpty([this](Args) { RemoveTagout(); }));
    Members().Method("SetButtonState", ReturningEmpty([this](Args) { SetButtonState(); }));
    Members().Method("UnLoadTagoutEditDialog", ReturningEmpty([this](Args) { UnLoadTagoutEditDialog(); }));
    Members().Method("On_UnloadTagoutEditDialog",
                     ReturningEmpty([this](Args) { On_UnloadTagoutEditDialog(); }));
    Members().Method("GetNlsString",
                     [this](Args a) { return Variant(GetNlsString(ToInt32(RequiredArgument(a, 0)))); });
    Members().Method("SetCharsetValues", ReturningEmpty([this](Args) { SetCharsetValues(); }));
}

}  // namespace trovane
