// The program is killed while somebody works with it, and started again.
#include "tests/app/DrivenProgram.h"
#include "tests/app/OwnScreen.h"

#include <QElapsedTimer>
#include <QThread>
#include <QtTest>

#include <vector>

namespace {

constexpr QSize kWindow(1000, 700);
constexpr QSize kWide(1200, 900);  // with room for the lists
constexpr int kMostLost = 5000;    // ms of work

const char* const kBook = "\xEF\xBB\xBFPRODUCT 905, \"Farm\"\r\n"
                          "IMAGE\r\nPAPER 100.0 100.0\r\nDPI   600\r\n"
                          "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n"
                          "SCRIPT # -----------------------\r\n";

}  // namespace

class KilledProgramTest : public QObject
{
    Q_OBJECT

public:
    explicit KilledProgramTest(const XDisplay& screen) : display(screen) {}

private slots:
    void init() { writeFile(folder.file("farm.oidpro"), kBook); }

    void whatWasTypedFiveSecondsAgoIsThereAgain()
    {
        try {
            kill({"farm.oidpro"}, [](DrivenProgram& program) {
                program.type("sub cow\n\tsay \"Moo\"\n\bend sub");
                QThread::msleep(kMostLost);
            });
            QCOMPARE(readFile(folder.file("farm.oidpro")), kBook);
            const std::string script = restoredScript();
            QCOMPARE(script, std::string("sub cow\r\n\tsay \"Moo\"\r\nend sub"));
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

    // The copies are written while keys go on coming.
    void ofWorkThatGoesOnAtMostFiveSecondsAreLost()
    {
        try {
            std::vector<qint64> typedAt;
            QElapsedTimer time;
            kill({"farm.oidpro"}, [&](DrivenProgram& program) {
                time.start();
                while (time.elapsed() < kMostLost * 3 / 2) {
                    program.type("x");
                    typedAt.push_back(time.elapsed());
                }
            });
            const qint64 killedAt = time.elapsed();
            const auto old = std::count_if(typedAt.begin(), typedAt.end(), [&](qint64 typed) {
                return killedAt - typed > kMostLost;
            });
            QVERIFY(old > 0);
            const std::string script = restoredScript();
            QVERIFY2(script.size() >= static_cast<size_t>(old), script.c_str());
            QVERIFY(script.size() <= typedAt.size());
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

    void workThatNeverHadAFileIsThereAgain()
    {
        try {
            kill({}, [](DrivenProgram& program) {
                program.type("sub hen");
                QThread::msleep(kMostLost);
            });
            DrivenProgram program(display, home(), kWindow);
            program.press("alt+r");
            program.press("ctrl+s");
            program.chooseFile("Save project", QString::fromStdString(folder.file("new")));
            program.quit();
            const std::string saved = readFile(folder.file("new.oidpro"));
            QVERIFY2(saved.find("\r\nsub hen") != std::string::npos, saved.c_str());
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

    // Their pictures have been renamed, and the project file was not saved.
    void movedPagesAreWhereTheyWereAgain()
    {
        try {
            std::vector<std::string> pictures;
            for (int page = 0; page < 2; ++page) {
                QImage image(100 + page * 100, 100, QImage::Format_RGB32);
                image.fill(Qt::white);
                image.save(QString::fromStdString(picture(page)));
                pictures.push_back(readFile(picture(page)));
            }
            const std::string book = twoPages();
            writeFile(folder.file("farm.oidpro"), book);
            {
                DrivenProgram program(display, home(), kWide, {"farm.oidpro"});
                program.showTab("tabAreas");
                for (int i = 0; i < 2; ++i) {
                    program.press("ctrl+shift+p");  // closes the list, then goes into it
                }
                program.press("Home");
                program.press("ctrl+Down");
                waitUntil([&] { return fileNow(picture(0)) == pictures[1]; }, "the moved page");
                program.kill();
            }
            QVERIFY(readFile(folder.file("farm.oidpro")) == book);
            {
                DrivenProgram program(display, home(), kWide, {"farm.oidpro"});
                waitUntil([&] { return fileNow(picture(0)) == pictures[0]; }, "the saved order");
                program.quit();
            }
            QVERIFY(readFile(picture(1)) == pictures[1]);
            QVERIFY(readFile(folder.file("farm.oidpro")) == book);
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

private:
    std::string picture(int page) const
    {
        return folder.file("905-bkgnd" + std::to_string(page) + ".jpg");
    }
    static std::string twoPages()
    {
        const std::string head = "IMAGE\r\nPAPER 100.0 100.0\r\nDPI   600\r\n";
        const std::string tail = "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n";
        const auto area = [](const std::string& name) {
            return "POLY " + name + "\r\n    10 10\r\n    50 10\r\n    50 50\r\nEND\r\n\r\n";
        };
        return "\xEF\xBB\xBFPRODUCT 905, \"Farm\"\r\n" + head + area("cow") + tail + head +
               area("hen") + tail + "SCRIPT # -----------------------\r\n";
    }

    // Works in the script editor and kills the program at the end of it.
    void kill(const QStringList& arguments, const std::function<void(DrivenProgram&)>& work)
    {
        DrivenProgram program(display, home(), kWindow, arguments);
        program.showTab("tabScript");
        program.click("codeEditor");
        work(program);
        program.kill();
    }

    // What is saved once the work was restored.
    std::string restoredScript()
    {
        DrivenProgram program(display, home(), kWindow, {"farm.oidpro"});
        program.press("alt+r");
        program.press("ctrl+s");
        const std::string book = kBook;
        waitUntil([&] { return readFile(folder.file("farm.oidpro")) != book; },
                  "the saved project");
        program.quit();
        return readFile(folder.file("farm.oidpro")).substr(book.size());
    }

    QString home() const { return QString::fromStdString(folder.path()); }

    const XDisplay& display;
    TemporaryFolder folder;
};

int main(int argc, char* argv[])
{
    return runOnItsScreen(argc, argv, [](const XDisplay& display) {
        return std::make_unique<KilledProgramTest>(display);
    });
}

#include "KilledProgramTest.moc"
