#include "server_requests.h"

#include "common/command_text.h"

namespace trovane::dialog {

namespace {
std::string Request(std::string_view procedure, std::string_view request, const ObjectIdentity& object) {
    return "#return do(" + std::string(procedure) + ", \"" + std::string(request) + "\", " +
           ObjectReferenceText(object.logicalName, object.index);
}
}  // namespace

std::string LocationRequest(std::string_view request, const ObjectIdentity& object) {
    return Request("BGU_LOCATION:C", request, object) + ")";
}

std::string CustomLocationRequest(const ObjectIdentity& object, std::string_view value) {
    return Request("BGU_LOCATION:C", "SET_CUSTOM", object) + ", \"" + WithQuotesDoubled(value) + "\")";
}

std::string DialUpRequest(std::string_view request, const ObjectIdentity& object) {
    return Request("BGU_DIALUP:C", request, object) + ")";
}

}  // namespace trovane::dialog
