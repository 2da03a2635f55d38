#include "factory/trovane_c.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

#include "core/conversions.h"
#include "core/error.h"
#include "factory/class_factory.h"
#include "platform/late_bound.h"

struct TrovaneObject {
    trovane::Variant object;
};

namespace {

// The generic number of an error that carries none of its own (a standard exception).
constexpr int kUnexpectedError = 51;

void CopyOut(const std::string& text, char* buffer, size_t size) {
    if (buffer == nullptr || size == 0) return;
    const size_t length = std::min(text.size(), size - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
}

// Runs `body`, turning what it raises into a number and a description: no exception may cross into
// a C caller.
template <typename Body>
int Guarded(char* error, size_t errorSize, Body body) {
    CopyOut("", error, errorSize);
    try {
        body();
        return 0;
    } catch (const trovane::Error& raised) {
        CopyOut(raised.Description(), error, errorSize);
        return raised.Number() != 0 ? raised.Number() : kUnexpectedError;
    } catch (const std::exception& raised) {
        CopyOut(raised.what(), error, errorSize);
        return kUnexpectedError;
    }
}

}  // namespace

extern "C" int trovane_create(const char* className, TrovaneObject** object, char* error, size_t errorSize) {
    if (object == nullptr) return kUnexpectedError;
    *object = nullptr;
    return Guarded(error, errorSize, [&] {
        auto created = trovane::CreateObject(className != nullptr ? className : "");
        *object = new TrovaneObject{std::move(created)};
    });
}

extern "C" int trovane_call(TrovaneObject* object, const char* member, int kind, const char* const* args,
                            size_t argCount, char* result, size_t resultSize, char* error, size_t errorSize) {
    CopyOut("", result, resultSize);
    return Guarded(error, errorSize, [&] {
        if (object == nullptr || member == nullptr) throw trovane::Error(91, "Object variable not set");
        std::vector<trovane::Variant> arguments;
        for (size_t i = 0; i < argCount; ++i)
            arguments.emplace_back(std::string(args[i] != nullptr ? args[i] : ""));
        trovane::Variant answer;
        switch (kind) {
            case TROVANE_PROPERTY_GET:
                answer = trovane::GetProperty(object->object, member);
                break;
            case TROVANE_PROPERTY_PUT:
                if (arguments.size() != 1) throw trovane::Error(450, "A property takes exactly one value");
                trovane::PutProperty(object->object, member, arguments[0]);
                break;
            default:
                answer = trovane::CallMethod(object->object, member, arguments);
                break;
        }
        // Objects and arrays have no string form: their type name stands for them.
        const bool named = answer.IsObject() || answer.IsArray();
        CopyOut(named ? trovane::TypeName(answer) : trovane::ToString(answer), result, resultSize);
    });
}

extern "C" void trovane_release(TrovaneObject* object) {
    delete object;
}
