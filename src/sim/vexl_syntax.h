#pragma once
// The parsed form of one statement line.
//
// A line is parsed whole before any of it runs, so a syntax error late in a line never leaves a
// procedure called or an attribute written by its beginning. Operator chains of one precedence
// (a + b + c) are one node with a list of operands rather than a left-leaning tree, so a long
// concatenation, such as a comment of many lines, costs no nesting depth.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/variant.h"
#include "sim/vexl_environment.h"

namespace trovane::sim {

enum class NodeKind {
    Literal,    // value
    Variable,   // name
    Attribute,  // reference: an object attribute read
    Vector,     // operands: the elements
    List,       // names and operands: the attributes
    Call,       // name and operands: the arguments (DO keeps its procedure in operands[0])
    Negate,     // operands[0]
    Not,        // operands[0]
    Chain,      // operands[0] then (operators[i], operands[i + 1]) from left to right
};

struct Node {
    NodeKind kind = NodeKind::Literal;
    Variant value;
    std::string name;
    ObjectReference reference;
    std::vector<std::string> names;      // List attribute names, upper case
    std::vector<std::string> operators;  // Chain operators: + - * / == <> < > <= >= AND OR
    std::vector<std::unique_ptr<Node>> operands;
};
using NodePtr = std::unique_ptr<Node>;

enum class StatementKind { Return, Set, Assign };

struct Statement {
    StatementKind kind = StatementKind::Return;
    std::string variable;    // Assign: the variable's upper-case name
    ObjectReference target;  // Set: the attribute written
    NodePtr expression;      // Return may have none (returns Empty)
};

}  // namespace trovane::sim
