#include "scenario_objects.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "core/conversions.h"
#include "panel_sites.h"
#include "sim/scenario.h"

namespace trovane::dialog {

namespace {
struct ListedObject {
    std::string name;
    std::string index;
    std::string text;
    std::string pages;
};

std::string Joined(const std::vector<std::string>& names) {
    return names.empty() ? "-" : JoinedPageNames(names);
}

std::string PaddedRight(const std::string& text, size_t width) {
    return text + std::string(width - text.size(), ' ');
}

std::string PaddedLeft(const std::string& text, size_t width) {
    return std::string(width - text.size(), ' ') + text;
}
}  // namespace

std::unique_ptr<sim::ProcessDatabase> LoadDialogDatabase(const DialogOptions& options) {
    if (!options.scenarioFile) return sim::MakeDemoDatabase();
    std::ifstream file(*options.scenarioFile, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read the scenario " + *options.scenarioFile);
    std::ostringstream text;
    text << file.rdbuf();
    auto database = std::make_unique<sim::ProcessDatabase>();
    sim::LoadScenario(text.str(), *database);
    return database;
}

std::string ObjectListing(sim::ProcessDatabase& database) {
    std::vector<ListedObject> rows;
    for (const auto& [name, group] : database.Groups())
        for (const auto& [index, object] : group.objects) {
            const Variant* text = object.Find("TX");
            rows.push_back({name, std::to_string(index), text ? ToString(*text) : std::string(),
                            Joined(OfferedPages(FeaturesOf(database, ObjectIdentity{name, index})))});
        }
    size_t nameWidth = 0, indexWidth = 0, textWidth = 0;
    for (const ListedObject& row : rows) {
        nameWidth = std::max(nameWidth, row.name.size());
        indexWidth = std::max(indexWidth, row.index.size());
        textWidth = std::max(textWidth, row.text.size());
    }
    std::string listing;
    for (const ListedObject& row : rows)
        listing += PaddedRight(row.name, nameWidth) + "  " + PaddedLeft(row.index, indexWidth) + "  " +
                   PaddedRight(row.text, textWidth) + "  " + row.pages + "\n";
    return listing;
}

std::string MissingObjectError(sim::ProcessDatabase& database, const std::string& logicalName,
                               int32_t index) {
    if (database.FindObject(logicalName, index)) return {};
    return "the scenario has no object " + logicalName + " " + std::to_string(index) +
           " (--list-objects lists its objects)";
}

}  // namespace trovane::dialog
