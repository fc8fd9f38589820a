#include "tests/helpers/fake_program/Words.h"

#include <filesystem>
#include <windows.h>

#include <shellapi.h>

// Words in the code page have lost what it does not know.
Words utf8Words(int /*count*/, char** /*words*/)
{
    Words all;
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 0; i < count; ++i) {
        all.push_back(std::filesystem::path(wide[i]).u8string());
    }
    LocalFree(wide);
    return all;
}
