// The blocking panel's public members by name, for hosts and panels that reach it late-bound.
// Names the panel does not know itself fall through to the form (its properties and controls).

#include "blocking/blocking.h"
#include "common/panel_members.h"
#include "core/conversions.h"

namespace trovane {

void Blocking::RegisterMembers() {
    PublishObjectIdentity(Members(), logicalName, baseIndex);
    Members().Property("isRefreshing", [this] { return Variant(isRefreshing); });
    for (const BlockingKind& blockingKind : kBlockingKinds) {
        const int16_t position = blockingKind.position;
        Members().Property(
            std::string(blockingKind.property), [this, position] { return Variant(KindValue(position)); },
            [this, position](const Variant& v) { SetKindValue(position, ToInt16(v)); });
    }
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("RefreshStates", ReturningEmpty([this](std::span<Variant>) { RefreshStates(); }));
    Members().Method("SetDirty", ReturningEmpty([this](std::span<Variant>) { SetDirty(); }));
    Members().Method("EnableSingleBlocking",
                     ReturningEmpty([this](std::span<Variant>) { EnableSingleBlocking(); }));
    Members().Method("SetSingleBlocking", ReturningEmpty([this](std::span<Variant> args) {
                         SetSingleBlocking(ToBool(RequiredArgument(args, 0)));
                     }));
    Members().Method("GetBlocking", [this](std::span<Variant>) { return GetBlocking(); });
    Members().Method("SetBlocking", [this](std::span<Variant> args) {
        std::array<int16_t, kBlockingKindCount> v{};
        for (size_t i = 0; i < v.size(); ++i) v[i] = ToInt16(RequiredArgument(args, i));
        return SetBlocking(v[0], v[1], v[2], v[3], v[4], v[5]);
    });
    Members().Method("GetAndsetDisabledBlockings",
                     [this](std::span<Variant>) { return GetAndsetDisabledBlockings(); });
}

}  // namespace trovane
