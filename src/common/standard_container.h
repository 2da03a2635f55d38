#pragma once
// StandardContainer: the members every host form offers the panels it sites.
//
// Panels call their container late-bound, by member name, and most of what they ask is the same
// for every host: the command pair with exactly the semantics of CommonFunctions'
// RunVexlCmdGlobal / RunVexlCmdGlobalWithStatus (numbered and traced; the caller's status left as
// it was when nothing was sent), texts, the error dialog, the character set, window order, the
// trace, the language ("getLang"), the operator's name ("sUserName") and the five rights queries,
// answered from a UserRights value. It also answers each sited panel under its site name
// ("Alarms1"): a site without a panel answers Nothing, which panels test for ("when the container
// has one"). A host derives from this class (or wraps it) and registers only what is its own, above
// all the requests the panels leave to it (host_actions.h). Tests use the same class, so host and
// tests cannot disagree on these members.

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "common/common_functions.h"
#include "common/user_rights.h"
#include "platform/late_bound.h"
#include "core/api_begin.h"

namespace trovane {

struct ContainerSettings {
    Variant connection = Variant::Nothing();  // the connection object the commands go through
    int16_t application = 1;                  // the server application number
    std::string userName;
    UserRights rights;
};

class StandardContainer : public DispatchObject {
  public:
    StandardContainer(std::string className, std::shared_ptr<CommonFunctions> functions,
                      ContainerSettings settings);

    CommonFunctions& Functions() const { return *functions; }
    const ContainerSettings& Settings() const { return settings; }
    void SetRights(const UserRights& rights) { settings.rights = rights; }

    Variant RunVexlCmd(const std::string& command);
    Variant RunVexlCmdWithStatus(const std::string& command, int32_t& status);

    // Makes `panel` reachable as member `siteName`; Unsite makes the site answer Nothing again.
    void Site(const std::string& siteName, ObjectRef panel);
    void Unsite(const std::string& siteName);
    // The panel at a site, or Nothing.
    Variant SitedPanel(std::string_view siteName) const;

  private:
    void RegisterCommandMembers();
    void RegisterServiceMembers();
    void RegisterRightsMembers();

    std::shared_ptr<CommonFunctions> functions;
    ContainerSettings settings;
    std::map<std::string, ObjectRef, CaseInsensitiveLess> sites;
};

}  // namespace trovane

#include "core/api_end.h"
