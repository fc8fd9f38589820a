#include "document/KeptFile.h"

#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"

bool KeptFiles::keep(const std::string& place, std::string& copy)
{
    copy.clear();
    if (!Platform::fileExists(place)) {
        return true;
    }
    copy = folder.path().toStdString() + "/" + itostr(++count) + ".jpg";
    return folder.isValid() && Platform::copyFile(place, copy);
}

bool KeptFiles::exchange(const std::string& place, KeptFile& kept)
{
    std::string copy;
    const bool done =
        keep(place, copy) &&
        (kept.copy.empty() ? Platform::removeFile(place) : Platform::copyFile(kept.copy, place));
    if (!done) {
        forget({kept.page, copy});
        return false;
    }
    forget(kept);
    kept.copy = copy;
    return true;
}

bool KeptFiles::keepAsItIs(const std::string& place, KeptFile& kept)
{
    std::string copy;
    if (!keep(place, copy)) {
        forget({kept.page, copy});
        return false;
    }
    forget(kept);
    kept.copy = copy;
    return true;
}

static bool writeWhole(const std::string& place, const QByteArray& content)
{
    Platform::FileReplacement replacement(place);
    FILE* const file = replacement.file();
    const auto size = static_cast<std::size_t>(content.size());
    return file != nullptr && std::fwrite(content.constData(), 1, size, file) == size &&
           replacement.commit();
}

bool KeptFiles::replace(const std::string& place, const QByteArray& content, KeptFile& kept)
{
    if (keep(place, kept.copy) && writeWhole(place, content)) {
        return true;
    }
    forget(kept);
    return false;
}

static QByteArray contentOf(const std::string& path)
{
    return readInput(path).value_or(QByteArray());
}

bool KeptFiles::isAsKept(const std::string& place, const KeptFile& kept) const
{
    const bool isThere = Platform::fileExists(place);
    return isThere == !kept.copy.empty() && (!isThere || contentOf(place) == contentOf(kept.copy));
}

void KeptFiles::forget(const KeptFile& kept)
{
    if (!kept.copy.empty()) {
        Platform::removeFile(kept.copy);
    }
}
