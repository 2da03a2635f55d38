#pragma once
// The demo server's requests with which the host carries out what the operator place and dial-up
// panels leave to it (src/sim: BGU_LOCATION:C and BGU_DIALUP:C).

#include <string>
#include <string_view>

#include "common/panel_sites.h"

namespace trovane::dialog {

// #return do(BGU_LOCATION:C, "SELECT_NCC", ("ABC",10))
std::string LocationRequest(std::string_view request, const ObjectIdentity& object);
// #return do(BGU_LOCATION:C, "SET_CUSTOM", ("DEF",2), "Local")
std::string CustomLocationRequest(const ObjectIdentity& object, std::string_view value);
// #return do(BGU_DIALUP:C, "DIAL", ("RTU",1))
std::string DialUpRequest(std::string_view request, const ObjectIdentity& object);

}  // namespace trovane::dialog
