#pragma once
// The host form that sites a panel, as panel tests need it.
//
// Panels call their container late-bound by member name. FakeContainer answers the members every
// panel uses: "RunVexlCmd" and "RunVexlCmdWithStatus" through a real CommonFunctions and a
// FakeConnection (so commands are numbered and traced as in production), "GetNlsString" and
// "SetCharsetValues" through the same CommonFunctions, "ShowError" recorded, "SetWindowOrder"
// recorded, and the rights queries with answers a test sets (true unless told otherwise). Every call
// is recorded by name with its arguments as they arrived, whether the container answers it or not.
// Panel tests add their panel-specific members with Method / Property, or a stored value with Value.

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "platform/late_bound.h"
#include "support/fake_connection.h"

namespace trovane::testing {

class FakeContainer : public DispatchObject {
  public:
    struct Call {
        std::string member;
        CallKind kind;
        std::vector<Variant> args;
    };

    explicit FakeContainer(std::shared_ptr<CommonFunctions> common = std::make_shared<CommonFunctions>(),
                           std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>(),
                           int16_t application = 1)
        : DispatchObject("frmContainer"),
          common_(std::move(common)),
          connection_(std::move(connection)),
          application_(application) {
        Method("RunVexlCmd", [this](std::span<Variant> args) {
            return common_->RunVexlCmdGlobal(connection_->AsVariant(), ToString(Arg(args, 0)), application_);
        });
        Method("RunVexlCmdWithStatus", [this](std::span<Variant> args) {
            int32_t status = ToInt32(Arg(args, 1));
            Variant result = common_->RunVexlCmdGlobalWithStatus(
                connection_->AsVariant(), ToString(Arg(args, 0)), application_, status);
            args[1] = status;
            return result;
        });
        Method("GetNlsString", [this](std::span<Variant> args) {
            return Variant(common_->GetNlsString(ToInt32(Arg(args, 0))));
        });
        Method("SetCharsetValues", [this](std::span<Variant> args) {
            common_->SetCharsetValues(Arg(args, 0));
            return Variant();
        });
        Method("ShowError", [this](std::span<Variant> args) {
            shownErrors.push_back(ToString(Arg(args, 0)));
            return Variant();
        });
        Method("SetWindowOrder", [](std::span<Variant>) { return Variant(); });
        for (const char* right : {"IsUserAuthorized", "IsUserEngineer", "IsAlarmHandlingAllowed",
                                  "IsBlockingHandlingAllowed", "IsSubstitutionHandlingAllowed"}) {
            rights_[right] = true;
            Method(right,
                   [this, name = std::string(right)](std::span<Variant>) { return Variant(rights_[name]); });
        }
    }

    // The container as a panel receives it.
    Variant AsVariant() { return Variant(shared_from_this()); }
    CommonFunctions& Common() { return *common_; }
    FakeConnection& ConnectionObject() { return *connection_; }

    void SetRight(const std::string& query, bool allowed) { rights_[query] = allowed; }

    // A property holding a value that panels may read and write ("sUserName", "Alarms1", ...).
    FakeContainer& Value(const std::string& name, Variant initial) {
        values_[name] = std::move(initial);
        Property(
            name, [this, name] { return values_[name]; },
            [this, name](const Variant& v) { values_[name] = v; });
        return *this;
    }

    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override {
        calls.push_back(Call{std::string(member), kind, std::vector<Variant>(args.begin(), args.end())});
        return DispatchObject::Invoke(member, kind, args);
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
    // A missing argument is the caller's mistake: error 5, as a late-bound call with too few arguments.
    static Variant& Arg(std::span<Variant> args, size_t index) {
        if (index >= args.size()) throw Error(ErrorNumber::InvalidCall);
        return args[index];
    }

    std::shared_ptr<CommonFunctions> common_;
    std::shared_ptr<FakeConnection> connection_;
    int16_t application_;
    std::map<std::string, bool> rights_;
    std::map<std::string, Variant> values_;
};

}  // namespace trovane::testing
