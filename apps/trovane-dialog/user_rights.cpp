#include "user_rights.h"

#include <sstream>

#include "core/object.h"

namespace trovane::dialog {

namespace {
bool Grant(UserRights& rights, const std::string& name) {
    if (EqualsIgnoringCase(name, "authorized")) return rights.authorized = true;
    if (EqualsIgnoringCase(name, "engineer")) return rights.engineer = true;
    if (EqualsIgnoringCase(name, "alarms")) return rights.alarmHandling = true;
    if (EqualsIgnoringCase(name, "blocking")) return rights.blockingHandling = true;
    if (EqualsIgnoringCase(name, "substitution")) return rights.substitutionHandling = true;
    return false;
}
}  // namespace

std::optional<UserRights> ParseUserRights(const std::string& text) {
    if (EqualsIgnoringCase(text, "all")) return UserRights::All();
    UserRights rights = UserRights::None();
    if (EqualsIgnoringCase(text, "none")) return rights;
    std::istringstream names(text);
    std::string name;
    while (std::getline(names, name, ',')) {
        if (name.empty()) continue;
        if (!Grant(rights, name)) return std::nullopt;
    }
    return rights;
}

}  // namespace trovane::dialog
