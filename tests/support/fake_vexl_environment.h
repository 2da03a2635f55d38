#pragma once
// A small server for interpreter tests and the interpreter's fuzz target.
//
// Attributes live in a map keyed by their notation ("ABC:PGC", "ABC:PAR10"); writes land in the
// same map, so a read after a #SET sees the new value. An object name that no attribute uses is an
// unknown object, a known object's missing attribute an unknown attribute. Procedures: ECHO:C
// answers the vector of its arguments, FAIL:C raises server status 5007, BREAK:C throws an exception
// that is no server status. Every procedure call and write is recorded in order. PATH is the one
// server function; the time now is fixed.

#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/conversions.h"
#include "core/variant.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_values.h"

namespace trovane::sim::testing {

inline std::string ReferenceText(const ObjectReference& ref) {
    std::string text = ref.name + ":" + std::string(1, ref.type) + ref.attribute;
    if (ref.index) text += std::to_string(*ref.index);
    return text;
}

struct ProcedureCall {
    std::string procedure;  // "BGU_BLOCK:C"
    std::vector<Variant> args;
};

class FakeVexlEnvironment : public VexlEnvironment {
  public:
    FakeVexlEnvironment() {
        attributes["ABC:PGC"] = Variant("OPERATOR#1763837798#first line\nsecond line");
        attributes["ABC:PPT"] = Variant(int32_t{12});
        attributes["ABC:PAR10"] = Variant(int32_t{0});
        attributes["ABC:PCV10"] = Variant(int32_t{997});
        attributes["APL:BNA"] = Variant("DEMO");
    }

    Variant ReadAttribute(const ObjectReference& ref) override {
        const auto found = attributes.find(ReferenceText(ref));
        if (found != attributes.end()) return found->second;
        throw VexlStatus(KnowsObject(ref.name) ? status::kUnknownAttribute : status::kUnknownObject,
                         "no attribute " + ReferenceText(ref));
    }

    void WriteAttribute(const ObjectReference& ref, const Variant& value) override {
        if (!KnowsObject(ref.name)) throw VexlStatus(status::kUnknownObject, "no object " + ref.name);
        writes.push_back(ReferenceText(ref));
        attributes[ReferenceText(ref)] = value;
    }

    Variant CallProcedure(const ObjectReference& procedure, std::span<const Variant> args) override {
        const std::string name = ReferenceText(procedure);
        calls.push_back({name, std::vector<Variant>(args.begin(), args.end())});
        if (name == "ECHO:C") return MakeVexlVector(std::vector<Variant>(args.begin(), args.end()));
        if (name == "FAIL:C") throw VexlStatus(5007, "refused");
        if (name == "BREAK:C") throw std::runtime_error("broken procedure");
        throw VexlStatus(status::kUnknownObject, "no procedure " + name);
    }

    std::optional<Variant> CallFunction(const std::string& upperName,
                                        std::span<const Variant> args) override {
        if (upperName != "PATH") return std::nullopt;
        if (args.size() != 1 || !args[0].IsString()) throw VexlStatus(status::kWrongArgument, "PATH(name)");
        return MakeVexlVector({Variant("/srv/apl/demo/" + args[0].AsString().substr(0, 3) + "/")});
    }

    Date Now() override { return MakeDate(2026, 11, 22, 18, 56, 38); }

    std::map<std::string, Variant> attributes;
    std::vector<ProcedureCall> calls;
    std::vector<std::string> writes;

  private:
    bool KnowsObject(const std::string& name) const {
        for (const auto& [key, value] : attributes)
            if (key.compare(0, name.size() + 1, name + ":") == 0) return true;
        return false;
    }
};

}  // namespace trovane::sim::testing
