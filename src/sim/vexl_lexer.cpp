#include "sim/vexl_lexer.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "sim/vexl_values.h"

namespace trovane::sim {

bool IsNameStart(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_';
}
bool IsNameChar(char c) {
    return IsNameStart(c) || std::isdigit(static_cast<unsigned char>(c));
}

namespace {

[[noreturn]] void SyntaxError(const std::string& what) {
    throw VexlStatus(status::kSyntaxError, what);
}

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

class Lexer {
  public:
    explicit Lexer(std::string_view line) : line_(line) {}

    std::vector<Token> Run() {
        std::vector<Token> tokens;
        while (true) {
            SkipBlanks();
            if (AtEnd()) break;
            tokens.push_back(Next());
        }
        tokens.push_back(Token{});
        return tokens;
    }

  private:
    bool AtEnd() const { return pos_ >= line_.size(); }
    char Peek(size_t ahead = 0) const { return pos_ + ahead < line_.size() ? line_[pos_ + ahead] : '\0'; }

    void SkipBlanks() {
        while (!AtEnd() && (Peek() == ' ' || Peek() == '\t' || Peek() == '\r')) ++pos_;
    }

    std::string ReadName() {
        const size_t start = pos_;
        while (!AtEnd() && IsNameChar(Peek())) ++pos_;
        return UpperName(std::string(line_.substr(start, pos_ - start)));
    }

    Token Next() {
        const char c = Peek();
        if (IsDigit(c) || (c == '.' && IsDigit(Peek(1)))) return ReadNumber();
        if (c == '"') return ReadText();
        if (IsNameStart(c)) return ReadNameOrObject();
        if (c == '%' || c == '@' || c == '#') return ReadPrefixed(c);
        return ReadSymbol();
    }

    Token ReadPrefixed(char prefix) {
        ++pos_;
        if (!IsNameStart(Peek())) SyntaxError(std::string("name expected after ") + prefix);
        Token token;
        token.kind = prefix == '%'   ? TokenKind::Variable
                     : prefix == '@' ? TokenKind::Assign
                                     : TokenKind::Directive;
        token.text = ReadName();
        return token;
    }

    Token ReadSymbol() {
        static constexpr std::string_view kTwoCharacter[] = {"==", "<>", "<=", ">="};
        for (std::string_view symbol : kTwoCharacter)
            if (line_.substr(pos_, 2) == symbol) {
                pos_ += 2;
                return Symbol(std::string(symbol));
            }
        static constexpr std::string_view kOneCharacter = "(),=<>+-*/";
        if (kOneCharacter.find(Peek()) == std::string_view::npos)
            SyntaxError(std::string("unexpected character '") + Peek() + "'");
        return Symbol(std::string(1, line_[pos_++]));
    }

    static Token Symbol(std::string text) {
        Token token;
        token.kind = TokenKind::Symbol;
        token.text = std::move(text);
        return token;
    }

    Token ReadText() {
        ++pos_;  // opening quote
        Token token;
        token.kind = TokenKind::Text;
        std::string text;
        while (true) {
            if (AtEnd()) SyntaxError("unterminated string");
            const char c = line_[pos_++];
            if (c != '"') {
                text += c;
            } else if (Peek() == '"') {
                text += '"';
                ++pos_;
            } else {
                break;
            }
        }
        token.value = Variant(std::move(text));
        return token;
    }

    void ReadDigits() {
        while (!AtEnd() && IsDigit(Peek())) ++pos_;
    }

    Token ReadNumber() {
        const size_t start = pos_;
        bool real = false;
        ReadDigits();
        // A typed value may read ".5" or "5."; both are reals.
        if (Peek() == '.') {
            real = true;
            ++pos_;
            ReadDigits();
        }
        if ((Peek() == 'e' || Peek() == 'E') &&
            (IsDigit(Peek(1)) || ((Peek(1) == '+' || Peek(1) == '-') && IsDigit(Peek(2))))) {
            real = true;
            pos_ += 2;
            ReadDigits();
        }
        if (IsNameChar(Peek()) || Peek() == '.') SyntaxError("malformed number");
        const std::string_view digits = line_.substr(start, pos_ - start);
        Token token;
        token.kind = TokenKind::Number;
        token.value = real ? RealValue(digits) : IntegerValue(digits);
        return token;
    }

    static Variant RealValue(std::string_view digits) {
        // from_chars, not strtod: a GUI host may switch the C locale's decimal separator.
        double value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(value))
            SyntaxError("number out of range");
        return Variant(value);
    }

    // Integers that do not fit 32 bits are kept as reals, as the server keeps large counts.
    static Variant IntegerValue(std::string_view digits) {
        int64_t value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error != std::errc{} || end != digits.data() + digits.size()) return RealValue(digits);
        if (value > std::numeric_limits<int32_t>::max()) return Variant(static_cast<double>(value));
        return Variant(static_cast<int32_t>(value));
    }

    Token ReadNameOrObject() {
        std::string name = ReadName();
        if (Peek() != ':') {
            Token token;
            token.kind = TokenKind::Name;
            token.text = std::move(name);
            return token;
        }
        ++pos_;
        Token token;
        token.kind = TokenKind::Object;
        token.reference = ReadObjectTail(std::move(name));
        return token;
    }

    // After the colon: one type letter, the attribute's letters, and an optional decimal index.
    ObjectReference ReadObjectTail(std::string name) {
        if (!std::isalpha(static_cast<unsigned char>(Peek()))) SyntaxError("object type expected after ':'");
        ObjectReference reference;
        reference.name = std::move(name);
        reference.type = static_cast<char>(std::toupper(static_cast<unsigned char>(line_[pos_++])));
        while (!AtEnd() && (std::isalpha(static_cast<unsigned char>(Peek())) || Peek() == '_'))
            reference.attribute += static_cast<char>(std::toupper(static_cast<unsigned char>(line_[pos_++])));
        if (IsDigit(Peek())) {
            const size_t start = pos_;
            ReadDigits();
            int32_t index = 0;
            const auto [end, error] = std::from_chars(line_.data() + start, line_.data() + pos_, index);
            if (error != std::errc{} || end != line_.data() + pos_) SyntaxError("object index out of range");
            reference.index = index;
        }
        if (IsNameChar(Peek())) SyntaxError("malformed object notation");
        return reference;
    }

    std::string_view line_;
    size_t pos_ = 0;
};

}  // namespace

std::vector<Token> Tokenize(std::string_view line) {
    return Lexer(line).Run();
}

}  // namespace trovane::sim
