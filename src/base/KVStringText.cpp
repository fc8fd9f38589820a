// Searching, comparing, cutting and joining.
#include "base/KVString.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isWhite(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view view(const KVString& text)
{
    return {text.c_str(), static_cast<size_t>(text.GetLength())};
}

int toPosition(size_t found)
{
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

}  // namespace

int KVString::ClampPosition(int position) const
{
    return std::clamp(position, 0, length);
}

char KVString::GetAt(int position) const
{
    return position >= 0 && position < length ? buffer[static_cast<size_t>(position)] : '\0';
}

int KVString::Compare(const KVString& other) const
{
    return view(*this).compare(view(other));
}

int KVString::CompareNoCase(const KVString& other) const
{
    return KVString(*this).MakeLower().Compare(KVString(other).MakeLower());
}

int KVString::Find(const KVString& search, int start) const
{
    return toPosition(view(*this).find(view(search), static_cast<size_t>(ClampPosition(start))));
}

int KVString::Find(char search, int start) const
{
    return toPosition(view(*this).find(search, static_cast<size_t>(ClampPosition(start))));
}

int KVString::FindNoCase(const KVString& search, int start) const
{
    return KVString(*this).MakeLower().Find(KVString(search).MakeLower(), start);
}

int KVString::ReverseFind(const KVString& search) const
{
    return toPosition(view(*this).rfind(view(search)));
}

int KVString::ReverseFind(char search) const
{
    return toPosition(view(*this).rfind(search));
}

bool KVString::StartsWith(const KVString& start) const
{
    return view(*this).substr(0, static_cast<size_t>(start.length)) == view(start);
}

bool KVString::EndsWith(const KVString& end) const
{
    return length >= end.length &&
           view(*this).substr(static_cast<size_t>(length - end.length)) == view(end);
}

KVString KVString::Mid(int first) const
{
    return Mid(first, length);
}

KVString KVString::Mid(int first, int count) const
{
    first = ClampPosition(first);
    return KVString(c_str() + first, std::clamp(count, 0, length - first));
}

KVString KVString::Left(int count) const
{
    return Mid(0, count);
}

KVString KVString::Right(int count) const
{
    return Mid(length - ClampPosition(count));
}

void KVString::Insert(int position, const KVString& text)
{
    position = ClampPosition(position);
    *this = Left(position) + text + Mid(position);
}

void KVString::Delete(int position, int count)
{
    position = ClampPosition(position);
    *this = Left(position) + Mid(position + std::clamp(count, 0, length - position));
}

int KVString::Replace(const KVString& search, const KVString& replacement)
{
    if (search.IsEmpty()) {
        return 0;
    }
    KVString result;
    int count = 0;
    int done = 0;
    for (int found = Find(search); found >= 0; found = Find(search, done)) {
        result.Append(c_str() + done, found - done);
        result += replacement;
        done = found + search.length;
        ++count;
    }
    if (count > 0) {
        result.Append(c_str() + done, length - done);
        *this = std::move(result);
    }
    return count;
}

KVString& KVString::TrimLeft()
{
    const auto text = view(*this);
    const auto first = std::find_if_not(text.begin(), text.end(), isWhite);
    Delete(0, static_cast<int>(first - text.begin()));
    return *this;
}

KVString& KVString::TrimRight()
{
    const auto text = view(*this);
    const auto kept = text.rend() - std::find_if_not(text.rbegin(), text.rend(), isWhite);
    Delete(static_cast<int>(kept), length);
    return *this;
}

KVString& KVString::MakeUpper()
{
    std::transform(buffer.get(), buffer.get() + length, buffer.get(), upper);
    return *this;
}

KVString& KVString::MakeLower()
{
    std::transform(buffer.get(), buffer.get() + length, buffer.get(), lower);
    return *this;
}

KVString KVString::TakeLine(int& position) const
{
    const int feed = Find('\n', position);
    const int end = feed < 0 ? length : feed;
    const bool carriageReturn = feed > position && GetAt(feed - 1) == '\r';
    KVString line = Mid(position, end - position - (carriageReturn ? 1 : 0));
    position = feed < 0 ? length : feed + 1;
    return line;
}

KVString KVString::GetLine(int number) const
{
    int position = 0;
    for (int i = 0; i <= number && position < length; ++i) {
        KVString line = TakeLine(position);
        if (i == number) {
            return line;
        }
    }
    return {};
}

std::vector<KVString> KVString::GetLines() const
{
    std::vector<KVString> lines;
    for (int position = 0; position < length;) {
        lines.push_back(TakeLine(position));
    }
    return lines;
}

KVString KVString::Join(const std::vector<KVString>& parts, const KVString& separator)
{
    KVString joined;
    for (size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) {
            joined += separator;
        }
        joined += parts[i];
    }
    return joined;
}

QDebug operator<<(QDebug debug, const KVString& text)
{
    return debug << QString(text);
}
