#include "base/KVString.h"

#include <algorithm>

// The position of the extension's dot, or the length when the file name has none. A dot in a
// folder's name is no such dot.
int KVString::ExtensionDot() const
{
    const int dot = ReverseFind('.');
    return dot > ReverseFind('\\') ? dot : length;
}

KVString KVString::Path_GetDirectory() const
{
    return Left(ReverseFind('\\'));
}

KVString KVString::Path_GetFileName() const
{
    return Mid(ReverseFind('\\') + 1);
}

KVString KVString::Path_GetFileExtension() const
{
    return Mid(ExtensionDot() + 1);
}

KVString KVString::Path_TrimExtension() const
{
    return Left(ExtensionDot());
}

KVString KVString::Path_GetFileNameWithoutExtension() const
{
    return Path_GetFileName().Path_TrimExtension();
}

KVString KVString::Path_CorrectSeparators() const
{
    KVString path = *this;
    path.Replace("/", "\\");
    return path;
}
