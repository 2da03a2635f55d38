// Closes the public API opened by core/api_begin.h. No include guard: included once per header.
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC visibility pop
#endif
