#include "sim/vexl_builtins.h"

#include <array>
#include <cmath>
#include <functional>
#include <utility>

#include "core/conversions.h"
#include "core/error.h"
#include "sim/vexl_limits.h"
#include "sim/vexl_status_names.h"
#include "sim/vexl_time.h"
#include "sim/vexl_type_cast.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

using Arguments = std::span<const Variant>;

void ExpectCount(Arguments args, size_t least, size_t most) {
    if (args.size() < least || args.size() > most)
        throw VexlStatus(status::kWrongArgument, "wrong number of arguments");
}

int32_t IntegerArgument(const Variant& value) {
    if (IsVexlInteger(value)) return ToInt32(value);
    if (!value.IsNumber()) throw VexlStatus(status::kTypeMismatch, "integer argument expected");
    const double number = ToDouble(value);
    if (!std::isfinite(number) || std::fabs(number) > 2147483647.0)
        throw VexlStatus(status::kWrongArgument, "integer argument out of range");
    return RoundToInt32(number);
}

// A time argument: a time, or a second count.
Date TimeArgument(const Variant& value) {
    if (value.Kind() == VarKind::Date) {
        if (!IsTimeInRange(value.AsDate())) throw VexlStatus(status::kWrongArgument, "time out of range");
        return value.AsDate();
    }
    return TimeFromSeconds(IntegerArgument(value));
}

Variant VectorOf(Arguments args, VexlEnvironment&) {
    Variant vector = MakeVexlVector(std::vector<Variant>(args.begin(), args.end()));
    CheckValueWeight(vector);
    return vector;
}

Variant TypeCastOf(Arguments args, VexlEnvironment&) {
    ExpectCount(args, 2, 2);
    if (!args[1].IsString()) throw VexlStatus(status::kTypeMismatch, "type name expected");
    return TypeCast(args[0], args[1].AsString());
}

Variant PackTime(Arguments args, VexlEnvironment&) {
    ExpectCount(args, 3, 6);
    std::array<int32_t, 6> parts{};
    for (size_t i = 0; i < args.size(); ++i) parts[i] = IntegerArgument(args[i]);
    try {
        return Variant(MakeDate(parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]));
    } catch (const Error&) {
        throw VexlStatus(status::kWrongArgument, "no such time");
    }
}

// year() ... second(): one part of the argument's time, or of the time now.
template <int DateParts::*Part>
Variant TimePart(Arguments args, VexlEnvironment& environment) {
    ExpectCount(args, 0, 1);
    const Date time = args.empty() ? environment.Now() : TimeArgument(args[0]);
    if (!IsTimeInRange(time)) throw VexlStatus(status::kWrongArgument, "time out of range");
    return Variant(static_cast<int32_t>(SplitDate(time).*Part));
}

Variant StatusCodeNameOf(Arguments args, VexlEnvironment&) {
    ExpectCount(args, 1, 1);
    return Variant(StatusCodeName(IntegerArgument(args[0])));
}

Variant Ascii(Arguments args, VexlEnvironment&) {
    ExpectCount(args, 1, 1);
    const int32_t code = IntegerArgument(args[0]);
    if (code < 0 || code > 255) throw VexlStatus(status::kWrongArgument, "character code out of range");
    return Variant(std::string(1, static_cast<char>(code)));
}

Variant Length(Arguments args, VexlEnvironment&) {
    ExpectCount(args, 1, 1);
    const Variant& value = args[0];
    if (value.IsString()) return Variant(static_cast<int32_t>(value.AsString().size()));
    if (IsVexlList(value)) return Variant(static_cast<int32_t>(value.AsArray().Size() / 2));
    if (value.IsArray()) return Variant(static_cast<int32_t>(value.AsArray().Size()));
    throw VexlStatus(status::kTypeMismatch, "length of a value that has none");
}

using Builtin = Variant (*)(Arguments, VexlEnvironment&);

constexpr std::array<std::pair<std::string_view, Builtin>, 12> kBuiltins{{
    {"VECTOR", VectorOf},
    {"TYPE_CAST", TypeCastOf},
    {"PACK_TIME", PackTime},
    {"YEAR", TimePart<&DateParts::year>},
    {"MONTH", TimePart<&DateParts::month>},
    {"DAY", TimePart<&DateParts::day>},
    {"HOUR", TimePart<&DateParts::hour>},
    {"MINUTE", TimePart<&DateParts::minute>},
    {"SECOND", TimePart<&DateParts::second>},
    {"STATUS_CODE_NAME", StatusCodeNameOf},
    {"ASCII", Ascii},
    {"LENGTH", Length},
}};

}  // namespace

std::optional<Variant> CallBuiltin(const std::string& upperName, Arguments args,
                                   VexlEnvironment& environment) {
    for (const auto& [name, function] : kBuiltins)
        if (name == upperName) return function(args, environment);
    return std::nullopt;
}

}  // namespace trovane::sim
