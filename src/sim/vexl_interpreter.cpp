#include "sim/vexl_interpreter.h"

#include <new>
#include <string_view>

#include "core/error.h"
#include "sim/vexl_evaluator.h"
#include "sim/vexl_parser.h"

namespace trovane::sim {

namespace {

// The status of a runtime error raised by a conversion of the core library.
int32_t StatusOfRuntimeError(const Error& error) {
    switch (static_cast<ErrorNumber>(error.Number())) {
        case ErrorNumber::TypeMismatch:
        case ErrorNumber::InvalidUseOfNull:
            return status::kTypeMismatch;
        case ErrorNumber::SubscriptOutOfRange:
            return status::kIndexOutOfRange;
        default:
            return status::kWrongArgument;
    }
}

}  // namespace

Variant VexlInterpreter::Run(const std::string& command) {
    // Variables belong to one run, so a procedure that runs a command of its own cannot disturb them.
    VexlVariables variables;
    VexlEvaluator evaluator(environment_, variables);
    std::string_view rest = command;
    while (true) {
        const size_t end = rest.find('\n');
        const std::string line = SpliceQuotedNames(rest.substr(0, end), variables);
        if (std::optional<Statement> statement = ParseStatement(line)) {
            switch (statement->kind) {
                case StatementKind::Return:
                    return statement->expression ? evaluator.Evaluate(*statement->expression) : Variant();
                case StatementKind::Set:
                    environment_.WriteAttribute(statement->target,
                                                evaluator.Evaluate(*statement->expression));
                    break;
                case StatementKind::Assign:
                    variables[statement->variable] = evaluator.Evaluate(*statement->expression);
                    break;
            }
        }
        if (end == std::string_view::npos) return Variant();
        rest.remove_prefix(end + 1);
    }
}

Variant VexlInterpreter::Execute(const std::string& command, int32_t& status) {
    status = 0;
    try {
        return Run(command);
    } catch (const VexlStatus& failure) {
        status = failure.Code() != 0 ? failure.Code() : status::kProcedureFailed;
    } catch (const Error& error) {
        status = StatusOfRuntimeError(error);
    } catch (const std::bad_alloc&) {
        status = status::kValueTooLarge;
    } catch (...) {
        // A procedure of the server failed in a way it did not report; the command fails, the
        // server goes on.
        status = status::kProcedureFailed;
    }
    return Variant();
}

}  // namespace trovane::sim
