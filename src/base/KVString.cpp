// Life, memory and the operators that change a KVString; its other operations stand in
// KVStringText.cpp, KVStringWide.cpp, KVStringPaths.cpp and KVStringNumbers.cpp.
#include "base/KVString.h"

#include "base/PlatformText.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <utility>

namespace {

constexpr size_t kDefaultGranularity = 512;
// Every length fits into an int, with room for the terminator and a little more.
constexpr int kLongestText = std::numeric_limits<int>::max() - 16;
// Texts beyond this size grow by half, so that appending bit by bit stays linear.
constexpr int kLargeText = 1 << 16;

int textLength(const char* text)
{
    return static_cast<int>(std::min<size_t>(strlen(text), kLongestText));
}

}  // namespace

KVString::KVString(const char* text, DetectCharPtrEncoding mode)
{
    SetStringWithEncoding(text, mode);
}

KVString::KVString(const std::string& bytes)
{
    Assign(bytes.data(), static_cast<int>(std::min<size_t>(bytes.size(), kLongestText)));
}

KVString::KVString(const char* bytes, int count)
{
    Assign(bytes, count);
}

KVString::KVString(const KVString& other)
{
    *this = other;
}

KVString::KVString(KVString&& other) noexcept
{
    *this = std::move(other);
}

KVString& KVString::operator=(const KVString& other)
{
    if (this != &other && other.buffer) {
        Assign(other.buffer.get(), other.length);
    } else if (this != &other) {
        Empty();
    }
    return *this;
}

KVString& KVString::operator=(KVString&& other) noexcept
{
    if (this != &other) {
        buffer = std::move(other.buffer);
        length = std::exchange(other.length, 0);
        capacity = std::exchange(other.capacity, 0);
        wideCache = std::move(other.wideCache);
    }
    return *this;
}

KVString& KVString::operator=(const char* text)
{
    SetStringWithEncoding(text, KeepBytes);
    return *this;
}

KVString& KVString::operator=(char character)
{
    Assign(&character, 1);
    return *this;
}

KVString& KVString::Null()
{
    static KVString null;
    null.Empty();
    return null;
}

// Intended: the new room lies beyond the next multiple of the granularity, never on it.
void KVString::AllocateAtLeast(int n)
{
    const size_t needed = static_cast<size_t>(std::max(n, -1) + 1LL);
    if (buffer && capacity >= needed) {
        return;
    }
    if (granularity == 0) {
        granularity = kDefaultGranularity;
    }
    const size_t room = n <= 14 ? 16 : (needed / granularity + 1) * granularity;
    std::unique_ptr<char[]> larger(new char[room]);
    if (length == 0) {
        larger[0] = '\0';
    } else {
        memcpy(larger.get(), buffer.get(), static_cast<size_t>(length) + 1);
    }
    buffer = std::move(larger);
    capacity = room;
}

void KVString::Empty(bool freeBuffer)
{
    length = 0;
    wideCache.reset();
    if (freeBuffer) {
        buffer.reset();
        capacity = 0;
    } else if (buffer) {
        buffer[0] = '\0';
    }
}

char* KVString::GetBuffer(int n)
{
    AllocateAtLeast(n);
    return buffer.get();
}

void KVString::ReleaseBuffer()
{
    length = buffer ? static_cast<int>(strnlen(buffer.get(), capacity - 1)) : 0;
    if (buffer) {
        buffer[static_cast<size_t>(length)] = '\0';  // also when the writer filled all the room
    }
}

// The bytes may be a part of this string: then they fit and need only be moved.
void KVString::Assign(const char* bytes, int count)
{
    if (capacity <= static_cast<size_t>(count)) {
        length = 0;
        AllocateAtLeast(count);
    }
    memmove(buffer.get(), bytes, static_cast<size_t>(count));
    length = count;
    buffer[static_cast<size_t>(length)] = '\0';
}

void KVString::Append(const char* bytes, int count)
{
    count = std::min(count, kLongestText - length);
    const int total = length + count;
    if (!buffer || capacity <= static_cast<size_t>(total)) {
        const bool own = buffer && !std::less<>()(bytes, buffer.get()) &&
                         std::less<>()(bytes, buffer.get() + capacity);
        const ptrdiff_t offset = own ? bytes - buffer.get() : 0;
        const int spare = total > kLargeText ? std::min(total / 2, kLongestText - total) : 0;
        AllocateAtLeast(total + spare);
        bytes = own ? buffer.get() + offset : bytes;
    }
    memmove(buffer.get() + length, bytes, static_cast<size_t>(count));
    length = total;
    buffer[static_cast<size_t>(length)] = '\0';
}

void KVString::SetStringWithEncoding(const char* text, DetectCharPtrEncoding mode)
{
    if (text == nullptr) {
        Empty();
        return;
    }
    Assign(text, textLength(text));
    if (mode == DetectUtf8) {
        Utf_8_Decode();
    }
}

void KVString::Format(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void KVString::FormatV(const char* format, va_list arguments)
{
    const std::string text = Platform::formatText(format != nullptr ? format : "", arguments);
    const int size = static_cast<int>(std::min<size_t>(text.size(), kLongestText));
    AllocateAtLeast(size + 2);
    Assign(text.data(), size);
}

KVString& KVString::operator+=(const KVString& text)
{
    Append(text.c_str(), text.length);
    return *this;
}

KVString& KVString::operator+=(const char* text)
{
    if (text != nullptr) {
        Append(text, textLength(text));
    }
    return *this;
}

KVString& KVString::operator+=(char character)
{
    Append(&character, 1);
    return *this;
}

KVString operator+(const KVString& left, const KVString& right)
{
    return KVString(left) += right;
}

KVString operator+(const KVString& left, const char* right)
{
    return KVString(left) += right;
}

KVString operator+(const char* left, const KVString& right)
{
    return KVString(left) += right;
}

KVString operator+(const KVString& left, char right)
{
    return KVString(left) += right;
}

KVString operator+(char left, const KVString& right)
{
    KVString sum;
    sum = left;
    return sum += right;
}
