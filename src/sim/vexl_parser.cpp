#include "sim/vexl_parser.h"

#include <initializer_list>

#include "sim/vexl_lexer.h"
#include "sim/vexl_limits.h"

namespace trovane::sim {

namespace {

[[noreturn]] void SyntaxError(const std::string& what) {
    throw VexlStatus(status::kSyntaxError, what);
}

NodePtr MakeNode(NodeKind kind) {
    auto node = std::make_unique<Node>();
    node->kind = kind;
    return node;
}

class Parser {
  public:
    explicit Parser(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    std::optional<Statement> ParseLine() {
        if (Current().kind == TokenKind::End) return std::nullopt;
        Statement statement = ParseStatementTokens();
        if (Current().kind != TokenKind::End) SyntaxError("unexpected text after the statement");
        return statement;
    }

  private:
    // Counts one level of nesting for as long as it lives.
    class NestingGuard {
      public:
        explicit NestingGuard(int& depth) : depth_(depth) {
            if (++depth_ > kMaxNesting) throw VexlStatus(status::kTooDeep, "expression nested too deeply");
        }
        ~NestingGuard() { --depth_; }
        NestingGuard(const NestingGuard&) = delete;
        NestingGuard& operator=(const NestingGuard&) = delete;

      private:
        int& depth_;
    };

    const Token& Current() const { return tokens_[pos_]; }
    Token Take() { return tokens_[pos_ < tokens_.size() - 1 ? pos_++ : pos_]; }

    bool IsSymbol(std::string_view symbol) const {
        return Current().kind == TokenKind::Symbol && Current().text == symbol;
    }
    bool IsName(std::string_view name) const {
        return Current().kind == TokenKind::Name && Current().text == name;
    }

    void Expect(std::string_view symbol) {
        if (!IsSymbol(symbol)) SyntaxError("'" + std::string(symbol) + "' expected");
        ++pos_;
    }

    Statement ParseStatementTokens() {
        const Token first = Take();
        if (first.kind == TokenKind::Directive && first.text == "RETURN") return ParseReturn();
        if (first.kind == TokenKind::Directive && first.text == "SET") return ParseSet();
        if (first.kind == TokenKind::Assign) return ParseAssign(first.text);
        SyntaxError("statement expected");
    }

    Statement ParseReturn() {
        Statement statement;
        statement.kind = StatementKind::Return;
        if (Current().kind != TokenKind::End) statement.expression = ParseExpression();
        return statement;
    }

    Statement ParseSet() {
        if (Current().kind != TokenKind::Object) SyntaxError("object attribute expected after #SET");
        Statement statement;
        statement.kind = StatementKind::Set;
        statement.target = Take().reference;
        Expect("=");
        statement.expression = ParseExpression();
        return statement;
    }

    Statement ParseAssign(const std::string& variable) {
        Statement statement;
        statement.kind = StatementKind::Assign;
        statement.variable = variable;
        Expect("=");
        statement.expression = ParseExpression();
        return statement;
    }

    NodePtr ParseExpression() {
        return ParseChain({"OR"}, [this] { return ParseAnd(); });
    }
    NodePtr ParseAnd() {
        return ParseChain({"AND"}, [this] { return ParseNot(); });
    }

    NodePtr ParseNot() {
        if (!IsName("NOT")) return ParseComparison();
        NestingGuard guard(depth_);
        ++pos_;
        NodePtr node = MakeNode(NodeKind::Not);
        node->operands.push_back(ParseNot());
        return node;
    }

    // A comparison does not chain: a < b < c is a syntax error rather than a surprise.
    NodePtr ParseComparison() {
        NodePtr left = ParseAdditive();
        if (!AtComparison()) return left;
        NodePtr node = MakeNode(NodeKind::Chain);
        node->operators.push_back(Take().text);
        node->operands.push_back(std::move(left));
        node->operands.push_back(ParseAdditive());
        if (AtComparison()) SyntaxError("comparisons do not chain");
        return node;
    }

    NodePtr ParseAdditive() {
        return ParseChain({"+", "-"}, [this] { return ParseMultiplicative(); });
    }
    NodePtr ParseMultiplicative() {
        return ParseChain({"*", "/"}, [this] { return ParseUnary(); });
    }

    bool AtComparison() const { return AtOperator({"==", "<>", "<", ">", "<=", ">="}); }

    bool AtOperator(std::initializer_list<std::string_view> operators) const {
        for (std::string_view op : operators)
            if (IsSymbol(op) || IsName(op)) return true;
        return false;
    }

    template <typename ParseOperand>
    NodePtr ParseChain(std::initializer_list<std::string_view> operators, ParseOperand parseOperand) {
        NodePtr first = parseOperand();
        if (!AtOperator(operators)) return first;
        NodePtr chain = MakeNode(NodeKind::Chain);
        chain->operands.push_back(std::move(first));
        while (AtOperator(operators)) {
            chain->operators.push_back(Take().text);
            chain->operands.push_back(parseOperand());
        }
        return chain;
    }

    NodePtr ParseUnary() {
        if (IsSymbol("+")) return ParseUnaryPlus();
        if (!IsSymbol("-")) return ParsePrimary();
        NestingGuard guard(depth_);
        ++pos_;
        NodePtr node = MakeNode(NodeKind::Negate);
        node->operands.push_back(ParseUnary());
        return node;
    }

    // A typed limit may carry a plus sign ("+5"); it reads as 0 + x, so only numbers take one.
    NodePtr ParseUnaryPlus() {
        NestingGuard guard(depth_);
        ++pos_;
        NodePtr node = MakeNode(NodeKind::Chain);
        node->operands.push_back(Literal(Variant(int32_t{0})));
        node->operators.emplace_back("+");
        node->operands.push_back(ParseUnary());
        return node;
    }

    NodePtr ParsePrimary() {
        NestingGuard guard(depth_);
        const Token token = Take();
        switch (token.kind) {
            case TokenKind::Number:
            case TokenKind::Text:
                return Literal(token.value);
            case TokenKind::Variable: {
                NodePtr node = MakeNode(NodeKind::Variable);
                node->name = token.text;
                return node;
            }
            case TokenKind::Object: {
                NodePtr node = MakeNode(NodeKind::Attribute);
                node->reference = token.reference;
                return node;
            }
            case TokenKind::Name:
                return ParseNamed(token.text);
            case TokenKind::Symbol:
                if (token.text == "(") return ParseParenthesised();
                break;
            default:
                break;
        }
        SyntaxError("value expected");
    }

    static NodePtr Literal(Variant value) {
        NodePtr node = MakeNode(NodeKind::Literal);
        node->value = std::move(value);
        return node;
    }

    NodePtr ParseNamed(const std::string& name) {
        if (name == "TRUE" || name == "FALSE") return Literal(Variant(name == "TRUE"));
        if (!IsSymbol("(")) SyntaxError("unknown name " + name);
        ++pos_;
        if (name == "LIST") return ParseListBody();
        NodePtr call = MakeNode(NodeKind::Call);
        call->name = name;
        call->operands = ParseArguments();
        return call;
    }

    // After "(": expressions separated by commas up to the closing parenthesis (possibly none).
    std::vector<NodePtr> ParseArguments() {
        std::vector<NodePtr> arguments;
        if (IsSymbol(")")) {
            ++pos_;
            return arguments;
        }
        while (true) {
            arguments.push_back(ParseExpression());
            if (IsSymbol(")")) break;
            Expect(",");
        }
        ++pos_;
        return arguments;
    }

    NodePtr ParseListBody() {
        NodePtr list = MakeNode(NodeKind::List);
        if (IsSymbol(")")) {
            ++pos_;
            return list;
        }
        while (true) {
            if (Current().kind != TokenKind::Name) SyntaxError("attribute name expected in LIST");
            list->names.push_back(Take().text);
            Expect("=");
            list->operands.push_back(ParseExpression());
            if (IsSymbol(")")) break;
            Expect(",");
        }
        ++pos_;
        return list;
    }

    // (x) is x itself; (a,b,...) with two or more elements is a vector. One-element vectors are
    // written Vector(x), and the empty vector Vector().
    NodePtr ParseParenthesised() {
        std::vector<NodePtr> elements = ParseArguments();
        if (elements.empty()) SyntaxError("empty parentheses; write Vector() for an empty vector");
        if (elements.size() == 1) return std::move(elements.front());
        NodePtr vector = MakeNode(NodeKind::Vector);
        vector->operands = std::move(elements);
        return vector;
    }

    std::vector<Token> tokens_;
    size_t pos_ = 0;
    int depth_ = 0;
};

}  // namespace

std::optional<Statement> ParseStatement(std::string_view line) {
    return Parser(Tokenize(line)).ParseLine();
}

}  // namespace trovane::sim
