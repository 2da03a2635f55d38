// Leaks that are not ours, for LeakSanitizer in the sanitizer build of the Qt tests.
//
// Qt's font database asks fontconfig for the system fonts once, and fontconfig keeps a pattern
// cache that it never frees. The sanitizer runtime asks for this function by name at start-up; in
// an ordinary build nothing calls it.

extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig.so\n";
}
