#pragma once
// Splits one statement line into tokens.
//
// Names are upper-cased here, once, because every name in Vexl is case-insensitive. An object
// reference (ABC:PCV10, BGU_BLOCK:C) is one token, since its parts may not be separated by blanks
// and it is split into name, type letter, attribute and index before the parser sees it. Strings
// arrive decoded (a doubled quote stands for one). Any character that starts no token, an
// unterminated string or a malformed number throws VexlStatus with the syntax-error status.

#include <string>
#include <string_view>
#include <vector>

#include "core/variant.h"
#include "sim/vexl_environment.h"

namespace trovane::sim {

enum class TokenKind {
    Number,     // value holds a Long or a Double
    Text,       // value holds the decoded string
    Name,       // text holds the upper-cased identifier
    Object,     // reference holds the split object notation
    Variable,   // %NAME; text holds NAME
    Assign,     // @NAME; text holds NAME
    Directive,  // #NAME; text holds NAME
    Symbol,     // text holds one of ( ) , = == <> < > <= >= + - * /
    End,
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;
    Variant value;
    ObjectReference reference;
};

// The tokens of one line, always closed by an End token.
std::vector<Token> Tokenize(std::string_view line);

bool IsNameStart(char c);
bool IsNameChar(char c);

}  // namespace trovane::sim
