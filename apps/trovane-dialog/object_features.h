#pragma once
// What the control dialog offers for one process object, decided in one place from the server's
// database, so the dialog, --list-objects and the tests agree on it.
//
// The rule, page by page (the indication bar is always shown):
// - alarms: the alarm list when the object's logical name has signals in the alarm list, the
//   blocking panel when the object supports at least one blocking kind;
// - operation: the operator place with a control location (device switch, station/NCC, multi-level
//   or custom local/remote indication), the operation counter with a counter;
// - communication: the dial-up and update-data panels for a dial-up station (a line state);
// - substitution: when the logical name has signals that can be substituted;
// - tagout: for a switching device (a double-binary object) on a server with a tagout class, and
//   for any object that already carries tagouts, so that hung tagouts are never hidden.

#include "common/panel_sites.h"

namespace trovane::sim {
class ProcessDatabase;
}

namespace trovane::dialog {

struct ObjectFeatures {
    bool known = false;  // the object exists in the database
    bool alarmList = false;
    bool blocking = false;
    bool controlLocation = false;
    bool operationCounter = false;
    bool dialUpLine = false;
    bool substitution = false;
    bool tagout = false;
    friend bool operator==(const ObjectFeatures&, const ObjectFeatures&) = default;
};

ObjectFeatures FeaturesOf(sim::ProcessDatabase& database, const ObjectIdentity& object);

}  // namespace trovane::dialog
