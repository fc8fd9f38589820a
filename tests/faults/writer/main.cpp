// Writes files again and again, as the programs do, until it is killed:
//
//   endless_writer KIND FOLDER [FIRST]
//
// What it writes is numbered, from 1 or the first number on. Each time it says "(" before and ")"
// behind that, at once.
#include <QSettings>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

#include "document/Document.h"
#include "document/UnsavedWork.h"
#include "oid/OpenProject.h"
#include "programs/TerminalRunner.h"
#include "publish/PenCopy.h"
#include "speech/SpeechIndex.h"
#include "tests/faults/Books.h"

namespace {

using Write = std::function<void(int number)>;

int first = 1;

void forEver(const Write& write)
{
    for (int number = first;; ++number) {
        std::fputs("(", stdout);
        std::fflush(stdout);
        write(number);
        std::fputs(")", stdout);
        std::fflush(stdout);
    }
}

void saveBooks(const std::string& folder)
{
    forEver([&](int number) { bookOf(number).save(folder + "/book.oidpro"); });
}

// Moves, takes back and saves.
void movePages(const std::string& folder)
{
    const std::string path = folder + "/book.oidpro";
    Document document;
    Oid::openProject(document.projectRecord(), path);
    document.restart();
    forEver([&](int number) {
        document.apply(edit::MovePage{number % kPages, number / kPages * 3 % kPages});
        if (number % 5 == 4) {
            document.undo();
        }
        if (number % 3 == 0) {
            document.save(path);
        }
    });
}

void keepWork(const std::string& folder)
{
    int now = 0;
    UnsavedWork work({[&] { return static_cast<std::uint64_t>(now); },
                      [&] {
                          Oid::OidProject project;
                          project.compiler.source = scriptOf(now);
                          return project;
                      }});
    work.isSaved(folder + "/book.oidpro");
    forEver([&](int number) {
        now = number;
        work.keepNow();
    });
}

void importPictures(const std::string& folder)
{
    Document document;
    Oid::openProject(document.projectRecord(), folder + "/book.oidpro");
    document.restart();
    forEver([&](int number) {
        document.apply(
            edit::ReplacePicture{0, QByteArray::fromStdString(pictureOf(number % kPages))});
    });
}

void copyToPen(const std::string& folder)
{
    TerminalRunner runner;
    forEver([&](int number) {
        Oid::OidProject book;
        book.productName = "Zoo";
        book.projectPath = folder + (number % 2 == 0 ? "/even" : "/odd") + "/book.oidpro";
        copyGmeToPen(book, runner, {folder + "/pen"});
    });
}

void keepSettings(const std::string& folder)
{
    QSettings settings(QString::fromStdString(folder + "/Plinkett.conf"), QSettings::IniFormat);
    forEver([&](int number) {
        settings.setValue("first", number);
        settings.setValue("window", QString(number % 7 * 1000, 'x'));
        settings.setValue("zlast", number);
        settings.sync();
    });
}

// Knows the one audio file under as many names as there are.
void indexSpeech(const std::string& folder)
{
    SpeechIndex index(folder);
    forEver([&](int number) {
        Utterance spoken;
        spoken.text = scriptOf(number);
        spoken.voice = std::to_string(number);
        index.remember("moo", spoken);
        index.save();
    });
}

}  // namespace

int main(int argc, char* argv[])
{
    const std::map<std::string, void (*)(const std::string& folder)> kinds = {
        {"save", saveBooks},         {"order", movePages}, {"recovery", keepWork},
        {"picture", importPictures}, {"copy", copyToPen},  {"settings", keepSettings},
        {"index", indexSpeech},
    };
    const auto kind = argc >= 3 ? kinds.find(argv[1]) : kinds.end();
    if (kind == kinds.end()) {
        return 2;
    }
    if (argc > 3) {
        first = std::atoi(argv[3]);
    }
    kind->second(argv[2]);
}
