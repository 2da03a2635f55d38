#include "sim/vexl_evaluator.h"

#include <algorithm>

#include "sim/vexl_builtins.h"
#include "sim/vexl_limits.h"
#include "sim/vexl_operators.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

Variant VexlEvaluator::Evaluate(const Node& node) {
    switch (node.kind) {
        case NodeKind::Literal:
            return node.value;
        case NodeKind::Variable:
            return Variable(node);
        case NodeKind::Attribute:
            return environment_.ReadAttribute(node.reference);
        case NodeKind::Vector:
            return Vector(node);
        case NodeKind::List:
            return List(node);
        case NodeKind::Call:
            return Call(node);
        case NodeKind::Negate:
            return Negate(Evaluate(*node.operands[0]));
        case NodeKind::Not:
            return LogicalNot(Evaluate(*node.operands[0]));
        case NodeKind::Chain:
            return Chain(node);
    }
    return Variant();
}

Variant VexlEvaluator::Variable(const Node& node) const {
    const auto found = variables_.find(node.name);
    if (found == variables_.end()) throw VexlStatus(status::kUnknownVariable, "no variable " + node.name);
    return found->second;
}

std::vector<Variant> VexlEvaluator::EvaluateAll(const Node& node, size_t first) {
    std::vector<Variant> values;
    values.reserve(node.operands.size() - std::min(first, node.operands.size()));
    for (size_t i = first; i < node.operands.size(); ++i) values.push_back(Evaluate(*node.operands[i]));
    return values;
}

Variant VexlEvaluator::Vector(const Node& node) {
    Variant vector = MakeVexlVector(EvaluateAll(node, 0));
    CheckValueWeight(vector);
    return vector;
}

Variant VexlEvaluator::List(const Node& node) {
    std::vector<std::pair<std::string, Variant>> attributes;
    attributes.reserve(node.names.size());
    for (size_t i = 0; i < node.names.size(); ++i)
        attributes.emplace_back(node.names[i], Evaluate(*node.operands[i]));
    Variant list = MakeVexlList(std::move(attributes));
    CheckValueWeight(list);
    return list;
}

namespace {
// Whether the left operand already decides an AND (false) or an OR (true).
bool Decides(const std::string& op, const Variant& left) {
    if (left.Kind() != VarKind::Boolean) return false;
    return (op == "AND" && !left.AsBoolean()) || (op == "OR" && left.AsBoolean());
}
}  // namespace

Variant VexlEvaluator::Chain(const Node& node) {
    Variant result = Evaluate(*node.operands[0]);
    for (size_t i = 0; i < node.operators.size(); ++i) {
        const std::string& op = node.operators[i];
        if (Decides(op, result)) continue;
        result = ApplyBinary(op, result, Evaluate(*node.operands[i + 1]));
    }
    return result;
}

Variant VexlEvaluator::Call(const Node& node) {
    if (node.name == "DO") return Do(node);
    const std::vector<Variant> args = EvaluateAll(node, 0);
    if (node.name != "VECTOR")
        if (auto answer = environment_.CallFunction(node.name, args)) return std::move(*answer);
    if (auto answer = CallBuiltin(node.name, args, environment_)) return std::move(*answer);
    throw VexlStatus(status::kUnknownFunction, "unknown function " + node.name);
}

// do(PROCEDURE:C, arguments...): the procedure is named, not evaluated.
Variant VexlEvaluator::Do(const Node& node) {
    if (node.operands.empty() || node.operands[0]->kind != NodeKind::Attribute)
        throw VexlStatus(status::kWrongArgument, "do needs a procedure as its first argument");
    const std::vector<Variant> args = EvaluateAll(node, 1);
    return environment_.CallProcedure(node.operands[0]->reference, args);
}

}  // namespace trovane::sim
