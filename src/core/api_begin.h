// Opens the public API of a header: what a public header declares between this and core/api_end.h is
// exported from a shared build, which otherwise hides every symbol. No include guard: a header
// includes both once each, after its own includes.
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC visibility push(default)
#endif
