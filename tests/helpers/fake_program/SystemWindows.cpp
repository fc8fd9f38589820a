#include "tests/helpers/fake_program/System.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace fs = std::filesystem;

// Words in the code page have lost what it does not know.
Words utf8Words(int /*count*/, char** /*words*/)
{
    Words all;
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 0; i < count; ++i) {
        all.push_back(fs::path(wide[i]).u8string());
    }
    LocalFree(wide);
    return all;
}

std::string variable(const std::string& name)
{
    const wchar_t* const value = _wgetenv(fs::u8path(name).c_str());
    return value != nullptr ? fs::path(value).u8string() : "none";
}

void printBytesAsTheyAre()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

// Intended: not abort, which here ends a program like any other, with status 3.
void crash()
{
    TerminateProcess(GetCurrentProcess(), STATUS_ACCESS_VIOLATION);
    std::abort();
}
