#include "sim/procedure_arguments.h"

#include "core/conversions.h"
#include "core/error.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

void ThrowWrongArgument(const std::string& message) {
    throw VexlStatus(status::kWrongArgument, message);
}

const Variant& Argument(std::span<const Variant> args, size_t position) {
    if (position >= args.size()) ThrowWrongArgument("argument " + std::to_string(position + 1) + " missing");
    return args[position];
}

std::string TextArgument(std::span<const Variant> args, size_t position) {
    const Variant& value = Argument(args, position);
    if (!value.IsString()) ThrowWrongArgument("argument " + std::to_string(position + 1) + " must be text");
    return value.AsString();
}

int32_t IntegerArgument(std::span<const Variant> args, size_t position) {
    const Variant& value = Argument(args, position);
    if (!value.IsNumber() && !(value.IsString() && IsNumeric(std::string_view(value.AsString()))))
        ThrowWrongArgument("argument " + std::to_string(position + 1) + " must be a number");
    try {
        return ToInt32(value);
    } catch (const Error& error) {
        ThrowWrongArgument(error.Description());
    }
}

bool BooleanArgument(std::span<const Variant> args, size_t position) {
    const Variant& value = Argument(args, position);
    if (value.Kind() == VarKind::Boolean) return value.AsBoolean();
    return IntegerArgument(args, position) != 0;
}

ObjectAddress ObjectArgument(std::span<const Variant> args, size_t position) {
    const Variant& value = Argument(args, position);
    const std::string where = "argument " + std::to_string(position + 1);
    if (!value.IsArray() || value.AsArray().Size() != 2) ThrowWrongArgument(where + " must be (name,index)");
    const auto elements = value.AsArray().Elements();
    if (!elements[0].IsString()) ThrowWrongArgument(where + ": the logical name must be text");
    ObjectAddress address{UpperName(elements[0].AsString()), 0};
    address.index = IntegerArgument(elements, 1);
    return address;
}

}  // namespace trovane::sim
