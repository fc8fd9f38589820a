#pragma once

#include <QDebug>
#include <QString>

#include <cstdarg>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// The owned 8-bit string of the reusable widgets. Its bytes are in the locale's code or in UTF-8,
// depending on how it was filled; on the way to wide text both are understood. Positions and
// lengths count bytes from 0; positions outside the text are moved to its nearest end. Letter case
// means A to Z only, so that multi-byte characters stay whole.
// Not thread-safe.
class KVString
{
public:
    // What becomes of the bytes of a "const char*".
    enum DetectCharPtrEncoding {
        KeepBytes = 0,    // copied as they are
        BoundedCopy = 1,  // the same, by a copy that is bounded by the room made for it
        DetectUtf8 = 2    // copied; UTF-8 is then decoded into the locale's code
    };

    KVString() = default;
    KVString(const char* text, DetectCharPtrEncoding mode = KeepBytes);
    // Of the bytes, zero bytes included.
    explicit KVString(const std::string& bytes);
    // In the locale's code where it can hold the text, else in UTF-8 (Windows tries the ANSI code
    // page before): whatever the text, to_wchar_ptr gives it back.
    KVString(const wchar_t* text);
    KVString(const QString& text);
    KVString(const KVString& other);
    KVString(KVString&& other) noexcept;
    ~KVString() = default;
    KVString& operator=(const KVString& other);
    KVString& operator=(KVString&& other) noexcept;
    KVString& operator=(const char* text);
    KVString& operator=(char character);

    // One string of the whole process, emptied by every call.
    static KVString& Null();

    // --- memory ---

    // Makes room for n bytes of text and the terminator; the text stays.
    void AllocateAtLeast(int n);
    // The step in which the room grows, 512 bytes unless set. 0 means 512, too.
    void SetAllocSize(size_t step) { granularity = step; }
    void Empty(bool freeBuffer = false);
    // Room for n bytes to write into; ReleaseBuffer must follow.
    char* GetBuffer(int n);
    // Finds the length again, up to the first zero byte, after the buffer was written to.
    void ReleaseBuffer();
    size_t GetCapacity() const { return capacity; }
    size_t GetAllocSize() const { return granularity; }

    // --- reading ---

    int GetLength() const { return length; }
    bool IsEmpty() const { return length == 0; }
    // Never null; valid until the string changes.
    const char* c_str() const { return buffer ? buffer.get() : ""; }
    // Zero outside the text.
    char GetAt(int position) const;
    char operator[](int position) const { return GetAt(position); }
    std::string ToStdString() const { return std::string(c_str(), static_cast<size_t>(length)); }

    // --- encodings ---

    // Null empties the string.
    void SetStringWithEncoding(const char* text, DetectCharPtrEncoding mode);
    // True for well-formed UTF-8 with at least one character beyond ASCII.
    // Intended: plain ASCII is not UTF-8 here, so that it is never decoded.
    bool DetectIsUTF_8() const;
    // From UTF-8 into the locale's code. A text that is no UTF-8 stays as it is, and so does one
    // that the locale's code cannot hold.
    void Utf_8_Decode();
    // The wide text, up to the first zero byte; valid until the next call or until the string
    // changes. Read as UTF-8 if it is that, else in the locale's code, else as Latin-1.
    const wchar_t* to_wchar_ptr() const;
    operator QString() const;

    // --- changing ---

    // As printf, but numbers have a point whatever the locale. The arguments may point into this
    // string. Null is the empty format.
    void Format(const char* format, ...);
    void FormatV(const char* format, va_list arguments);
    KVString& operator+=(const KVString& text);
    KVString& operator+=(const char* text);
    KVString& operator+=(char character);
    void Insert(int position, const KVString& text);
    void Delete(int position, int count = 1);
    // Replaces every occurrence, going on behind each replacement. Returns how many there were.
    int Replace(const KVString& search, const KVString& replacement);
    // White space is blank, tab, CR, LF, vertical tab and form feed.
    KVString& TrimLeft();
    KVString& TrimRight();
    KVString& Trim() { return TrimRight().TrimLeft(); }
    KVString& MakeUpper();
    KVString& MakeLower();

    // --- searching and comparing ---

    // Negative, 0 or positive, by the values of the (unsigned) bytes.
    int Compare(const KVString& other) const;
    int CompareNoCase(const KVString& other) const;
    // The position of the first occurrence from start on, of the last one in the text; -1: none.
    int Find(const KVString& search, int start = 0) const;
    int Find(char search, int start = 0) const;
    int FindNoCase(const KVString& search, int start = 0) const;
    int ReverseFind(const KVString& search) const;
    int ReverseFind(char search) const;
    bool StartsWith(const KVString& start) const;
    bool EndsWith(const KVString& end) const;

    // --- pieces ---

    KVString Mid(int first) const;
    KVString Mid(int first, int count) const;
    KVString Left(int count) const;
    KVString Right(int count) const;
    // Lines end with LF or CR LF, which are not part of them; the last one may lack its end. A
    // number outside the text gives an empty line.
    KVString GetLine(int number) const;
    std::vector<KVString> GetLines() const;
    static KVString Join(const std::vector<KVString>& parts, const KVString& separator);

    // --- paths ---

    // The separator is the backslash alone. In C:\a\book.v2.txt these are C:\a, book.v2.txt, txt,
    // C:\a\book.v2 and book.v2; what a path does not have is empty.
    KVString Path_GetDirectory() const;
    KVString Path_GetFileName() const;
    KVString Path_GetFileExtension() const;
    KVString Path_TrimExtension() const;
    KVString Path_GetFileNameWithoutExtension() const;
    // Every "/" becomes a backslash.
    KVString Path_CorrectSeparators() const;

private:
    KVString(const char* bytes, int count);
    void Assign(const char* bytes, int count);
    void Append(const char* bytes, int count);
    int ClampPosition(int position) const;
    // The line that begins at a position; the position moves behind the line's end.
    KVString TakeLine(int& position) const;
    int ExtensionDot() const;

    std::unique_ptr<char[]> buffer;                // the text and its terminator, or null
    int length = 0;                                // bytes of text without the terminator
    size_t capacity = 0;                           // bytes allocated
    size_t granularity = 512;                      // bytes
    mutable std::unique_ptr<wchar_t[]> wideCache;  // the last result of to_wchar_ptr
};

KVString operator+(const KVString& left, const KVString& right);
KVString operator+(const KVString& left, const char* right);
KVString operator+(const char* left, const KVString& right);
KVString operator+(const KVString& left, char right);
KVString operator+(char left, const KVString& right);

inline bool operator==(const KVString& left, const KVString& right)
{
    return left.Compare(right) == 0;
}
inline bool operator==(const KVString& left, const char* right)
{
    return left.Compare(right) == 0;
}
inline bool operator==(const char* left, const KVString& right)
{
    return right.Compare(left) == 0;
}
inline bool operator!=(const KVString& left, const KVString& right)
{
    return left.Compare(right) != 0;
}
inline bool operator!=(const KVString& left, const char* right)
{
    return left.Compare(right) != 0;
}
inline bool operator!=(const char* left, const KVString& right)
{
    return right.Compare(left) != 0;
}
inline bool operator<(const KVString& left, const KVString& right)
{
    return left.Compare(right) < 0;
}

QDebug operator<<(QDebug debug, const KVString& text);

namespace KVStringNamespace {

// Strings made of other values.
class KVStringMaker
{
public:
    // The value with at most that many significant digits (at least 1), without trailing zeros and
    // with a point whatever the locale: plainly ("297.01") while the decimal exponent is above -5
    // and below digits, else as "1.5e-07". Also "0", "inf", "-inf" and "nan".
    static KVString FromNumberScience(double value, int digits);
};

}  // namespace KVStringNamespace
