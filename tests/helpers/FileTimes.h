#pragma once

#include <string>

#include <QDateTime>
#include <QFile>

// Makes a file look as if it was changed at that local time: "2024-05-31 14:05:40".
inline void setTime(const std::string& path, const char* time)
{
    QFile file(QString::fromStdString(path));
    file.open(QIODevice::Append);
    file.setFileTime(QDateTime::fromString(time, "yyyy-MM-dd HH:mm:ss"),
                     QFileDevice::FileModificationTime);
}
