#pragma once
/* The C entry points of the shared library trovane_embed, for a host written in another language:
 * create a public class by its registered name, call its members by name, release it.
 *
 * Values cross as UTF-8 text: each argument is passed as a string (the callee converts it as late
 * binding does, so "1" reaches an Integer parameter as 1) and the result comes back as its string
 * form. Every function that can fail returns 0 on success, or the library's error number with its
 * description written to `error` (truncated to `errorSize`, always terminated). */

#include <stddef.h>

#include "factory/trovane_c_export.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct TrovaneObject TrovaneObject;

/* How trovane_call reaches the member: as a method, or by reading or writing a property (a write
 * takes its value as the one argument). */
enum TrovaneCallKind { TROVANE_METHOD = 0, TROVANE_PROPERTY_GET = 1, TROVANE_PROPERTY_PUT = 2 };

/* A new object of the class registered as `className` in *object; on failure *object is NULL. */
TROVANE_C_EXPORT int trovane_create(const char* className, TrovaneObject** object, char* error,
                                    size_t errorSize);

/* Calls `member` of `object` with `argCount` string arguments; the result's string form goes to
 * `result` (truncated to `resultSize`, always terminated; may be NULL). */
TROVANE_C_EXPORT int trovane_call(TrovaneObject* object, const char* member, int kind,
                                  const char* const* args, size_t argCount, char* result, size_t resultSize,
                                  char* error, size_t errorSize);

/* Lets go of an object from trovane_create; NULL is ignored. */
TROVANE_C_EXPORT void trovane_release(TrovaneObject* object);

#ifdef __cplusplus
}
#endif
