// Every writer meets a disk that is full, a folder that takes nothing, and a link in the place of
// its file: it says so, and the old content stays whole.
#include <QImage>
#include <QSettings>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>

#include <unistd.h>

#include "document/Document.h"
#include "document/NewBook.h"
#include "document/UnsavedWork.h"
#include "oid/OpenProject.h"
#include "programs/TerminalRunner.h"
#include "publish/PenCopy.h"
#include "speech/SpeechIndex.h"
#include "tests/faults/Books.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/RunProgram.h"

namespace fs = std::filesystem;

namespace {

// For the administrator no folder is locked. While this lives, the process and those that it starts
// are an ordinary user's.
class OrdinaryUser
{
public:
    OrdinaryUser() : isRoot(geteuid() == 0)
    {
        constexpr uid_t kNobody = 65534;
        if (isRoot && setresuid(kNobody, kNobody, 0) != 0) {
            ADD_FAILURE() << "cannot become another user";
        }
    }
    ~OrdinaryUser()
    {
        if (isRoot && setresuid(0, 0, 0) != 0) {
            abort();
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool isRoot;
};

void allow(const std::string& folder, fs::perms rights)
{
    fs::permissions(folder, rights);
}

// One writer, with all that it needs in a folder of its own.
class Writers : public testing::TestWithParam<const char*>
{
protected:
    Writers()
    {
        Oid::OidProject book = bookOf(0, 50);
        EXPECT_TRUE(book.save(folder.file("book.oidpro")));
        QImage picture(60, 40, QImage::Format_RGB32);
        picture.fill(Qt::white);
        EXPECT_TRUE(picture.save(QString::fromStdString(folder.file("900-bkgnd0.jpg"))));
        writeFile(folder.file("900-Zoo.gme"), std::string(5000, 'g'));
        writeFile(folder.file("moo.ogg"), "moo");
        writeFile(folder.file("game.yaml"), "product-id: 900\nscripts:\n  s:\n    - $x:=1\n");
        for (const char* const name :
             {"pen", "pages", "data", "data/plinkett", "data/plinkett/recovery"}) {
            fs::create_directory(folder.file(name));
        }
        writeFile(folder.file("pen/tiptoi.ico"), "");
        Oid::OidProject pages = bookOfPages();
        EXPECT_TRUE(pages.save(folder.file("pages/book.oidpro")));
        for (int page = 0; page < kPages; ++page) {
            writeFile(folder.file("pages/900-bkgnd" + std::to_string(page) + ".jpg"),
                      pictureOf(page));
        }
    }
    ~Writers() override { allow(folder.path(), fs::perms::owner_all); }

    std::string kind() const { return GetParam(); }

    // The file that it writes.
    std::string file() const
    {
        static const std::map<std::string, std::string> files = {
            {"save", "saved.oidpro"},
            {"yaml", "900-Zoo.yaml"},
            {"print", "900-print0.tiff"},
            {"pdf", "900-Zoo.pdf"},
            {"game", "made.gme"},
            {"codes", "game.codes.yaml"},
            {"recovery", ""},  // of a name of its own
            {"picture", "900-bkgnd0.jpg"},
            {"order", "pages/900-bkgnd0.jpg"},
            {"copy", "pen/900-Zoo.gme"},
            {"settings", "settings.ini"},
            {"index", "speech-index.json"},
        };
        return files.at(kind());
    }

    // False: it has said that it failed.
    bool write()
    {
        static const std::map<std::string, std::vector<std::string>> commands = {
            {"save", {"save", "book.oidpro", "-o", "saved.oidpro"}},
            {"yaml", {"yaml", "book.oidpro"}},
            {"print", {"print", "book.oidpro"}},
            {"pdf", {"pdf", "book.oidpro"}},
            {"game", {"assemble", "game.yaml", "made.gme"}},
            {"codes", {"assemble", "game.yaml", "made.gme"}},
        };
        const auto command = commands.find(kind());
        return command != commands.end() ? run(command->second) : writeHere();
    }

    bool run(const std::vector<std::string>& words)
    {
        const ProgramRun result =
            runProgram(PLINKETT_BIN_DIR "/plinkett-cli", words, {}, folder.path());
        const bool told = result.out.find("rror: ") != std::string::npos;
        EXPECT_EQ(result.status, told ? 1 : 0) << result.out;
        return result.status == 0;
    }

    bool writeHere()
    {
        if (kind() == "copy") {
            return copyToPen();
        }
        if (kind() == "index") {
            SpeechIndex index(folder.path());
            Utterance spoken;
            spoken.text = scriptOf(3);
            return index.remember("moo", spoken) && index.save();
        }
        if (kind() == "settings") {
            QSettings settings(QString::fromStdString(folder.file(file())), QSettings::IniFormat);
            settings.setValue("script", QString::fromStdString(scriptOf(3)));
            settings.sync();
            return settings.status() == QSettings::NoError;
        }
        return kind() == "recovery" ? keepWork() : edit();
    }

    bool copyToPen()
    {
        Oid::OidProject book;
        book.productName = "Zoo";
        book.projectPath = folder.file("book.oidpro");
        TerminalRunner runner;
        return isCopied(copyGmeToPen(book, runner, {folder.file("pen")}));
    }

    bool keepWork()
    {
        const ChangedVariable data("XDG_DATA_HOME", folder.file("data"));
        std::string script = "x";
        UnsavedWork work({[&] { return std::hash<std::string>()(script); },
                          [&] {
                              Oid::OidProject project;
                              project.compiler.source = script;
                              return project;
                          }});
        work.isSaved(folder.file("book.oidpro"));
        script = scriptOf(3);
        return work.keepNow();
    }

    bool edit()
    {
        const bool moves = kind() == "order";
        Document document;
        EXPECT_TRUE(Oid::openProject(document.projectRecord(),
                                     folder.file(moves ? "pages/book.oidpro" : "book.oidpro")));
        document.restart();
        if (moves) {
            return document.apply(edit::MovePage{0, 3}) &&
                   document.save(folder.file("pages/book.oidpro"));
        }
        return document.apply(edit::ReplacePicture{0, QByteArray::fromStdString(pictureOf(1))});
    }

    // All that lies there, with what is in it.
    std::map<std::string, std::string> everything() const
    {
        std::map<std::string, std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            if (entry.is_regular_file()) {
                found[entry.path().string()] = readFile(entry.path().string());
            }
        }
        return found;
    }

    TemporaryFolder folder;
};

}  // namespace

TEST_P(Writers, WriteWhereThereIsRoom)
{
    const auto before = everything();
    EXPECT_TRUE(write());
    EXPECT_NE(everything(), before);
}

TEST_P(Writers, OfAFullDiskAreToldAndLeaveAllAsItWas)
{
    if (kind() != "game") {  // its codes file comes first
        for (const unsigned long room : {0, 1, 20, 60}) {
            const auto before = everything();
            {
                const SmallDisk disk(room);
                EXPECT_FALSE(write()) << room;
            }
            EXPECT_EQ(everything(), before) << room;
        }
    }
}

TEST_P(Writers, OfALockedFolderAreToldAndLeaveAllAsItWas)
{
    const auto before = everything();
    {
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            allow(entry.path().string(), entry.is_directory() ? fs::perms(0555) : fs::perms(0444));
        }
        allow(folder.path(), fs::perms(0555));
        const OrdinaryUser user;
        EXPECT_FALSE(write());
    }
    EXPECT_EQ(everything(), before);
}

TEST_P(Writers, FollowALinkAndLeaveItThere)
{
    if (file().empty() || kind() == "order") {
        return;  // a name that nobody links to; pages take the link along
    }
    const fs::path elsewhere = fs::path(folder.file(file())).parent_path() / "elsewhere";
    fs::create_directory(elsewhere);  // but not outside of what belongs to the book, or to the pen
    const std::string target = (elsewhere / "new").string();
    if (kind() == "index") {  // one that cannot be read is put aside
        ASSERT_TRUE(write());
        fs::rename(folder.file(file()), target);
    }
    fs::remove(folder.file(file()));
    fs::create_symlink(target, folder.file(file()));
    EXPECT_TRUE(write());
    EXPECT_TRUE(fs::is_symlink(folder.file(file())));
    EXPECT_NE(readFile(target), "");
}

TEST(NewBooks, CannotLieWhereNothingCanBeWritten)
{
    const TemporaryFolder folder;
    allow(folder.path(), fs::perms(0755));
    fs::create_directory(folder.file("closed"));
    allow(folder.file("closed"), fs::perms(0555));
    NewBook book;
    book.name = "Zoo";
    book.number = 917;
    book.folder = QString::fromStdString(folder.file("closed/zoo"));
    const QString expected = "Nothing can be written into the folder " +
                             QString::fromStdString(folder.file("closed")) + ".";
    {
        const OrdinaryUser user;
        EXPECT_EQ(book.problem(), expected);
        const NewBook::Outcome outcome = book.make([](int /*pages*/) { return true; });
        EXPECT_FALSE(outcome.made);
        EXPECT_EQ(outcome.problem, expected);
    }
    EXPECT_TRUE(fs::is_empty(folder.file("closed")));
}

INSTANTIATE_TEST_SUITE_P(Each, Writers,
                         testing::Values("save", "yaml", "print", "pdf", "game", "codes",
                                         "recovery", "picture", "order", "copy", "settings",
                                         "index"),
                         [](const auto& test) { return test.param; });
