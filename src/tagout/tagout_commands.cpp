#include "tagout/tagout_commands.h"

#include "common/command_text.h"

namespace trovane {

namespace {

const std::string kTagout = "#return do(OVGR_TAGOUT:C, \"";

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// The request on its own: #return do(OVGR_TAGOUT:C, "GET_CLASS")
std::string Request(std::string_view request) {
    return kTagout + std::string(request) + "\")";
}

// The request and one object: #return do(OVGR_TAGOUT:C, "GET_TAGOUT_NAMES", ("ABC",10)
std::string ObjectRequest(std::string_view request, std::string_view logicalName, int32_t index) {
    return kTagout + std::string(request) + "\", " + ObjectReferenceText(logicalName, index);
}

// The characters from a 1-based position, at most `length` of them; empty beyond the end.
std::string Mid(std::string_view text, size_t start, size_t length = std::string_view::npos) {
    return start > text.size() ? std::string() : std::string(text.substr(start - 1, length));
}

}  // namespace

std::string ClassCommand() {
    return Request("GET_CLASS");
}

std::string ClassActionMethodsCommand() {
    return Request("GET_CLASS_ACTIONMETHODS");
}

std::string ClassAttributesCommand(std::string_view property) {
    return kTagout + "GET_CLASS_ATTRIBUTES\"," + Quoted(property) + ")";
}

std::string ClassAttributePropertyCommand(std::string_view attribute, std::string_view property) {
    return kTagout + "GET_CLASS_ATTRIBUTE_PROPERTY\"," + Quoted(attribute) + "," + Quoted(property) + ")";
}

std::string ClassAttributePostProcessingCommand(std::string_view attribute) {
    return kTagout + "GET_CLASS_ATTRIBUTE_POSTPROCESSING\"," + Quoted(attribute) + ")";
}

std::string ActiveTagoutCountCommand(std::string_view logicalName, int32_t index) {
    return ObjectRequest("GET_NACTIVE_TAGOUTS", logicalName, index) + ")";
}

std::string TagoutNamesCommand(std::string_view logicalName, int32_t index) {
    return ObjectRequest("GET_TAGOUT_NAMES", logicalName, index) + ")";
}

std::string ReadAttributeValueCommand(std::string_view logicalName, int32_t index, std::string_view key,
                                      std::string_view attribute) {
    return ObjectRequest("READ_TAGOUT_ATTRIBUTE_VALUE", logicalName, index) + "," + Quoted(key) + "," +
           Quoted(attribute) + ")";
}

std::string AddEmptyTagoutCommand(std::string_view logicalName, int32_t index, std::string_view key,
                                  std::string_view userName) {
    return ObjectRequest("ADD_EMPTY_TAGOUT", logicalName, index) + "," + Quoted(key) + "," +
           Quoted(userName) + ")";
}

std::string EditAttributeValueCommand(std::string_view logicalName, int32_t index, std::string_view key,
                                      std::string_view attribute, std::string_view value) {
    return ObjectRequest("EDIT_TAGOUT_ATTRIBUTE_VALUE", logicalName, index) + "," + Quoted(key) + "," +
           Quoted(attribute) + "," + Quoted(value) + ")";
}

std::string StoredTagoutCommand(std::string_view request, std::string_view logicalName, int32_t index,
                                std::string_view key) {
    return ObjectRequest(request, logicalName, index) + "," + Quoted(key) + ")";
}

std::string TagoutIdCommand() {
    return Request("GET_TAGOUT_ID");
}

std::string EventCommand(std::string_view event, std::string_view logicalName, int32_t index) {
    return kTagout + "EVENT_FUNCTIONS\", " + Quoted(event) + " ," + ObjectReferenceText(logicalName, index) +
           ")";
}

std::string SetTagTextCommand(std::string_view logicalName, int32_t index, std::string_view text) {
    return kTagout + "EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ," + ObjectReferenceText(logicalName, index) + "," +
           Quoted(text) + ")";
}

std::string ErrorMessageCommand(int32_t code) {
    return kTagout + "MISC_FUNCTIONS\",\"GET_ERRORMSG\", " + Quoted(std::to_string(code)) + ")";
}

std::string MiscFunctionCommand(std::string_view function) {
    return kTagout + "MISC_FUNCTIONS\"," + Quoted(function) + ")";
}

std::string NotifyTimeCommand(std::string_view text) {
    return kTagout + "MISC_FUNCTIONS\",\"NOTIFY_TIME\"," + Quoted(text) + ")";
}

bool TriggersActionMethod(std::string_view attribute) {
    return attribute.starts_with("AM");
}

ActionMethod ActionMethodOf(std::string_view attribute) {
    if (Mid(attribute, 4, 5) == "LOCAL" && attribute.size() < 11)
        return ActionMethod{"LOCAL_BLOCK", Mid(attribute, 9, 2)};
    return ActionMethod{Mid(attribute, 4), std::string()};
}

std::string ActionMethodCommand(const ActionMethod& action, std::string_view logicalName, int32_t index,
                                std::string_view value, std::string_view key) {
    return "#return do(OVGR_TAGOUT_AM:C, " + Quoted(action.method) + ", " +
           ObjectReferenceText(logicalName, index) + "," + Quoted(value) + "," + Quoted(action.argument) +
           "," + Quoted(key) + ")";
}

}  // namespace trovane
