#pragma once
// The requests to the server's tagout procedures, as Vexl command text.
//
// "OVGR_TAGOUT:C" keeps the tagouts, the tagout class, the events and some miscellaneous functions;
// "OVGR_TAGOUT_AM:C" runs the action methods that attributes named "AM..." trigger. The texts are
// the server's protocol and are kept to the byte, irregular spacing included: most arguments follow
// their comma without a blank, the error-message code and the object of the storage requests after
// one, and the event name of EVENT_FUNCTIONS is followed by a blank before its comma. Arguments are
// spliced in as they are; only the caller of EditAttributeValueCommand doubles the quotes of the
// value, no other text is escaped.

#include <cstdint>
#include <string>
#include <string_view>

namespace trovane {

// ---- OVGR_TAGOUT:C, the class --------------------------------------------------------------
std::string ClassCommand();
std::string ClassActionMethodsCommand();
std::string ClassAttributesCommand(std::string_view property);
std::string ClassAttributePropertyCommand(std::string_view attribute, std::string_view property);
std::string ClassAttributePostProcessingCommand(std::string_view attribute);

// ---- OVGR_TAGOUT:C, tagout storage -----------------------------------------------------------
std::string ActiveTagoutCountCommand(std::string_view logicalName, int32_t index);
std::string TagoutNamesCommand(std::string_view logicalName, int32_t index);
std::string ReadAttributeValueCommand(std::string_view logicalName, int32_t index, std::string_view key,
                                      std::string_view attribute);
std::string AddEmptyTagoutCommand(std::string_view logicalName, int32_t index, std::string_view key,
                                  std::string_view userName);
std::string EditAttributeValueCommand(std::string_view logicalName, int32_t index, std::string_view key,
                                      std::string_view attribute, std::string_view value);
// "REMOVE_TAGOUT" or "DELETE_TAGOUT" of one key.
std::string StoredTagoutCommand(std::string_view request, std::string_view logicalName, int32_t index,
                                std::string_view key);
std::string TagoutIdCommand();

// ---- OVGR_TAGOUT:C, events and miscellaneous functions ---------------------------------------
// "SET_PRIORITY", "RESET_PRIORITY" or "RESET_TAGTEXT" of the object.
std::string EventCommand(std::string_view event, std::string_view logicalName, int32_t index);
std::string SetTagTextCommand(std::string_view logicalName, int32_t index, std::string_view text);
std::string ErrorMessageCommand(int32_t code);
// "GET_DATE" or "GET_TIME".
std::string MiscFunctionCommand(std::string_view function);
std::string NotifyTimeCommand(std::string_view text);

// ---- OVGR_TAGOUT_AM:C --------------------------------------------------------------------------
// The action method an "AM" attribute names, and the argument that goes with it. The method is
// the name from its fourth character on; a short local attribute names its device instead:
// AM_LOCAL01 is LOCAL_BLOCK of device "01", while AM_LOCAL123, eleven characters long, is the
// method LOCAL123 without argument.
struct ActionMethod {
    std::string method;
    std::string argument;
};
bool TriggersActionMethod(std::string_view attribute);
ActionMethod ActionMethodOf(std::string_view attribute);
std::string ActionMethodCommand(const ActionMethod& action, std::string_view logicalName, int32_t index,
                                std::string_view value, std::string_view key);

}  // namespace trovane
