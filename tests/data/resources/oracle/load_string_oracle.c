/* An independent reading of a language file: the platform's own loader, run under wine.
 *
 * Usage: load_string_oracle.exe <file>. Loads the file as a data file and prints, for every id
 * from 0 to 65535 that has a text, the id and the text's UTF-16 code units, all in hexadecimal:
 * "0065 004f00700065006e". Built without a C library or headers (clang for the Windows target,
 * import libraries from kernel32.def and user32.def), so that only binutils and clang are needed.
 * The whole text is read with LoadStringW: the comparison is about the file, not the lookup limit. */
typedef void* HANDLE;
typedef unsigned short WCHAR;
__declspec(dllimport) HANDLE __stdcall LoadLibraryExA(const char* name, HANDLE file, unsigned flags);
__declspec(dllimport) int __stdcall LoadStringW(HANDLE module, unsigned id, WCHAR* buffer, int length);
__declspec(dllimport) const char* __stdcall GetCommandLineA(void);
__declspec(dllimport) HANDLE __stdcall GetStdHandle(unsigned handle);
__declspec(dllimport) int __stdcall WriteFile(HANDLE file, const void* data, unsigned size, unsigned* written,
                                              void* overlapped);
__declspec(dllimport) void __stdcall ExitProcess(unsigned code);

#define LOAD_LIBRARY_AS_DATAFILE 2
#define STD_OUTPUT_HANDLE ((unsigned)-11)
#define TEXT_CAPACITY 70000

static WCHAR text[TEXT_CAPACITY];
static char line[TEXT_CAPACITY * 4 + 16];
static const char hex[] = "0123456789abcdef";

static void Write(const char* data, unsigned size) {
    unsigned written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), data, size, &written, 0);
}

static unsigned AppendHex(char* out, unsigned value) {
    for (int shift = 12; shift >= 0; shift -= 4) *out++ = hex[(value >> shift) & 15];
    return 4;
}

/* The file name is the last blank-separated word of the command line. */
static const char* FileArgument(void) {
    const char* name = GetCommandLineA();
    for (const char* p = name; *p; ++p)
        if (*p == ' ') name = p + 1;
    return name;
}

void Start(void) {
    HANDLE module = LoadLibraryExA(FileArgument(), 0, LOAD_LIBRARY_AS_DATAFILE);
    if (!module) {
        Write("NOFILE\n", 7);
        ExitProcess(1);
    }
    for (unsigned id = 0; id < 65536; ++id) {
        int length = LoadStringW(module, id, text, TEXT_CAPACITY);
        if (length < 1) continue;
        unsigned n = AppendHex(line, id);
        line[n++] = ' ';
        for (int i = 0; i < length; ++i) n += AppendHex(line + n, text[i]);
        line[n++] = '\n';
        Write(line, n);
    }
    ExitProcess(0);
}
