#include "hints/FindHints.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QTranslator>

#include <ctime>
#include <regex>
#include <thread>

#include "oid/OpenProject.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/oid/Builders.h"

namespace {

std::vector<hints::Finding> findingsOf(const Oid::OidProject& project)
{
    hints::PagePictures pictures;
    return hints::findHints(project, pictures);
}

std::string linesOf(const std::vector<hints::Finding>& findings)
{
    std::string lines;
    for (const hints::Finding& finding : findings) {
        lines += consoleLine(finding.diagnostic);
    }
    return lines;
}

std::string linesOf(const std::vector<hints::Finding>& findings, const std::string& hint)
{
    std::string lines;
    for (const hints::Finding& finding : findings) {
        lines += finding.hint->name == hint ? consoleLine(finding.diagnostic) : "";
    }
    return lines;
}

// What is found in the script, and the processor's time that it takes.
struct Timed
{
    explicit Timed(const std::string& script)
    {
        Oid::OidProject project;
        project.compiler.source = script;
        const std::clock_t begin = std::clock();
        findings = findingsOf(project);
        seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    }

    std::vector<hints::Finding> findings;
    double seconds;
};

// The headings "### `name`" of the author's page, in the order of the file.
std::string sectionNames(const std::string& language)
{
    const std::string page = readFile(PLINKETT_SOURCE_DIR "/docs/manual/" + language + "/hints.md");
    const std::regex heading("\n### `([a-z0-9-]+)`\n");
    std::string names;
    for (auto it = std::sregex_iterator(page.begin(), page.end(), heading);
         it != std::sregex_iterator(); ++it) {
        names += (*it)[1].str() + "\n";
    }
    return names;
}

}  // namespace

TEST(Hints, EachHasItsSectionForAuthorsInItsOrder)
{
    std::string names;
    for (const hints::Hint& hint : hints::allHints()) {
        names += std::string(hint.name) + "\n";
    }
    EXPECT_EQ(sectionNames("en"), names);
    EXPECT_EQ(sectionNames("de"), names);
}

TEST(Hints, TheSampleBookHasNone)
{
    Oid::OidProject project;
    ASSERT_TRUE(Oid::openProject(project, PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"));
    ASSERT_TRUE(compileScript(project.compiler, false));
    EXPECT_EQ(linesOf(findingsOf(project)), "");
}

TEST(Hints, ANewProjectHasNone)
{
    const Oid::OidProject project;
    EXPECT_EQ(linesOf(findingsOf(project)), "");
}

TEST(Hints, ComeInTheOrderOfTheBook)
{
    Oid::OidProject project = projectWith({square("cow", 1, 1, 20), square("", 40, 40, 1)});
    project.productId = 999;
    project.pictures[0].dpi = 300;
    project.compiler.source = "sub dog\nend sub\nsub cow\nend sub\n";
    compileScript(project.compiler, false);
    std::string kinds;
    for (const hints::Finding& finding : findingsOf(project)) {
        kinds += finding.diagnostic.kind + "\n";
    }
    EXPECT_EQ(kinds, "sub-without-area\n"
                     "product-number-foreign\n"
                     "no-start-area\n"
                     "print-resolution\n"
                     "area-name-refused\n"
                     "too-narrow\n"
                     "area-without-sub\n");
}

TEST(Hints, AreNotLookedForWhenNobodyWantsThemAnyMore)
{
    Oid::OidProject project = projectWith({square("", 40, 40, 1)});
    hints::PagePictures pictures;
    EXPECT_EQ(linesOf(hints::findHints(project, pictures, [] { return true; })), "");
}

TEST(Hints, ManySubsThatGoOnToTheNextOneTakeNoTime)
{
    std::string script;
    for (int i = 0; i < 20000; ++i) {
        script += "sub s" + std::to_string(i) + "\ngoto s" + std::to_string(i + 1) + "\nend sub\n";
    }
    script += "sub s20000\ngoto s19999\nend sub\n";
    const Timed timed(script);
    EXPECT_EQ(linesOf(timed.findings, "endless-loop"),
              "Hint: line 59999: The pen goes round for ever and says nothing: s19999, s20000, "
              "s19999\n");
    EXPECT_LT(timed.seconds, 5);
}

TEST(Hints, BlocksFarInsideEachOtherTakeNoTime)
{
    std::string script = "sub cow\nb = rnd\n";
    for (int i = 0; i < 15000; ++i) {
        script += "if a - 3 < b\n";
    }
    const Timed timed(script);
    EXPECT_EQ(linesOf(timed.findings, "below-0"),
              "Hint: line 3: What falls below 0 here goes on down from 65535, so the comparison "
              "takes it for large\n");
    EXPECT_LT(timed.seconds, 5);
}

TEST(Hints, SeveralThreadsCanLookThroughOneBook)
{
    Oid::OidProject project;
    ASSERT_TRUE(Oid::openProject(project, PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"));
    compileScript(project.compiler, false);
    project.pictures[0].dpi = 300;
    hints::PagePictures pictures;
    std::string lines[4];
    std::vector<std::thread> threads;
    for (std::string& found : lines) {
        threads.emplace_back([&] { found = linesOf(hints::findHints(project, pictures)); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::string& found : lines) {
        EXPECT_EQ(found, lines[0]);
        EXPECT_NE(found, "");
    }
}

TEST(Hints, ANumberOfZeroHasNoPattern)
{
    Oid::OidProject project = projectWith({square("cow", 1, 1, 20)});
    project.oids["cow"] = {0, 0};
    EXPECT_EQ(linesOf(findingsOf(project), "number-without-pattern"),
              "Hint: Area 'cow' on page 1: there is no dot pattern for the number 0, so nothing is "
              "printed\n");
}

TEST(Hints, AnArgumentMayLookLikeAPlaceForAnother)
{
    Oid::OidProject project = projectWith({square("%2", 1, 1, 20)});
    EXPECT_EQ(linesOf(findingsOf(project), "area-without-sub"),
              "Hint: Area '%2' on page 1: the script has no sub of this name, so a touch does "
              "nothing\n");
}

TEST(Hints, APictureThatHasChangedIsLookedAtAgain)
{
    const TemporaryFolder folder;
    Oid::OidProject project = projectWith({square("cow", 1, 1, 20)});
    project.projectPath = folder.file("book.oidpro");
    const QString file = QString::fromStdString(folder.file("900-bkgnd0.jpg"));
    hints::PagePictures pictures;
    const auto isDark = [&] {
        return linesOf(hints::findHints(project, pictures), "dark-picture") != "";
    };
    QImage picture(500, 300, QImage::Format_RGB32);
    picture.fill(Qt::white);
    ASSERT_TRUE(picture.save(file, "JPEG"));
    EXPECT_FALSE(isDark());
    picture.fill(Qt::black);
    picture.setPixelColor(400, 200, Qt::white);
    ASSERT_TRUE(picture.save(file, "JPEG"));
    EXPECT_TRUE(isDark());
}

TEST(Hints, SpeakTheLanguageOfTheProgram)
{
    int argumentCount = 1;
    char name[] = "hints_tests";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(argumentCount, arguments);
    class German : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* words, const char*, int) const override
        {
            return QString("%1: %2").arg(context, words).replace("Page %1", "Seite %1");
        }
    } german;
    QCoreApplication::installTranslator(&german);
    Oid::OidProject project = projectWith({});
    project.pictures[0].dpi = 300;
    const std::vector<hints::Finding> findings = findingsOf(project);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(hints::translatedWords(findings[0]).substr(0, 27), "Hints: Seite 1: with 300 dp");
    EXPECT_EQ(hints::translatedFix(findings[0]), "Hints: Print it with 1200 dpi");
    EXPECT_EQ(findings[0].diagnostic.text.substr(0, 17), "Page 1: with 300 ");
}
