// Between bytes, wide text and QString.
#include "base/KVString.h"

#include "base/PlatformText.h"
#include "base/Unicode.h"

#include <cerrno>
#include <cstdlib>
#include <cwchar>
#include <string_view>

namespace {

constexpr size_t kFailed = static_cast<size_t>(-1);

// How many bytes must follow a first byte beyond ASCII; 0 when it cannot be one.
int continuationBytes(unsigned char first)
{
    if (first >= 0xC2 && first <= 0xDF) {
        return 1;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 2;
    }
    return first >= 0xF0 && first <= 0xF4 ? 3 : 0;
}

std::wstring fromLatin1(const char* text)
{
    std::wstring wide;
    for (; *text != '\0'; ++text) {
        wide += static_cast<wchar_t>(static_cast<unsigned char>(*text));
    }
    return wide;
}

bool fromLocale(const char* text, std::wstring& wide)
{
    const size_t size = mbstowcs(nullptr, text, 0);
    if (size == kFailed) {
        return false;
    }
    wide.resize(size);
    mbstowcs(wide.data(), text, size);
    return true;
}

// UTF-8 comes first, since a locale of single bytes takes every text for its own.
std::wstring toWide(const KVString& text)
{
    std::wstring wide;
    if ((text.DetectIsUTF_8() && Utf8::decode(text.c_str(), wide)) ||
        fromLocale(text.c_str(), wide)) {
        return wide;
    }
    return fromLatin1(text.c_str());
}

bool toLocale(const std::wstring& text, std::string& bytes)
{
    const size_t size = wcstombs(nullptr, text.c_str(), 0);
    if (size == kFailed) {
        return false;
    }
    bytes.resize(size);
    wcstombs(bytes.data(), text.c_str(), size);
    return true;
}

// The system's bytes, unless they would be read back as another text (those of the Latin-1 text
// "Ã¤" look like the UTF-8 of "ä").
std::string fromWide(const std::wstring& text)
{
    std::string bytes;
    if (!toLocale(text, bytes)) {
        bytes = Platform::wideToCodePage(text);
    }
    return toWide(KVString(bytes)) == text ? bytes : Utf8::encode(text);
}

// UTF-16 into wide characters, whatever their size; half a pair stays what it is.
std::wstring wideOf(const QString& text)
{
    std::wstring wide;
    for (int i = 0; i < text.size(); ++i) {
        const bool pair = sizeof(wchar_t) > 2 && text[i].isHighSurrogate() && i + 1 < text.size() &&
                          text[i + 1].isLowSurrogate();
        if (pair) {
            wide += static_cast<wchar_t>(QChar::surrogateToUcs4(text[i], text[i + 1]));
            ++i;
        } else {
            wide += static_cast<wchar_t>(text[i].unicode());
        }
    }
    return wide;
}

}  // namespace

KVString::KVString(const wchar_t* text)
{
    if (text != nullptr) {
        *this = KVString(fromWide(text));
    }
}

KVString::KVString(const QString& text) : KVString(wideOf(text).c_str()) {}

bool KVString::DetectIsUTF_8() const
{
    bool found = false;
    int missing = 0;  // continuation bytes of the present character
    for (int i = 0; i < length; ++i) {
        const auto c = static_cast<unsigned char>(buffer[static_cast<size_t>(i)]);
        if (missing > 0) {
            if (c < 0x80 || c > 0xBF) {
                return false;
            }
            --missing;
        } else if (c >= 0x80) {
            missing = continuationBytes(c);
            if (missing == 0) {
                return false;
            }
            found = true;
        } else if (c == 0) {
            return false;
        }
    }
    return found && missing == 0;
}

void KVString::Utf_8_Decode()
{
    std::wstring wide;
    if (DetectIsUTF_8() && Utf8::decode(c_str(), wide)) {
        *this = KVString(wide.c_str());
    }
}

// Room for length + 8 characters, since a wide text is never longer than its bytes.
const wchar_t* KVString::to_wchar_ptr() const
{
    if (!buffer) {
        return L"";
    }
    const std::wstring wide = toWide(*this);
    const size_t size = static_cast<size_t>(length);
    std::unique_ptr<wchar_t[]> fresh(new wchar_t[size + 8]);
    wmemcpy(fresh.get(), wide.c_str(), wide.size() + 1);
    fresh[size] = L'\0';
    wideCache = std::move(fresh);
    return wideCache.get();
}

KVString::operator QString() const
{
    return QString::fromWCharArray(to_wchar_ptr());
}
