// Programs are killed at random moments while they write: what they leave is the old content or the
// new one, whole. A few times in every test run; PLINKETT_KILLS=1000 says how often, and then what
// came of it is told (docs/reliability.md).
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QSettings>
#include <QThread>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <random>
#include <set>

#include "base/PlatformFiles.h"
#include "document/Document.h"
#include "document/RecoveryFolder.h"
#include "oid/OpenProject.h"
#include "oid/ProjectWriter.h"
#include "publish/YamlFile.h"
#include "speech/SpeechIndex.h"
#include "tests/faults/Books.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/RunProgram.h"

namespace fs = std::filesystem;

namespace {

constexpr int kPatience = 120'000;  // ms
const std::string kCli = PLINKETT_BIN_DIR "/plinkett-cli";

int kills()
{
    constexpr int kInEachRun = 5;
    const int asked = qEnvironmentVariableIntValue("PLINKETT_KILLS");
    return asked > 0 ? asked : kInEachRun;
}

class KilledWriters : public testing::Test
{
protected:
    ~KilledWriters() override
    {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        printf("%s: %s\n", test->name(), summary.c_str());
    }

    // Kills the endless writer, each time after another part of a second; then the check looks,
    // which knows how often something was written.
    void killOften(const std::string& kind, const std::function<void(int written)>& check,
                   qint64 longest = kShort)
    {
        int midway = 0;
        int writtenInAll = 0;
        for (int i = 0; i < kills() && !HasFailure(); ++i) {
            QProcess writer;
            writer.setStandardErrorFile(QProcess::nullDevice());
            writer.start(PLINKETT_ENDLESS_WRITER,
                         {QString::fromStdString(kind), QString::fromStdString(folder.path())});
            ASSERT_TRUE(writer.waitForReadyRead(kPatience)) << "nothing is written";
            wait(longest);
            writer.kill();
            ASSERT_TRUE(writer.waitForFinished(kPatience));
            const QByteArray said = writer.readAllStandardOutput();
            ASSERT_EQ(writer.exitStatus(), QProcess::CrashExit) << said.toStdString();
            const int written = said.count(')');
            midway += said.count('(') > written ? 1 : 0;
            writtenInAll += written;
            check(written);
        }
        summary = std::to_string(kills()) + " kills, " + std::to_string(midway) +
                  " of them while it wrote; " + std::to_string(writtenInAll) + " times written";
    }

    // Kills plinkett-cli, run with these words on the even and the odd book by turns, at any moment
    // of the time that it needs. Each of the files, the first of which was there before, has then
    // the content of one or the other.
    void killCommand(const std::function<std::vector<std::string>(bool odd)>& words,
                     const std::vector<std::string>& files)
    {
        std::map<std::string, std::set<std::string>> whole;
        QElapsedTimer clock;
        clock.start();
        for (const bool odd : {true, false}) {
            ASSERT_EQ(runProgram(kCli, words(odd), kNothing, folder.path()).status, 0);
            for (const std::string& file : files) {
                whole[file].insert(withoutChance(readFile(folder.file(file))));
            }
        }
        const qint64 needed = clock.elapsed() / 2 + 1;
        int ended = 0;
        int changed = 0;
        std::string before;
        for (int i = 0; i < kills() && !HasFailure(); ++i) {
            QProcess program;
            QStringList arguments;
            for (const std::string& word : words(i % 2 == 0)) {
                arguments << QString::fromStdString(word);
            }
            program.setWorkingDirectory(QString::fromStdString(folder.path()));
            program.setStandardOutputFile(QProcess::nullDevice());
            program.start(QString::fromStdString(kCli), arguments);
            ASSERT_TRUE(program.waitForStarted(kPatience));
            wait(needed * 1000);
            program.kill();
            ASSERT_TRUE(program.waitForFinished(kPatience));
            ended += program.exitStatus() == QProcess::NormalExit ? 1 : 0;
            for (const std::string& file : files) {
                if (fs::exists(folder.file(file))) {
                    const std::string now = withoutChance(readFile(folder.file(file)));
                    EXPECT_EQ(whole[file].count(now), 1U) << file << " is neither old nor new";
                }
            }
            const std::string now = withoutChance(readFile(folder.file(files[0])));
            changed += now != before ? 1 : 0;
            before = now;
        }
        summary = std::to_string(kills()) + " kills, " + std::to_string(ended) +
                  " of them too late; " + std::to_string(changed) + " new files";
    }

    void save(const Oid::OidProject& project, const std::string& name = "book.oidpro")
    {
        Oid::OidProject copy;
        copy.productName = project.productName;
        copy.pictures = project.pictures;
        copy.oids = project.oids;
        copy.compiler.source = project.compiler.source;
        ASSERT_TRUE(copy.save(folder.file(name)));
    }

    void makePicture()
    {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::white);
        ASSERT_TRUE(image.save(QString::fromStdString(folder.file("900-bkgnd0.jpg"))));
    }

    static const std::vector<std::string> kNothing;
    static constexpr qint64 kShort = 80'000;  // microseconds
    static constexpr qint64 kLong = 400'000;  // for what takes several steps

    TemporaryFolder folder;
    const OwnDataFolder data;
    const std::string book = folder.file("book.oidpro");

    void wait(qint64 longest)
    {
        QThread::usleep(std::uniform_int_distribution<unsigned long>(
            0, static_cast<unsigned long>(longest))(chance));
    }

    std::string summary;

private:
    // A description has another seed each time.
    static std::string withoutChance(std::string content)
    {
        const std::size_t seed = content.find("$rnd := ");
        if (seed != std::string::npos) {
            content.erase(seed, content.find('\n', seed) - seed);
        }
        return content;
    }

    std::mt19937 chance{std::random_device{}()};
};

const std::vector<std::string> KilledWriters::kNothing;

}  // namespace

TEST_F(KilledWriters, ASavedProjectIsTheOldOrTheNewOne)
{
    save(bookOf(0));
    const std::set<std::string> whole = {Oid::textInFile(bookOf(0)), Oid::textInFile(bookOf(1))};
    killOften("save", [&](int /*written*/) { EXPECT_EQ(whole.count(readFile(book)), 1U); });
}

// Also what is saved and what is not is told apart.
TEST_F(KilledWriters, EveryPageHasItsPicture)
{
    save(bookOfPages());
    for (int picture = 0; picture < kPages; ++picture) {
        writeFile(folder.file("900-bkgnd" + std::to_string(picture) + ".jpg"), pictureOf(picture));
    }
    killOften(
        "order",
        [&](int /*written*/) {
            Document document;
            ASSERT_TRUE(Oid::openProject(document.projectRecord(), book));
            document.restart();
            const Oid::OidProject& now = document.project();
            std::set<std::string> pages;
            ASSERT_EQ(now.pictures.size(), static_cast<std::size_t>(kPages));
            for (int page = 0; page < kPages; ++page) {
                const std::string area =
                    now.pictures[static_cast<std::size_t>(page)].polys.at(0).name;
                pages.insert(area);
                EXPECT_EQ(readFile(Platform::nativePath(now.pathImageSource(page))),
                          pictureOf(area.back() - '0'))
                    << area;
            }
            EXPECT_EQ(pages.size(), static_cast<std::size_t>(kPages));
        },
        kLong);
}

// What was kept last is there, or what was about to be.
TEST_F(KilledWriters, UnsavedWorkIsThereAgain)
{
    save(bookOf(0));
    killOften("recovery", [&](int written) {
        const auto found = RecoveryFolder().newestFor(book);
        ASSERT_TRUE(found || written == 0);
        if (!found) {
            return;
        }
        EXPECT_TRUE(found->head) << "damaged";
        Oid::OidProject work;
        EXPECT_TRUE(Oid::openProject(work, found->path.toStdString()));
        const std::string& script = work.compiler.source;
        EXPECT_TRUE(script == scriptOf(written) || script == scriptOf(written + 1));
        const auto copy = RecoveryFile::take(found->path);
        ASSERT_NE(copy, nullptr);
        copy->remove();
    });
}

// Of each there is one copy, with what it wrote itself.
TEST_F(KilledWriters, UnsavedWorkOfTwoWindowsIsKeptApart)
{
    save(bookOf(0));
    constexpr int kFirst[] = {1, 1'000'001};
    for (int i = 0; i < kills() && !HasFailure(); ++i) {
        QProcess writers[2];
        for (int k = 0; k < 2; ++k) {
            writers[k].start(
                PLINKETT_ENDLESS_WRITER,
                {"recovery", QString::fromStdString(folder.path()), QString::number(kFirst[k])});
        }
        for (QProcess& writer : writers) {
            ASSERT_TRUE(writer.waitForReadyRead(kPatience));
        }
        wait(kLong);
        EXPECT_FALSE(RecoveryFolder().newestFor(book)) << "that of a window is offered";
        int written[2];
        for (int k = 0; k < 2; ++k) {
            writers[k].kill();
            ASSERT_TRUE(writers[k].waitForFinished(kPatience));
            written[k] = writers[k].readAllStandardOutput().count(')');
        }
        int copies[2] = {0, 0};
        while (const auto found = RecoveryFolder().newestFor(book)) {
            ASSERT_TRUE(found->head) << "damaged";
            Oid::OidProject work;
            ASSERT_TRUE(Oid::openProject(work, found->path.toStdString()));
            const std::string& script = work.compiler.source;
            const int k = std::stoi(script.substr(2)) < kFirst[1] ? 0 : 1;
            ++copies[k];
            const int last = kFirst[k] + written[k];  // one more than was told
            EXPECT_TRUE(script == scriptOf(last - 1) || script == scriptOf(last)) << k;
            RecoveryFile::take(found->path)->remove();
        }
        for (int k = 0; k < 2; ++k) {
            EXPECT_TRUE(copies[k] == 1 || (copies[k] == 0 && written[k] == 0)) << k;
        }
    }
    summary = std::to_string(kills()) + " times two at once";
}

TEST_F(KilledWriters, AnImportedPictureIsTheOldOrTheNewOne)
{
    save(bookOf(0));
    const std::string picture = folder.file("900-bkgnd0.jpg");
    writeFile(picture, pictureOf(0));
    std::set<std::string> whole;
    for (int i = 0; i < kPages; ++i) {
        whole.insert(pictureOf(i));
    }
    killOften("picture", [&](int /*written*/) { EXPECT_EQ(whole.count(readFile(picture)), 1U); });
}

TEST_F(KilledWriters, AGameOnThePenIsTheOldOrTheNewOne)
{
    const std::string even(3'000'000, 'e');
    const std::string odd(1'000'000, 'o');
    for (const char* const name : {"even", "odd", "pen"}) {
        fs::create_directory(folder.file(name));
    }
    writeFile(folder.file("even/900-Zoo.gme"), even);
    writeFile(folder.file("odd/900-Zoo.gme"), odd);
    writeFile(folder.file("pen/900-Zoo.gme"), odd);
    writeFile(folder.file("pen/tiptoi.ico"), "");
    killOften("copy", [&](int /*written*/) {
        const std::string game = readFile(folder.file("pen/900-Zoo.gme"));
        EXPECT_TRUE(game == even || game == odd);
    });
}

TEST_F(KilledWriters, SettingsAreThoseOfOneMoment)
{
    killOften("settings", [&](int written) {
        const QString file = QString::fromStdString(folder.file("Plinkett.conf"));
        const QSettings settings(file, QSettings::IniFormat);
        EXPECT_EQ(settings.status(), QSettings::NoError);
        const int first = settings.value("first").toInt();
        EXPECT_TRUE(first > 0 || written == 0);
        EXPECT_EQ(settings.value("zlast").toInt(), first);
        EXPECT_EQ(settings.value("window").toString().size(), first % 7 * 1000);
    });
}

TEST_F(KilledWriters, TheIndexOfSpeechIsTheOldOrTheNewOne)
{
    writeFile(folder.file("moo.ogg"), "moo");
    killOften("index", [&](int written) {
        SpeechIndex index(folder.path());
        ASSERT_EQ(index.state(), SpeechIndex::State::good);
        const Utterance* const spoken = index.spokenInto("moo");
        ASSERT_TRUE(spoken != nullptr || written == 0);
        if (spoken != nullptr) {
            EXPECT_EQ(spoken->text, scriptOf(std::stoi(spoken->voice)));
        }
    });
}

TEST_F(KilledWriters, ADescriptionIsTheOldOrTheNewOne)
{
    save(bookOf(0), "even.oidpro");
    save(bookOf(1), "odd.oidpro");
    killCommand(
        [](bool odd) {
            return std::vector<std::string>{"yaml", odd ? "odd.oidpro" : "even.oidpro"};
        },
        {"900-Zoo.yaml"});
}

TEST_F(KilledWriters, GameAndCodesFileAreEachTheOldOrTheNewOne)
{
    const auto description = [](int scripts) {
        std::string text = "product-id: 900\nscripts:\n";
        for (int i = 0; i < scripts; ++i) {
            text += "  s" + std::to_string(i) + ":\n    - $x:=" + std::to_string(i) + "\n";
        }
        return text;
    };
    writeFile(folder.file("even.yaml"), description(3000));
    writeFile(folder.file("odd.yaml"), description(300));
    const std::string yaml = folder.file("900-Zoo.yaml");
    killCommand(
        [&](bool odd) {
            fs::remove(folder.file("900-Zoo.codes.yaml"));
            fs::copy_file(folder.file(odd ? "odd.yaml" : "even.yaml"), yaml,
                          fs::copy_options::overwrite_existing);
            return std::vector<std::string>{"assemble", "--no-date", "900-Zoo.yaml"};
        },
        {"900-Zoo.gme", "900-Zoo.codes.yaml"});
}

TEST_F(KilledWriters, APrintImageIsTheOldOrTheNewOne)
{
    save(bookOf(0, 50), "even.oidpro");
    save(bookOf(1, 50), "odd.oidpro");
    makePicture();
    killCommand(
        [](bool odd) {
            return std::vector<std::string>{"print", odd ? "odd.oidpro" : "even.oidpro"};
        },
        {"900-print0.tiff"});
}

TEST_F(KilledWriters, APdfIsTheOldOrTheNewOne)
{
    save(bookOf(0, 50), "even.oidpro");
    save(bookOf(1, 50), "odd.oidpro");
    makePicture();
    killCommand(
        [](bool odd) {
            return std::vector<std::string>{"pdf", odd ? "odd.oidpro" : "even.oidpro"};
        },
        {"900-Zoo.pdf"});
}
