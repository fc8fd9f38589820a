// F1 and "Why?": what they open, and that it is there.
#include "base/Manual.h"
#include "app/OpenManual.h"
#include "app/ProblemList.h"
#include "hints/Hint.h"
#include "tests/app/WindowFixture.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTreeView>
#include <QUrl>

#define TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

namespace {

// Stands in for the desktop, which would start a browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }

    // Where the last page that was opened leads: "areas-draw".
    QString place;
    QString file;

public slots:
    void open(const QUrl& url)
    {
        const QString page = QString::fromStdString(readFile(url.toLocalFile().toStdString()));
        const auto link = QRegularExpression("<a href=\"([^\"]*)\">").match(page);
        place = QUrl(link.captured(1)).fragment();
        file = QUrl(link.captured(1)).toLocalFile();
    }
};

// All that the manual has, as id="...".
bool isInManual(const QString& place)
{
    const QStringList files = manualFiles();
    return files.size() == 2 && std::all_of(files.begin(), files.end(), [&](const QString& file) {
               const QString html = QString::fromStdString(readFile(file.toStdString()));
               return html.contains("id=\"" + place + '"');
           });
}

}  // namespace

class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { cache.reset(new ChangedVariable("XDG_CACHE_HOME", folder.path())); }
    void cleanupTestCase() { cache.reset(); }

    void f1OpensThePlaceOfEachTab_data();
    void f1OpensThePlaceOfEachTab();
    void f1WorksWhileOneWrites();
    void aClickOnWhyOpensThePlaceOfTheHint();
    void f1InTheListTellsOfTheProblemThere();
    void everyHintHasItsPlace();
    void anErrorHasAPlace_data();
    void anErrorHasAPlace();

private:
    TemporaryFolder folder;
    std::unique_ptr<ChangedVariable> cache;
};

void ManualTest::f1OpensThePlaceOfEachTab_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("place");
    QTest::newRow("Project") << "tabProject"
                             << "pages-project";
    QTest::newRow("Areas") << "tabAreas"
                           << "areas";
    QTest::newRow("Script") << "tabScript"
                            << "writing";
    QTest::newRow("Build") << "tabBuild"
                           << "pen-build";
    QTest::newRow("Try") << "tabTry"
                         << "try";
    QTest::newRow("Speech") << "tabSpeech"
                            << "speech-tab";
}

void ManualTest::f1OpensThePlaceOfEachTab()
{
    QFETCH(QString, tab);
    QFETCH(QString, place);
    Browser browser;
    WindowFixture author;
    author.get<QTabWidget>("ribbonTab")
        ->setCurrentWidget(author.get<QWidget>(tab.toUtf8().constData()));
    QTest::keyClick(&author.window, Qt::Key_F1);
    QCOMPARE(browser.place, place);
    QVERIFY(isInManual(place));
    QCOMPARE(browser.file, manualFile(QLocale::system().uiLanguages()));
}

void ManualTest::f1WorksWhileOneWrites()
{
    Browser browser;
    WindowFixture author;
    author.get<QTabWidget>("ribbonTab")->setCurrentWidget(author.get<QWidget>("tabScript"));
    auto& script = author.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
    script.setFocus();
    QTest::keyClick(&script, Qt::Key_F1);
    QCOMPARE(browser.place, QString("writing"));
    QCOMPARE(author.script(), QString());
}

void ManualTest::aClickOnWhyOpensThePlaceOfTheHint()
{
    Browser browser;
    WindowFixture author;
    author.open("PRODUCT 900, \"Zoo\"\nIMAGE\nSCRIPT\nsub cow\ncount = 1\nend sub\n");
    author.window.resize(1000, 800);
    auto& view = *author.get<QTreeView>("problemsView");
    const auto rowOf = [&](const QString& words) {
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (view.model()->index(row, ProblemList::words).data().toString().contains(words)) {
                return row;
            }
        }
        return -1;
    };
    TRY_VERIFY(rowOf("never read") >= 0);
    TRY_VERIFY(view.isVisible());
    const QModelIndex why = view.model()->index(rowOf("never read"), ProblemList::why);
    QCOMPARE(why.data().toString(), QString("Why?"));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(why).center());
    QCOMPARE(browser.place, QString("hints-never-read"));
}

void ManualTest::f1InTheListTellsOfTheProblemThere()
{
    Browser browser;
    WindowFixture author;
    author.open("PRODUCT 900, \"Zoo\"\nIMAGE\nSCRIPT\nsub cow\nelse\nend sub\n");
    author.window.resize(1000, 800);
    auto& view = *author.get<QTreeView>("problemsView");
    TRY_VERIFY(view.model()->rowCount() > 0);
    TRY_VERIFY(view.isVisible());
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 0));
    QTest::keyClick(&view, Qt::Key_F1);
    QCOMPARE(browser.place, QString("script-messages"));
}

void ManualTest::everyHintHasItsPlace()
{
    for (const hints::Hint& hint : hints::allHints()) {
        Diagnostic problem;
        problem.severity = Severity::hint;
        problem.kind = hint.name;
        QVERIFY2(isInManual(placeInManual(problem)), hint.name);
    }
}

void ManualTest::anErrorHasAPlace_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("page");
    QTest::newRow("of the script") << 3 << 0;
    QTest::newRow("of an area") << 0 << 1;
    QTest::newRow("of the book") << 0 << 0;
}

void ManualTest::anErrorHasAPlace()
{
    QFETCH(int, line);
    QFETCH(int, page);
    Diagnostic problem;
    problem.line = line;
    problem.page = page;
    QVERIFY(isInManual(placeInManual(problem)));
}

QTEST_MAIN(ManualTest)
#include "ManualTest.moc"
