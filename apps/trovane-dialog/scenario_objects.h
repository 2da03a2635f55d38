#pragma once
// The scenario the dialog works on, read before any window exists: loading it, listing what it
// holds (--list-objects) and checking that the object asked for is in it.

#include <memory>
#include <string>

#include "dialog_options.h"
#include "sim/process_database.h"

namespace trovane::dialog {

// The scenario the options name, else the built-in demo; throws on a file that cannot be read or
// a bad scenario.
std::unique_ptr<sim::ProcessDatabase> LoadDialogDatabase(const DialogOptions& options);

// One line per process object, in name and index order: name, index, text and the pages the dialog
// offers for it, in aligned columns.
std::string ObjectListing(sim::ProcessDatabase& database);

// Empty when the database has the object; otherwise the message that tells the operator so.
std::string MissingObjectError(sim::ProcessDatabase& database, const std::string& logicalName, int32_t index);

}  // namespace trovane::dialog
