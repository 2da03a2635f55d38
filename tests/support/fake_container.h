#pragma once
// The host form that sites a panel, as panel tests need it.
//
// FakeContainer is the library's StandardContainer (the very members a host offers: the command
// pair through a real CommonFunctions and a FakeConnection, so commands are numbered and traced as
// in production, texts, character sets, window order, the trace, the language, the user name and
// the rights queries, all allowed unless a test says otherwise), with two differences for tests:
// "ShowError" is recorded instead of opening the error dialog, and every call is recorded by name
// with its arguments as they arrived, whether the container answers it or not. Panel tests add
// their panel-specific members with Method / Property, or a stored value with Value.

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/standard_container.h"
#include "core/conversions.h"
#include "support/fake_connection.h"

namespace trovane::testing {

class FakeContainer : public StandardContainer {
  public:
    struct Call {
        std::string member;
        CallKind kind;
        std::vector<Variant> args;
    };

    explicit FakeContainer(std::shared_ptr<CommonFunctions> common = std::make_shared<CommonFunctions>(),
                           std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>(),
                           int16_t application = 1)
        : StandardContainer(
              "frmContainer", common,
              ContainerSettings{connection->AsVariant(), application, "operator", UserRights::All()}),
          common_(std::move(common)),
          connection_(std::move(connection)) {
        Method("ShowError", [this](std::span<Variant> args) {
            shownErrors.push_back(ToString(RequiredArgument(args, 0)));
            return Variant();
        });
    }

    // The container as a panel receives it.
    Variant AsVariant() { return Variant(shared_from_this()); }
    CommonFunctions& Common() { return *common_; }
    FakeConnection& ConnectionObject() { return *connection_; }

    // Answers one rights query ("IsBlockingHandlingAllowed", ...) as told.
    void SetRight(std::string_view query, bool allowed) {
        UserRights rights = Settings().rights;
        const std::map<std::string_view, bool UserRights::*> fields = {
            {"IsUserAuthorized", &UserRights::authorized},
            {"IsUserEngineer", &UserRights::engineer},
            {"IsAlarmHandlingAllowed", &UserRights::alarmHandling},
            {"IsBlockingHandlingAllowed", &UserRights::blockingHandling},
            {"IsSubstitutionHandlingAllowed", &UserRights::substitutionHandling}};
        rights.*fields.at(query) = allowed;
        SetRights(rights);
    }

    // A property holding a value that panels may read and write ("Alarms1", ...).
    FakeContainer& Value(const std::string& name, Variant initial) {
        values_[name] = std::move(initial);
        Property(
            name, [this, name] { return values_[name]; },
            [this, name](const Variant& v) { values_[name] = v; });
        return *this;
    }

    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override {
        calls.push_back(Call{std::string(member), kind, std::vector<Variant>(args.begin(), args.end())});
        return StandardContainer::Invoke(member, kind, args);
    }

    // The recorded calls of one member (compared without regard to case).
    std::vector<Call> CallsOf(std::string_view member) const {
        std::vector<Call> found;
        for (const Call& call : calls)
            if (EqualsIgnoringCase(call.member, member)) found.push_back(call);
        return found;
    }

    std::vector<Call> calls;
    std::vector<std::string> shownErrors;

  private:
    std::shared_ptr<CommonFunctions> common_;
    std::shared_ptr<FakeConnection> connection_;
    std::map<std::string, Variant> values_;
};

}  // namespace trovane::testing
