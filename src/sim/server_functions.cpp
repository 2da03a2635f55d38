#include "sim/server_functions.h"

#include <algorithm>

#include "sim/procedure_arguments.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

// A directory as fm_vexl_directory hands it to fm_represent: a one-element list, so that a plain
// text is not mistaken for a directory.
Variant DirectoryValue(const std::string& path) {
    return MakeVexlList({{"DIRECTORY", path}});
}

Variant LogicalPath(const Application& application, std::span<const Variant> args) {
    const std::string name = UpperName(TextArgument(args, 0));
    // Logical directories of the application: name without the trailing underscore, under its root.
    static const char* const kLogicalNames[] = {"APL_", "PAR_", "PICT", "TEMP"};
    const bool known =
        std::find(std::begin(kLogicalNames), std::end(kLogicalNames), name) != std::end(kLogicalNames);
    VariantArray paths(ElementKind::String, 1, known ? 1 : 0);
    if (known) {
        std::string folder = name.back() == '_' ? name.substr(0, name.size() - 1) : name;
        paths.Set(1, application.RootDirectory() + folder + "\\");
    }
    return Variant(std::move(paths));
}

Variant VexlDirectory(const Application& application, std::span<const Variant> args) {
    std::string path = TextArgument(args, 0);
    if (path.empty() || path.front() != '/') ThrowWrongArgument("a Vexl directory starts with /");
    std::replace(path.begin(), path.end(), '/', '\\');
    while (!path.empty() && path.back() == '\\') path.pop_back();
    return DirectoryValue(application.systemRoot + path);
}

Variant Represent(std::span<const Variant> args) {
    const Variant* path = FindVexlListItem(Argument(args, 0), "DIRECTORY");
    if (!path) ThrowWrongArgument("fm_represent expects a directory");
    return *path;
}

}  // namespace

std::optional<Variant> CallServerFunction(const Application& application, const std::string& upperName,
                                          std::span<const Variant> args) {
    if (upperName == "PATH") return LogicalPath(application, args);
    if (upperName == "FM_VEXL_DIRECTORY") return VexlDirectory(application, args);
    if (upperName == "FM_REPRESENT") return Represent(args);
    return std::nullopt;
}

}  // namespace trovane::sim
