// The tagout panel's writes: events, adding, editing and removing a tagout on the server.
//
// None of them looks at the server's answers (the last one is kept in lastResult), so a write that
// the server refuses changes nothing here.

#include "common/command_text.h"
#include "core/conversions.h"
#include "tagout/tagout.h"
#include "tagout/tagout_commands.h"

namespace trovane {

void Tagout::Write(const std::string& command) {
    lastResult = RunVexlCmd(command);
}

void Tagout::AddChangedAttrName(const std::string& name) {
    colChangedAttrNames->AddNew(name);
}

// Every changed name sends one command; a name that drives no event sends an empty one.
void Tagout::EventShoot(bool reset) {
    cStrColl& changed = *colChangedAttrNames;
    if (changed.Count() == 0) return;
    for (int32_t i = 1; i <= changed.Count(); ++i) {
        const std::string name = changed.Item(static_cast<int16_t>(i));
        std::string command;
        if (name == "PRIORITY") {
            command = EventCommand(reset ? "RESET_PRIORITY" : "SET_PRIORITY", logicalName, baseIndex);
        } else if (name == "TAG_TEXT" || name == "TAG_REPR") {
            command = reset ? EventCommand("RESET_TAGTEXT", logicalName, baseIndex)
                            : SetTagTextCommand(
                                  logicalName, baseIndex,
                                  clsActiveTagouts->AttrValue(clsActiveTagouts->SelectedTagout(), name));
        }
        Write(command);
    }
    changed.Clear();
}

void Tagout::AddEmptyTagoutToSDB() {
    Write(AddEmptyTagoutCommand(logicalName, baseIndex, clsActiveTagouts->SelectedTagoutName(), userName));
}

// A hidden attribute is written with the class's fixed value, whatever the tagout holds.
std::string Tagout::EditedValue(int16_t position, int16_t attribute, const std::string& name) {
    if (!ToBool(Variant(clsActiveTagouts->AttrInstValue(attribute, "Visible"))))
        return ToString(GetVOSKClassAttributeProperty(name, "VALUE", "String"));
    return clsActiveTagouts->AttrValue(position, name);
}

void Tagout::EditTagoutInSDB(int16_t position) {
    const clsTagout& model = *clsActiveTagouts;
    const std::string key = model.GetCollName(position);
    for (int32_t p = 2; p <= model.Count("Name"); ++p) {
        const auto attribute = static_cast<int16_t>(p);
        const std::string name = model.AttrInstValue(attribute, "Name");
        const std::string value = EditedValue(position, attribute, name);
        if (colChangedAttrNames->Find(name) == -1) continue;
        // A multi-line value (the comment) keeps its lines: see WithLineBreaksSpliced.
        const std::string sent = WithLineBreaksSpliced(WithQuotesDoubled(value));
        Write(EditAttributeValueCommand(logicalName, baseIndex, key, name, sent));
        if (TriggersActionMethod(name))
            Write(ActionMethodCommand(ActionMethodOf(name), logicalName, baseIndex, sent, key));
    }
}

// Every command is sent whatever the server answers to the ones before.
void Tagout::RemoveTagoutFromSDB() {
    const clsTagout& model = *clsActiveTagouts;
    const std::string key = model.SelectedTagoutName();
    for (int32_t p = 2; p <= model.Count("Name"); ++p) {
        const std::string name = model.AttrInstValue(static_cast<int16_t>(p), "Name");
        if (TriggersActionMethod(name))
            Write(ActionMethodCommand(ActionMethodOf(name), logicalName, baseIndex, "-", key));
    }
    Write(StoredTagoutCommand("REMOVE_TAGOUT", logicalName, baseIndex, key));
    Write(StoredTagoutCommand("DELETE_TAGOUT", logicalName, baseIndex, key));
}

}  // namespace trovane
