#pragma once
// Tagouts as the simulated server keeps them.
//
// A tagout (hold card) is a set of attribute values hung on one process object under a unique key.
// What attributes a tagout has is defined once for the application by the tagout class: each
// attribute has a name, a display title, a type ("TEXT", "SELECTOR", "DATE", "TIME", "CHECK_BOX",
// "NONE"), visibility and enabled flags, a default value, the tab it is shown on, and for some types
// a maximum length or a list of selectable titles. The pseudo-attribute "TAB_STRIP" carries the
// titles of the edit dialog's tabs. Attributes whose names begin with "AM" trigger the class's
// action methods (OVGR_TAGOUT_AM:C).
//
// Values are text, as the panels exchange them; a check box holds "X" or "-". A removed tagout is
// kept aside until it is deleted, so removal and deletion are two steps as on the real server.
//
// Tagouts drive the object's tag indication, which every workstation reads and subscribes as
// attributes of the object: "TP" the priority, "TT" the tag text (both set by the event functions),
// and "LB" the devices whose local operation a tagout blocks (LOCAL_BLOCK), in order, separated by
// commas.

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>
#include "core/api_begin.h"

namespace trovane::sim {

struct TagoutAttribute {
    std::string name;
    std::string title;
    std::string type = "TEXT";
    bool visible = true;
    bool enabled = true;
    std::string defaultValue;
    int32_t tabIndex = 1;
    int32_t maxLength = 0;            // TEXT only; 0 = no limit given
    std::vector<std::string> titles;  // SELECTOR only: the choices
    std::string postProcessing;
};

struct TagoutClass {
    std::string name;
    std::vector<std::string> tabTitles;
    std::vector<std::string> actionMethods;
    std::vector<TagoutAttribute> attributes;

    const TagoutAttribute* Find(const std::string& upperName) const;
};

struct Tagout {
    std::string key;
    std::map<std::string, std::string> values;  // by upper-case attribute name
};

// The tagouts of one process object and the tag indication they drive.
struct ObjectTagouts {
    std::vector<Tagout> active;
    std::vector<Tagout> removed;
    std::string priority;  // set by SET_PRIORITY from the last active tagout, cleared by RESET_PRIORITY
    std::string tagText;   // set by SET_TAGTEXT, cleared by RESET_TAGTEXT
    std::set<std::string> localBlocks;  // devices blocked by LOCAL_BLOCK "X", released by "-"

    Tagout* FindActive(const std::string& key);
    // The indication attribute "TP", "TT" or "LB" (upper case), or nothing for any other name.
    std::optional<std::string> IndicationAttribute(const std::string& attribute) const;
};

// One call of the tagout event functions, kept for inspection (the server's event log).
struct TagoutEvent {
    std::string request;  // "SET_PRIORITY", "RESET_TAGTEXT", ...
    std::string name;
    int32_t index = 0;
    std::string value;
};

}  // namespace trovane::sim

#include "core/api_end.h"
