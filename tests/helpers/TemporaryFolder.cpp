#include "tests/helpers/TemporaryFolder.h"

#include "base/PlatformFiles.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <vector>

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::random_device random;
    do {
        folder = (fs::temp_directory_path() / ("plinkett-" + std::to_string(random()))).u8string();
    } while (!fs::create_directory(fs::u8path(folder)));
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(fs::u8path(folder), ignored);
}

std::string TemporaryFolder::file(const std::string& name) const
{
    return Platform::nativePath(folder + "/" + name);
}

std::string TemporaryFolder::listing() const
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::u8path(folder))) {
        names.push_back(entry.path().filename().u8string());
    }
    std::sort(names.begin(), names.end());
    std::string joined;
    for (const std::string& name : names) {
        joined += (joined.empty() ? "" : " ") + name;
    }
    return joined;
}

std::string readFile(const std::string& path)
{
    std::ifstream file(fs::u8path(path), std::ios::binary);
    if (!file) {
        throw std::runtime_error("no file " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string& path, const std::string& bytes)
{
    std::ofstream file(fs::u8path(path), std::ios::binary);
    file << bytes;
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + path);
    }
}

void setTime(const std::string& path, const char* time)
{
    QFile file(QString::fromStdString(path));
    file.open(QIODevice::Append);
    file.setFileTime(QDateTime::fromString(time, "yyyy-MM-dd HH:mm:ss"),
                     QFileDevice::FileModificationTime);
}
