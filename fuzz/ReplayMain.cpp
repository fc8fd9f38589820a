#include "fuzz/Fuzzing.h"

#include <QDirIterator>
#include <QFileInfo>

#include <cstdio>

// Runs a target with the bytes of the files, and of all files in the folders, that the command line
// names, in place of libFuzzer.
int main(int count, char** words)
{
    int runs = 0;
    const auto run = [&runs](const QString& file) {
        const std::string bytes = fuzzing::bytesOf(file.toStdString());
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
        ++runs;
    };
    for (int i = 1; i < count; ++i) {
        const QString path = QString::fromLocal8Bit(words[i]);
        if (!QFileInfo(path).isDir()) {
            run(path);
            continue;
        }
        QDirIterator files(path, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            run(files.next());
        }
    }
    std::printf("%d inputs\n", runs);
    return runs > 0 ? 0 : 1;
}
