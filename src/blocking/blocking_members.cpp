// The blocking panel's public members by name, for hosts and panels that reach it late-bound.
// Names the panel does not know itself fall through to the form (its properties and controls).

#include "blocking/blocking.h"
#include "common/panel_members.h"
#include "core/conversions.h"

namespace trovane {

Variant Blocking::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (members.Answers(member)) return members.Invoke(member, kind, args);
    return Form::Invoke(member, kind, args);
}

void Blocking::RegisterMembers() {
    members.Property(
        "logicalName", [this] { return Variant(logicalName); },
        [this](const Variant& v) { logicalName = ToString(v); });
    members.Property(
        "baseIndex", [this] { return Variant(baseIndex); },
        [this](const Variant& v) { baseIndex = ToInt32(v); });
    members.Property("isRefreshing", [this] { return Variant(isRefreshing); });
    for (const BlockingKind& blockingKind : kBlockingKinds) {
        const int16_t position = blockingKind.position;
        members.Property(
            std::string(blockingKind.property), [this, position] { return Variant(KindValue(position)); },
            [this, position](const Variant& v) { SetKindValue(position, ToInt16(v)); });
    }
    members.Method("Init", [this](std::span<Variant>) { return Init(); });
    members.Method("RefreshStates", ReturningEmpty([this](std::span<Variant>) { RefreshStates(); }));
    members.Method("SetDirty", ReturningEmpty([this](std::span<Variant>) { SetDirty(); }));
    members.Method("EnableSingleBlocking",
                   ReturningEmpty([this](std::span<Variant>) { EnableSingleBlocking(); }));
    members.Method("SetSingleBlocking", ReturningEmpty([this](std::span<Variant> args) {
                       SetSingleBlocking(ToBool(RequiredArgument(args, 0)));
                   }));
    members.Method("GetBlocking", [this](std::span<Variant>) { return GetBlocking(); });
    members.Method("SetBlocking", [this](std::span<Variant> args) {
        std::array<int16_t, kBlockingKindCount> v{};
        for (size_t i = 0; i < v.size(); ++i) v[i] = ToInt16(RequiredArgument(args, i));
        return SetBlocking(v[0], v[1], v[2], v[3], v[4], v[5]);
    });
    members.Method("GetAndsetDisabledBlockings",
                   [this](std::span<Variant>) { return GetAndsetDisabledBlockings(); });
}

}  // namespace trovane
