// The tagout panel's reads: the result check, the class queries, the tagouts and their values, and
// the server's date and time.

#include "core/conversions.h"
#include "core/error.h"
#include "tagout/tagout.h"
#include "tagout/tagout_commands.h"

namespace trovane {

namespace {

constexpr int32_t kNoClassDatabase = 5007;
constexpr int32_t kNoClassText = 512;
constexpr int32_t kUnknownErrorText = 513;
// Counts stay below this; an answer at or above it is an error code.
constexpr int32_t kFirstErrorCode = 100;

// The answer as text, or "" when it has no text form (an array, an object, Null).
std::string TextOrEmpty(const Variant& answer) {
    try {
        return ToString(answer);
    } catch (const Error&) {
        return std::string();
    }
}

}  // namespace

std::string Tagout::ErrorText(int32_t code) {
    const Variant message = RunVexlCmd(ErrorMessageCommand(code));
    return TypeName(message) == "String" ? message.AsString() : GetNlsString(kUnknownErrorText);
}

bool Tagout::CheckTagoutResult(const Variant& result, std::string_view expectedType, bool show) {
    const std::string type = TypeName(result);
    if (type == expectedType && !result.IsEmpty()) return true;
    std::string message;
    if (type != "Long") {
        message = GetNlsString(kUnknownErrorText);
    } else if (result.AsLong() == kNoClassDatabase) {
        message = GetNlsString(kNoClassText);
    } else {
        message = ErrorText(result.AsLong());
    }
    if (show) ShowError(message);
    return false;
}

int32_t Tagout::CountActiveTagouts() {
    const Variant answer = RunVexlCmd(ActiveTagoutCountCommand(logicalName, baseIndex));
    if (!CheckTagoutResult(answer, "Long", true)) return 0;
    if (answer.AsLong() < kFirstErrorCode) return answer.AsLong();
    ShowError(ErrorText(answer.AsLong()));
    return 0;
}

Variant Tagout::GetTagoutNames() {
    Variant answer = RunVexlCmd(TagoutNamesCommand(logicalName, baseIndex));
    if (CheckTagoutResult(answer, "String()", true)) return answer;
    return MakeStringArray({""}, 1);
}

// An error code is answered with its message, quietly: the caller shows the text as the value.
Variant Tagout::ReadTagoutAttributeValue(const std::string& key, const std::string& attributeName) {
    Variant answer = RunVexlCmd(ReadAttributeValueCommand(logicalName, baseIndex, key, attributeName));
    if (TypeName(answer) == "Long") return RunVexlCmd(ErrorMessageCommand(answer.AsLong()));
    return answer;
}

void Tagout::QueryTagoutClass() {
    classExists = CheckTagoutResult(RunVexlCmd(ClassCommand()), "Variant()", true);
}

bool Tagout::bClassHasActionMethods() {
    return CheckTagoutResult(RunVexlCmd(ClassActionMethodsCommand()), "String()", false);
}

Variant Tagout::GetVoskClassAttributes(const std::string& propertyName, const std::string& expectedType) {
    Variant answer = RunVexlCmd(ClassAttributesCommand(propertyName));
    if (CheckTagoutResult(answer, expectedType, false)) return answer;
    return Variant::Nothing();
}

Variant Tagout::GetVOSKClassAttributeProperty(const std::string& attributeName,
                                              const std::string& propertyName,
                                              const std::string& expectedType) {
    Variant answer = RunVexlCmd(ClassAttributePropertyCommand(attributeName, propertyName));
    if (TypeName(answer) == expectedType && !answer.IsEmpty()) return answer;
    // A numeric answer of another type (a Long, numeric text, Empty) passes as an integer.
    if (expectedType == "Integer") return IsNumeric(answer) ? answer : Variant(int16_t{-1});
    if (expectedType == "String") return Variant("Error in SDB");
    if (expectedType == "Array") return MakeStringArray({"Error", "in SDB"}, 1);
    return answer;
}

Variant Tagout::GetVOSKClassAttributePostProcessing(const std::string& attributeName) {
    return RunVexlCmd(ClassAttributePostProcessingCommand(attributeName));
}

void Tagout::NotifyVOSKTime(const std::string& text) {
    lastResult = RunVexlCmd(NotifyTimeCommand(text));
}

std::string Tagout::GetVOSKDate() {
    return TextOrEmpty(RunVexlCmd(MiscFunctionCommand("GET_DATE")));
}

std::string Tagout::GetVOSKTime() {
    return TextOrEmpty(RunVexlCmd(MiscFunctionCommand("GET_TIME")));
}

bool Tagout::GetBlockingEnabled(const std::string&) const {
    return true;
}

}  // namespace trovane
