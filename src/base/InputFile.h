#pragma once

#include <QByteArray>
#include <QFile>

#include <optional>
#include <string>

// The door through which files come into Qt's classes; the rest uses FileSystem::myfopen. Files
// only: a pipe or a device in the place of one is refused at once. Paths are in our form or native.

// Opens the file for reading; the QFile is fresh. False when it cannot be read or is no file.
bool openInput(QFile& file, const std::string& path);

// The whole file; nothing when it cannot be read to its end, is no file, or is larger than that
// many bytes.
constexpr qint64 kLargestInput = 512 << 20;
std::optional<QByteArray> readInput(const std::string& path, qint64 largest = kLargestInput);
