#include "core/error.h"

namespace trovane {

std::string StandardDescription(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidCall:
            return "Invalid procedure call or argument";
        case ErrorNumber::Overflow:
            return "Overflow";
        case ErrorNumber::SubscriptOutOfRange:
            return "Subscript out of range";
        case ErrorNumber::TypeMismatch:
            return "Type mismatch";
        case ErrorNumber::ObjectNotSet:
            return "Object variable or With block variable not set";
        case ErrorNumber::InvalidUseOfNull:
            return "Invalid use of Null";
        case ErrorNumber::MemberNotSupported:
            return "Object doesn't support this property or method";
        case ErrorNumber::ArgumentNotOptional:
            return "Argument not optional";
        case ErrorNumber::DuplicateKey:
            return "This key is already associated with an element of this collection";
    }
    return "Application-defined or object-defined error";
}

Error::Error(int32_t number, std::string description)
    : std::runtime_error(description), number_(number), description_(std::move(description)) {
}

Error::Error(ErrorNumber number) : Error(static_cast<int32_t>(number), StandardDescription(number)) {
}

// The detail goes into what() for diagnostics only; Description() stays the standard text that
// trace lines and error dialogs show.
Error::Error(ErrorNumber number, const std::string& detail) : Error(number) {
    static_cast<std::runtime_error&>(*this) = std::runtime_error(description_ + ": " + detail);
}

}  // namespace trovane
