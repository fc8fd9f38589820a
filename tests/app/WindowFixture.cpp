#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabWidget>

// For windows that a test makes without a fixture.
static const OwnDataFolder dataOfThisProgram;

WindowFixture::WindowFixture()
{
    window.show();
    QVERIFY2(QTest::qWaitForWindowExposed(&window), "the window does not appear");
}

WindowFixture::~WindowFixture()
{
    const QStringList unexpected = dialogs.seen().filter(QRegularExpression("^unexpected: "));
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join('\n')));
    QVERIFY2(dialogs.allGiven(), "a dialog that was expected has not come");
}

void WindowFixture::click(const char* button)
{
    QTest::mouseClick(get<QPushButton>(button), Qt::LeftButton);
}

void WindowFixture::clickAt(QPoint point)
{
    QTest::mouseClick(get<PolyEditorWidget>("polyArea"), Qt::LeftButton, Qt::NoModifier, point);
}

void WindowFixture::type(const char* lineEdit, const QString& text)
{
    QLineEdit* const edit = get<QLineEdit>(lineEdit);
    edit->setFocus();
    edit->selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(edit, Qt::Key_Delete);
    } else {
        QTest::keyClicks(edit, text);
    }
}

void WindowFixture::trigger(const char* action)
{
    get<QAction>(action)->trigger();
}

void WindowFixture::open(const std::string& project, int pictures)
{
    for (int i = 0; i < pictures; ++i) {
        makePicture(("900-bkgnd" + std::to_string(i) + ".jpg").c_str());
    }
    writeFile(folder.file("book.oidpro"), project);
    dialogs.chooseFile(path("book.oidpro"));
    trigger("action_Open");
}

std::string WindowFixture::saved()
{
    trigger("actionSave");
    return readFile(folder.file("book.oidpro"));
}

void WindowFixture::makePicture(const char* name, QSize size, int dotsPerMetre)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(200, 220, 180));
    if (dotsPerMetre > 0) {
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
    }
    image.save(path(name));
}

QString WindowFixture::field(const char* lineEdit)
{
    return get<QLineEdit>(lineEdit)->text();
}

QString WindowFixture::script()
{
    return get<KVQtHighlightEditCtrl>("codeEditor")->text();
}

QString WindowFixture::console()
{
    return get<QPlainTextEdit>("txConsole")->toPlainText();
}

QString WindowFixture::status()
{
    return get<QStatusBar>("statusbar")->currentMessage();
}

QString WindowFixture::text(const char* label)
{
    return get<QLabel>(label)->text();
}

QString WindowFixture::tab()
{
    const QTabWidget* const tabs = get<QTabWidget>("ribbonTab");
    return tabs->tabText(tabs->currentIndex());
}

std::string projectFile(const std::vector<std::string>& pictures, const std::string& script,
                        const std::string& product)
{
    std::string text = "\xEF\xBB\xBF" + product + "\r\n";
    for (const std::string& picture : pictures) {
        text += "IMAGE\r\nPAPER 200.0 100.0\r\nDPI   300\r\n" + picture +
                "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n";
    }
    return text + "SCRIPT # -----------------------\r\n" + script;
}
