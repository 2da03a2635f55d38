// The indication bar's public members by name, for the host and for the comment dialog (which hands
// its text to "ChangeComment"). Arguments the classic signatures pass by reference are written back.

#include "common/panel_members.h"
#include "core/conversions.h"
#include "indication/indication_bar.h"

namespace trovane {

void IndicationBar::RegisterMembers() {
    Members().Method("Activate", [this](std::span<Variant> args) {
        return Activate(ToInt16(RequiredArgument(args, 0)), ToString(RequiredArgument(args, 1)),
                        ToString(RequiredArgument(args, 2)), RequiredArgument(args, 3));
    });
    Members().Method("Deactivate", ReturningEmpty([this](std::span<Variant>) { Deactivate(); }));
    Members().Method("RunVexlCmd", [this](std::span<Variant> args) {
        return RunVexlCmd(ToString(RequiredArgument(args, 0)));
    });
    Members().Method("RunVexlCmdWithStatus", [this](std::span<Variant> args) {
        Variant& statusArgument = RequiredArgument(args, 1);
        int32_t status = ToInt32(statusArgument);
        Variant result = RunVexlCmdWithStatus(ToString(RequiredArgument(args, 0)), status);
        statusArgument = Variant(status);
        return result;
    });
    Members().Method("ChangeComment", ReturningEmpty([this](std::span<Variant> args) {
                         Variant& commentArgument = RequiredArgument(args, 0);
                         std::string comment = ToString(commentArgument);
                         ChangeComment(comment);
                         commentArgument = Variant(comment);
                     }));
    Members().Method("DisableUI", ReturningEmpty([this](std::span<Variant>) { DisableUI(); }));
    Members().Method("EnableUI", ReturningEmpty([this](std::span<Variant>) { EnableUI(); }));
    Members().Method("RemoveTip", ReturningEmpty([this](std::span<Variant>) { RemoveTip(); }));
    Members().Method("MoveTip", ReturningEmpty([this](std::span<Variant>) { MoveTip(); }));
}

}  // namespace trovane
