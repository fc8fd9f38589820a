#include "base/InputFile.h"

#include "base/PlatformFiles.h"

bool openInput(QFile& file, const std::string& path)
{
    FILE* const stream = Platform::openFile(path, "rb");
    return stream != nullptr &&
           file.open(stream, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
}

std::optional<QByteArray> readInput(const std::string& path, qint64 largest)
{
    QFile file;
    if (!openInput(file, path) || file.size() > largest) {
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::make_optional(std::move(bytes))
                                                : std::nullopt;
}
