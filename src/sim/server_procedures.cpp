#include "sim/server_procedures.h"

#include <map>

namespace trovane::sim {

ServerProcedure FindServerProcedure(const std::string& upperName) {
    static const std::map<std::string, ServerProcedure> procedures = {
        {"BGU_BLOCK", &BlockingProcedure},   {"BGU_CONTROL", &ControlProcedure},
        {"OVGR_TAGOUT", &TagoutProcedure},   {"OVGR_TAGOUT_AM", &TagoutActionProcedure},
        {"BGU_ALARMS", &AlarmListProcedure}, {"BGU_LOCATION", &LocationProcedure},
        {"BGU_DIALUP", &DialUpProcedure},
    };
    const auto found = procedures.find(upperName);
    return found == procedures.end() ? nullptr : found->second;
}

}  // namespace trovane::sim
