// An author's first evening: from an empty window to a book that can be printed and played.
#include "tests/app/DrivenProgram.h"
#include "tests/app/OwnScreen.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QDir>
#include <QtTest>

#include <filesystem>

namespace {

constexpr char kScan[] = PLINKETT_SOURCE_DIR "/examples/farm/901-bkgnd0.jpg";

// High enough for the whole picture: no scroll bar takes of its width.
constexpr QSize kWindow(1000, 920);

struct DrawnArea
{
    const char* name;
    std::vector<Oid::PNT> corners;
};

const std::vector<DrawnArea> kAreas = {
    {"sun", {{4, 18}, {19, 18}, {19, 3}, {4, 3}}},
    {"house", {{27, 37}, {42, 37}, {44, 25}, {34, 17.5}, {25, 25}}},
    {"barn", {{60, 38}, {85, 38}, {86.5, 21}, {81, 14}, {64, 14}, {58, 21}}},
};

// As it is typed: the editor begins a line below the one before.
const char* const kTyped = "voice anna lang en age 30 sex f\n"
                           "\n"
                           "sub sun\n"
                           "\tsay anna \"Good morning!\"\n"
                           "\bend sub\n"
                           "\n"
                           "sub house\n"
                           "\tvisits = visits + 1\n"
                           "if visits > 2\n"
                           "\tsay anna \"Welcome back.\"\n"
                           "\belse\n"
                           "\tsay anna \"This is our house.\"\n"
                           "\bend if\n"
                           "\bend sub\n";

const char* const kScript = "voice anna lang en age 30 sex f\r\n"
                            "\r\n"
                            "sub sun\r\n"
                            "\tsay anna \"Good morning!\"\r\n"
                            "end sub\r\n"
                            "\r\n"
                            "sub house\r\n"
                            "\tvisits = visits + 1\r\n"
                            "\tif visits > 2\r\n"
                            "\t\tsay anna \"Welcome back.\"\r\n"
                            "\telse\r\n"
                            "\t\tsay anna \"This is our house.\"\r\n"
                            "\tend if\r\n"
                            "end sub\r\n";

// The lines of an area whose corners were clicked on a picture that is shown this wide.
std::string areaLines(const DrawnArea& area, int oid, int width)
{
    const auto clicked = [&](double percent) {
        return qRound(percent * width / 100) * 100.0 / width;
    };
    QString lines = QString("OID %1\r\nPOLY %2\r\n").arg(oid).arg(area.name);
    for (const Oid::PNT& corner : area.corners) {
        lines += QString::asprintf("    %8.2f %8.2f\r\n", clicked(corner.x), clicked(corner.y));
    }
    return (lines + "END\r\n\r\n").toStdString();
}

std::string projectFile(int width)
{
    return "\xEF\xBB\xBF"
           "PRODUCT 905, \"Farm\"\r\n"
           "IMAGE\r\nPAPER 533.0 376.0\r\nDPI   600\r\n" +
           areaLines(kAreas[0], 1001, width) + areaLines(kAreas[1], 1002, width) +
           areaLines(kAreas[2], 1003, width) +
           "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\nSCRIPT # "
           "-----------------------\r\n" +
           kScript;
}

void drawArea(DrivenProgram& program, const DrawnArea& area)
{
    program.click("btAddPoly");
    for (const Oid::PNT& corner : area.corners) {
        program.clickPicture(corner.x, corner.y);
    }
    program.fill("txPolyName", area.name);
}

// A part of the window that shows the project, and how many of its pixels may differ when the
// project is opened again: those of the two blinking carets, and some at the edges of areas, since
// corners are saved with two decimals and shown at whole pixels.
struct ShownPart
{
    const char* tab;
    const char* control;
    int mayDiffer;
};

const std::vector<ShownPart> kParts = {
    {"tabProject", "groupBox_3", 0},
    {"tabProject", "frCurrentPicture", 0},
    {"tabAreas", "polyArea", 4000},
    {"tabScript", "codeEditor", 70},
};

// Pixels from the top: further down is the list of problems, which comes and goes when it has to.
constexpr int kCompared = 500;

std::vector<QImage> shownProject(DrivenProgram& program)
{
    std::vector<QImage> pictures;
    for (const ShownPart& part : kParts) {
        program.showTab(part.tab);
        const QImage picture = program.stillPictureOf(part.control);
        pictures.push_back(picture.copy(0, 0, picture.width(), qMin(picture.height(), kCompared)));
    }
    return pictures;
}

int differentPixels(const QImage& a, const QImage& b)
{
    int count = a.size() == b.size() ? 0 : INT_MAX;
    for (int i = 0; count < INT_MAX && i < a.width() * a.height(); ++i) {
        const QPoint pixel(i % a.width(), i / a.width());
        count += a.pixel(pixel) == b.pixel(pixel) ? 0 : 1;
    }
    return count;
}

}  // namespace

class EndToEndTest : public QObject
{
    Q_OBJECT

public:
    explicit EndToEndTest(const XDisplay& screen) : display(screen) {}

private slots:
    // Once for all tests: it takes long.
    void initTestCase()
    {
        try {
            made = makeTheBook();
            opened = openAgain();
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

    void aBookIsMadeAndIsTheSameWhenItIsOpenedAgain()
    {
        QCOMPARE(readFile(folder.file("farm.oidpro")), projectFile(pictureWidth));
        QCOMPARE(readFile(folder.file("again.oidpro")), readFile(folder.file("farm.oidpro")));
        QCOMPARE(
            folder.listing(),
            std::string("905-Farm.codes.yaml 905-Farm.gme 905-Farm.yaml 905-audio 905-bkgnd0.jpg "
                        "905-print0.tiff again.oidpro farm.oidpro new.oidpro"));
        for (size_t i = 0; i < kParts.size(); ++i) {
            const int different = differentPixels(made[i], opened[i]);
            QVERIFY2(different <= kParts[i].mayDiffer,
                     qPrintable(QString("%1: %2").arg(kParts[i].control).arg(different)));
        }
    }

    void whatTheWindowMadeIsWhatTheCommandLineMakes()
    {
        const TemporaryFolder other;
        for (const char* name : {"farm.oidpro", "905-bkgnd0.jpg", "905-audio"}) {
            std::error_code error;
            std::filesystem::copy(folder.file(name), other.file(name),
                                  std::filesystem::copy_options::recursive, error);
            QVERIFY2(!error, name);  // the book was not made
        }
        for (const char* command : {"build", "print"}) {
            const ProgramRun run = runProgram(PLINKETT_BIN_DIR "/plinkett-cli",
                                              {command, "farm.oidpro"}, {}, other.path());
            QCOMPARE(run.status, 0);
        }
        for (const char* name : {"905-Farm.yaml", "905-Farm.gme"}) {
            QVERIFY2(readFile(folder.file(name)) == readFile(other.file(name)), name);
        }
        // The pixels; how they are compressed may differ by a few bytes from run to run.
        const QImage printed(path("905-print0.tiff"));
        QVERIFY(!printed.isNull());
        QVERIFY(printed == QImage(QString::fromStdString(other.file("905-print0.tiff"))));
    }

    void aProjectNamedOnTheCommandLineIsOpened()
    {
        const TemporaryFolder books;
        writeFile(books.file("book.oidpro"), "PRODUCT 7, \"Zoo\"\n");
        const std::string asSaved = "\xEF\xBB\xBFPRODUCT 7, \"Zoo\"\r\n";
        try {
            DrivenProgram program(display, QString::fromStdString(books.path()), kWindow,
                                  {"book.oidpro"});
            program.press("ctrl+s");
            waitUntil([&] { return readFile(books.file("book.oidpro")).find(asSaved) == 0; },
                      "the project saved again");
            program.quit();
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

private:
    // Returns what the window showed at the end.
    std::vector<QImage> makeTheBook()
    {
        DrivenProgram program(display, home(), kWindow);
        program.showTab("tabProject");
        program.fill("txProjectName", "Farm");
        program.fill("txProjectId", "905");
        program.press("ctrl+shift+s");
        program.chooseFile("Save project", path("new"));

        program.showTab("tabAreas");
        program.click("btNextPicture");
        program.chooseFile("Import Picture", kScan);
        pictureWidth = program.placeOf("polyArea").width();
        for (const DrawnArea& area : kAreas) {
            drawArea(program, area);
        }
        keep(program, "areas");
        program.click("btPickPoly");

        program.showTab("tabScript");
        program.click("codeEditor");
        program.type(kTyped);
        keep(program, "script");

        program.showTab("tabProject");
        program.fill("txProjDPI", "600");
        buildAndPrint(program);
        keep(program, "project");

        program.press("ctrl+shift+s");
        program.chooseFile("Save project", path("farm"));
        const std::vector<QImage> shown = shownProject(program);
        program.quit();
        return shown;
    }

    std::vector<QImage> openAgain()
    {
        DrivenProgram program(display, home(), kWindow);
        program.press("ctrl+o");
        program.chooseFile("Open project", path("farm.oidpro"));
        buildAndPrint(program);
        const std::vector<QImage> shown = shownProject(program);
        program.press("ctrl+shift+s");
        program.chooseFile("Save project", path("again"));
        program.quit();
        return shown;
    }

    void buildAndPrint(DrivenProgram& program)
    {
        QFile::remove(path("905-Farm.gme"));
        program.showTab("tabBuild");
        program.click("btBuild");
        waitUntil([&] { return exists("905-Farm.gme"); }, "the game file");
        keep(program, "build");
        QFile::remove(path("905-print0.tiff"));
        program.showTab("tabProject");
        program.click("btCreateImage");
        waitUntil([&] { return exists("905-print0.tiff"); }, "the print image");
    }

    // For people to look at.
    void keep(DrivenProgram& program, const char* tab)
    {
        const QDir pictures(PLINKETT_SCREENSHOTS);
        pictures.mkpath(".");
        program.stillPicture().save(pictures.filePath(QString(tab) + ".png"));
    }

    QString home() const { return QString::fromStdString(settings.path()); }
    QString path(const char* name) const { return QString::fromStdString(folder.file(name)); }
    bool exists(const char* name) const { return QFile::exists(path(name)); }

    const XDisplay& display;
    TemporaryFolder settings;
    TemporaryFolder folder;
    int pictureWidth = 0;
    std::vector<QImage> made;  // what the window showed of the project
    std::vector<QImage> opened;
};

int main(int argc, char* argv[])
{
    return runOnItsScreen(argc, argv, [](const XDisplay& display) {
        return std::make_unique<EndToEndTest>(display);
    });
}

#include "EndToEndTest.moc"
