#pragma once
// Evaluates parsed expressions against the server environment and the command's variables.
//
// Function calls go first to the server (VexlEnvironment::CallFunction), then to the built-ins;
// `do` and `Vector` belong to the language and never reach the server. AND and OR evaluate their
// right operand only when the left one does not decide.

#include "sim/vexl_environment.h"
#include "sim/vexl_splice.h"
#include "sim/vexl_syntax.h"

namespace trovane::sim {

class VexlEvaluator {
  public:
    VexlEvaluator(VexlEnvironment& environment, VexlVariables& variables)
        : environment_(environment), variables_(variables) {}

    Variant Evaluate(const Node& node);

  private:
    Variant Variable(const Node& node) const;
    Variant Vector(const Node& node);
    Variant List(const Node& node);
    Variant Chain(const Node& node);
    Variant Call(const Node& node);
    Variant Do(const Node& node);
    std::vector<Variant> EvaluateAll(const Node& node, size_t first);

    VexlEnvironment& environment_;
    VexlVariables& variables_;
};

}  // namespace trovane::sim
