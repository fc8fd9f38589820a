// The button "PDF": its dialog, its menu, what it makes, and the area that starts a book.
#include "app/Translations.h"
#include "page/PolyEditorWidget.h"
#include "tests/app/ProgressCancel.h"
#include "tests/app/WindowFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QTranslator>

namespace {

const std::string kCow = "OID 1001\r\nPOLY cow\r\n10 10\r\n40 10\r\n40 40\r\n10 40\r\nEND\r\n\r\n";

// A book of one page of 200 x 100 mm, and settings of its own.
class Printing
{
public:
    explicit Printing(int pages = 1, const std::string& dpi = "1200")
    {
        w.window.keepSettingsIn(settings);
        std::string file = projectFile(std::vector<std::string>(static_cast<size_t>(pages), kCow));
        for (size_t at = 0; (at = file.find("DPI   300", at)) != std::string::npos; at += 9) {
            file.replace(at, 9, "DPI   " + dpi);
        }
        w.open(file, pages);
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabProject"));
        w.window.activateWindow();
    }
    ~Printing() { QDir::setCurrent(directory); }
    Printing(const Printing&) = delete;
    Printing& operator=(const Printing&) = delete;

    // Presses the button, not its arrow.
    void pressPdf()
    {
        QTest::mouseClick(w.get<QToolButton>("btCreatePdf"), Qt::LeftButton, Qt::NoModifier,
                          {6, 6});
    }
    // Does that in the next dialog, which a failed check does not leave open.
    void look(const std::function<void(QWidget&)>& act)
    {
        w.dialogs.look([act](QWidget& dialog) {
            dialog.activateWindow();
            act(dialog);
            if (QTest::currentTestFailed() && dialog.isVisible()) {
                QTest::keyClick(&dialog, Qt::Key_Escape);
            }
        });
    }
    // Opens the dialog and does that in it.
    void inDialog(const std::function<void(QWidget&)>& act)
    {
        look(act);
        pressPdf();
    }
    QString result() { return w.text("lbCreateResult"); }
    bool exists(const char* name) { return QFileInfo::exists(w.path(name)); }

    QString directory = QDir::currentPath();
    TemporaryFolder kept;
    QSettings settings{QString::fromStdString(kept.file("settings.ini")), QSettings::IniFormat};
    WindowFixture w;
};

template <class T>
T* in(QWidget& dialog, const char* name)
{
    T* const found = dialog.findChild<T*>(name);
    Q_ASSERT(found != nullptr);
    return found;
}

void press(QWidget& dialog, const QString& text)
{
    for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
        if (button->text().remove('&') == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable("no button " + text));
}

QAbstractButton* create(QWidget& dialog)
{
    for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
        if (button->text().remove('&') == "Create") {
            return button;
        }
    }
    return nullptr;
}

void type(QWidget& dialog, const char* field, const QString& text)
{
    auto* const edit = in<QLineEdit>(dialog, field);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void choose(QWidget& dialog, const char* box, const QString& entry)
{
    auto* const combo = in<QComboBox>(dialog, box);
    combo->setFocus();
    for (int i = 0; i < combo->count() && combo->currentText() != entry; ++i) {
        QTest::keyClick(combo, i == 0 ? Qt::Key_Home : Qt::Key_Down);
    }
    QCOMPARE(combo->currentText(), entry);
}

void check(QWidget& dialog, const char* box)
{
    auto* const checkBox = in<QCheckBox>(dialog, box);
    checkBox->setFocus();
    QTest::keyClick(checkBox, Qt::Key_Space);
}

void setNumber(QWidget& dialog, const char* box, int value)
{
    auto* const spin = in<QSpinBox>(dialog, box);
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QString::number(value));
}

// Answers the next question for a name.
void answerName(const std::function<void(QLineEdit&)>& answer)
{
    auto* const timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, [timer, answer] {
        auto* const question = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        if (question != nullptr && question->isVisible()) {
            timer->stop();
            timer->deleteLater();
            answer(*question->findChild<QLineEdit*>());
            QTest::keyClick(question, Qt::Key_Return);
        }
    });
    timer->start(5);
}

void typeOver(QLineEdit& field, const QString& text)
{
    field.selectAll();
    field.insert(text);  // a key has ASCII letters only
}

QImage preview(QWidget& dialog)
{
    return in<QLabel>(dialog, "dotPreviewImage")->pixmap(Qt::ReturnByValue).toImage();
}

// Black pixels of the preview.
int dots(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += (image.pixel(x, y) & 0xffffff) == 0 ? 1 : 0;
        }
    }
    return count;
}

std::string pdfOf(Printing& printing, const char* name)
{
    return readFile(printing.w.folder.file(name));
}

int pagesIn(const std::string& pdf)
{
    int count = 0;
    for (size_t at = 0; (at = pdf.find("/MediaBox", at)) != std::string::npos; ++at) {
        ++count;
    }
    return count;
}

}  // namespace

class PrintingTest : public QObject
{
    Q_OBJECT

private slots:
    void theButtonAsksAndMakesThePdfBesideTheProject()
    {
        Printing printing;
        printing.inDialog([](QWidget& dialog) {
            QCOMPARE(dialog.windowTitle(), "PDF");
            press(dialog, "Create");
        });
        QCOMPARE(printing.result(), "The PDF was created: 900-Zoo.pdf");
        QCOMPARE(pagesIn(pdfOf(printing, "900-Zoo.pdf")), 2);  // the page, and its symbols
        QVERIFY(printing.w.console().contains("Creating PDF..."));
    }

    void whoCancelsTheDialogGetsNothing()
    {
        Printing printing;
        printing.inDialog([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(printing.result(), "");
        QVERIFY(!printing.exists("900-Zoo.pdf"));
    }

    void withoutAPictureThereIsNoDialog()
    {
        WindowFixture w;
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabProject"));
        const QString directory = QDir::currentPath();
        QTest::mouseClick(w.get<QToolButton>("btCreatePdf"), Qt::LeftButton, Qt::NoModifier,
                          {6, 6});
        QDir::setCurrent(directory);
        QCOMPARE(w.text("lbCreateResult"), "There is no picture yet");
    }

    void whatCannotBeMadeIsToldBesideTheButton()
    {
        Printing printing;
        QFile::remove(printing.w.path("900-bkgnd0.jpg"));
        printing.inDialog([](QWidget& dialog) { press(dialog, "Create"); });
        QCOMPARE(printing.result(),
                 "The PDF was not created: Error: Page 0 has no picture: there is no file '" +
                     printing.w.path("900-bkgnd0.jpg") + "'");
        QVERIFY(!printing.exists("900-Zoo.pdf"));
    }

    void aFullDiskIsToldAndAnEarlierPdfStays()
    {
        Printing printing;
        writeFile(printing.w.folder.file("900-Zoo.pdf"), "before");
        {
            const SmallDisk full(2000);
            printing.inDialog([](QWidget& dialog) { press(dialog, "Create"); });
        }
        QCOMPARE(printing.result(), "The PDF was not created: Error: Can't write file '" +
                                        printing.w.path("900-Zoo.pdf") + "'");
        QCOMPARE(pdfOf(printing, "900-Zoo.pdf"), "before");
    }

    void aLongPdfShowsItsProgressAndCanBeCancelled()
    {
        Printing printing(12, "2400");
        ProgressCancel cancel(printing.w.window);
        printing.inDialog([](QWidget& dialog) { press(dialog, "Create"); });
        QVERIFY(cancel.done);
        QCOMPARE(cancel.title, "Plinkett");
        QCOMPARE(printing.result(), "Creating was cancelled");
        QVERIFY(!printing.exists("900-Zoo.pdf"));
    }

    void theDialogStartsWithThePdfAndPagesOfTheBook()
    {
        Printing printing;
        printing.inDialog([&](QWidget& dialog) {
            QCOMPARE(in<QLineEdit>(dialog, "pdfFile")->text(), printing.w.path("900-Zoo.pdf"));
            QCOMPARE(in<QLineEdit>(dialog, "pdfPages")->text(), "");
            QCOMPARE(in<QLabel>(dialog, "pdfSheets")->text(), "Sheets of paper: 1");
            QCOMPARE(preview(dialog).size(), QSize(472, 472));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void everyOptionReachesTheFile()
    {
        Printing printing(2);
        printing.inDialog([&](QWidget& dialog) {
            type(dialog, "pdfPages", "1");
            type(dialog, "pdfFile", printing.w.path("proof.pdf"));
            choose(dialog, "pdfDots", "none: a proof");
            choose(dialog, "pdfSymbols", "never");
            setNumber(dialog, "pdfMargin", 7);
            check(dialog, "pdfCropMarks");
            check(dialog, "pdfOutlines");
            check(dialog, "printerNoBlack");
            press(dialog, "Create");
        });
        QCOMPARE(printing.result(), "The PDF was created: proof.pdf");
        const std::string pdf = pdfOf(printing, "proof.pdf");
        QCOMPARE(pagesIn(pdf), 1);
        QVERIFY(pdf.find("/ImageMask") == std::string::npos);
        QVERIFY(pdf.find("/DeviceCMYK") != std::string::npos);
        QVERIFY(pdf.find("/TrimBox") != std::string::npos);
    }

    void theDotsOfThePreviewFollowTheOptions()
    {
        Printing printing;
        printing.inDialog([&](QWidget& dialog) {
            const int standard = dots(preview(dialog));
            QVERIFY(standard > 1000);
            setNumber(dialog, "printerDotSize", 1);
            QVERIFY(dots(preview(dialog)) * 8 < standard);
            setNumber(dialog, "printerDotSize", 0);
            type(dialog, "pdfPages", "");
            in<QComboBox>(dialog, "printerDpi")->setFocus();
            in<QComboBox>(dialog, "printerDpi")->lineEdit()->selectAll();
            QTest::keyClicks(in<QComboBox>(dialog, "printerDpi"), "600");
            QCOMPARE(preview(dialog).size(), QSize(236, 236));
            choose(dialog, "pdfDots", "none: a proof");
            QCOMPARE(dots(preview(dialog)), 0);
            setNumber(dialog, "printerLighten", 100);
            QCOMPARE(preview(dialog).pixel(5, 5), qRgb(255, 255, 255));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void thePreviewShowsThePictureOfAPageThatWasNotSeenYet()
    {
        Printing printing;
        QCOMPARE(printing.w.get<PolyEditorWidget>("polyArea")->loadedPath, std::string());
        printing.inDialog([&](QWidget& dialog) {
            choose(dialog, "pdfDots", "none: a proof");
            const QColor shown = preview(dialog).pixelColor(200, 200);
            QVERIFY2(
                qAbs(shown.red() - 200) + qAbs(shown.green() - 220) + qAbs(shown.blue() - 180) < 10,
                qPrintable(shown.name()));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void dotsThatWouldTouchEachOtherCannotBeChosen()
    {
        Printing printing;
        printing.inDialog([](QWidget& dialog) {
            QCOMPARE(in<QSpinBox>(dialog, "printerDotSize")->maximum(), 3);
            auto* const dpi = in<QComboBox>(dialog, "printerDpi");
            dpi->setFocus();
            dpi->lineEdit()->selectAll();
            QTest::keyClicks(dpi, "2400");
            QCOMPARE(in<QSpinBox>(dialog, "printerDotSize")->maximum(), 6);
            setNumber(dialog, "printerDotSize", 6);
            dpi->lineEdit()->selectAll();
            QTest::keyClicks(dpi, "600");
            QCOMPARE(in<QSpinBox>(dialog, "printerDotSize")->value(), 1);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void whatCannotBeIsToldAndNotMade()
    {
        Printing printing(3);
        printing.inDialog([](QWidget& dialog) {
            const auto message = [&] { return in<QLabel>(dialog, "pdfMessage")->text(); };
            for (const char* const pages : {"x", "3", "2-1", "0,"}) {
                type(dialog, "pdfPages", pages);
                QCOMPARE(message(), "Pages are numbers from 0 to 2, such as 0,2-3.");
                QVERIFY(!create(dialog)->isEnabled());
            }
            type(dialog, "pdfPages", "0-1, 2");
            QCOMPARE(message(), "Pages are numbers from 0 to 2, such as 0,2-3.");
            type(dialog, "pdfPages", "0-1,2");
            QCOMPARE(message(), "");
            QVERIFY(create(dialog)->isEnabled());
            auto* const dpi = in<QComboBox>(dialog, "printerDpi");
            dpi->setFocus();
            dpi->lineEdit()->selectAll();
            QTest::keyClicks(dpi, "60");
            QCOMPARE(message(), "The DPI are a number from 100 to 9600.");
            QVERIFY(!create(dialog)->isEnabled());
            QTest::keyClicks(dpi, "0");
            QCOMPARE(message(), "");
            type(dialog, "pdfFile", " ");
            QCOMPARE(message(), "The file has no name.");
            QVERIFY(!create(dialog)->isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void aPosterTellsItsSheets()
    {
        Printing printing;
        printing.w.type("txProjPaperWidth", "600");
        printing.inDialog([](QWidget& dialog) {
            choose(dialog, "pdfPoster", "A4");
            QCOMPARE(in<QLabel>(dialog, "pdfSheets")->text(), "Sheets of paper: 3");
            choose(dialog, "pdfPoster", "A3");
            QCOMPARE(in<QLabel>(dialog, "pdfSheets")->text(), "Sheets of paper: 2");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void theOptionsAreKeptForTheNextTime()
    {
        Printing printing;
        printing.inDialog([](QWidget& dialog) {
            type(dialog, "pdfPages", "0");
            choose(dialog, "pdfDots", "only in areas");
            choose(dialog, "pdfPoster", "A3");
            choose(dialog, "pdfSymbols", "always");
            setNumber(dialog, "pdfMargin", 12);
            setNumber(dialog, "printerLighten", 35);
            setNumber(dialog, "printerDotSize", 2);
            check(dialog, "pdfLightenAreas");
            check(dialog, "pdfCropMarks");
            check(dialog, "pdfOutlines");
            press(dialog, "Create");
        });
        printing.inDialog([](QWidget& dialog) {
            QCOMPARE(in<QLineEdit>(dialog, "pdfPages")->text(), "");  // of that book
            QCOMPARE(in<QComboBox>(dialog, "pdfDots")->currentText(), "only in areas");
            QCOMPARE(in<QComboBox>(dialog, "pdfPoster")->currentText(), "A3");
            QCOMPARE(in<QComboBox>(dialog, "pdfSymbols")->currentText(), "always");
            QCOMPARE(in<QSpinBox>(dialog, "pdfMargin")->value(), 12);
            QCOMPARE(in<QSpinBox>(dialog, "printerLighten")->value(), 35);
            QCOMPARE(in<QSpinBox>(dialog, "printerDotSize")->value(), 2);
            QVERIFY(in<QCheckBox>(dialog, "pdfLightenAreas")->isChecked());
            QVERIFY(in<QCheckBox>(dialog, "pdfCropMarks")->isChecked());
            QVERIFY(in<QCheckBox>(dialog, "pdfOutlines")->isChecked());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void settingsThatCannotBeAreNotTakenOver()
    {
        Printing printing;
        printing.settings.setValue("pdf/dpi", 7);
        printing.settings.setValue("pdf/dots", 99);
        printing.settings.setValue("pdf/symbols", "x");
        printing.settings.setValue("pdf/margin", -50);
        printing.settings.setValue("pdf/poster", "B5");
        printing.settings.setValue("pdf/lighten", 1000);
        printing.inDialog([](QWidget& dialog) {
            QCOMPARE(in<QComboBox>(dialog, "printerDpi")->currentText(), "that of each picture");
            QCOMPARE(in<QComboBox>(dialog, "pdfDots")->currentText(), "everywhere");
            QCOMPARE(in<QComboBox>(dialog, "pdfSymbols")->currentText(),
                     "when no area starts the book");
            QCOMPARE(in<QSpinBox>(dialog, "pdfMargin")->value(), 0);
            QCOMPARE(in<QComboBox>(dialog, "pdfPoster")->currentText(), "no");
            QCOMPARE(in<QSpinBox>(dialog, "printerLighten")->value(), 0);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void theBestFieldOfTheTestPageMakesAProfile()
    {
        Printing printing;
        printing.inDialog([](QWidget& dialog) {
            type(dialog, "bestField", "d3");
            answerName([](QLineEdit& name) {
                QCOMPARE(name.text(), "Printer D3");
                typeOver(name, "office");
            });
            QTest::keyClick(in<QLineEdit>(dialog, "bestField"), Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            QCOMPARE(in<QComboBox>(dialog, "printerProfile")->currentText(), "office");
            QCOMPARE(in<QComboBox>(dialog, "printerDpi")->currentText(), "1200");
            QCOMPARE(in<QSpinBox>(dialog, "printerDotSize")->value(), 2);
            QVERIFY(in<QCheckBox>(dialog, "printerNoBlack")->isChecked());
            QCOMPARE(in<QLabel>(dialog, "pdfMessage")->text(), "The profile office is kept.");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(printing.settings.value("printers/office/dpi").toInt(), 1200);
    }

    void aFieldThatIsNotOnThePageIsTold()
    {
        Printing printing;
        printing.inDialog([](QWidget& dialog) {
            QVERIFY(!in<QAbstractButton>(dialog, "takeField")->isEnabled());
            type(dialog, "bestField", "Z9");
            press(dialog, "Make profile...");
            QCOMPARE(in<QLabel>(dialog, "pdfMessage")->text(), "The test page has no field Z9.");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(printing.settings.allKeys().filter("printers/"), QStringList());
    }

    void profilesAreKeptChosenAndRemoved()
    {
        Printing printing;
        const auto name = [](const QString& typed) {
            answerName([typed](QLineEdit& field) { typeOver(field, typed); });
        };
        printing.inDialog([&](QWidget& dialog) {
            const auto profile = [&] {
                return in<QComboBox>(dialog, "printerProfile")->currentText();
            };
            setNumber(dialog, "printerLighten", 20);
            name("home");
            press(dialog, "Keep...");
            setNumber(dialog, "printerLighten", 60);
            QCOMPARE(profile(), "none");
            name("caf\u00e9 / 2");
            press(dialog, "Keep...");
            QCOMPARE(profile(), "caf\u00e9 / 2");
            choose(dialog, "printerProfile", "home");
            QCOMPARE(in<QSpinBox>(dialog, "printerLighten")->value(), 20);
            press(dialog, "Remove");
            QCOMPARE(in<QLabel>(dialog, "pdfMessage")->text(), "The profile home is gone.");
            QCOMPARE(in<QComboBox>(dialog, "printerProfile")->count(), 2);
            QVERIFY(!in<QAbstractButton>(dialog, "removeProfile")->isEnabled());
            QCOMPARE(in<QSpinBox>(dialog, "printerLighten")->value(), 20);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void itsMenuOpensByMouseAndByKeys()
    {
        Printing printing;
        auto* const button = printing.w.get<QToolButton>("btCreatePdf");
        button->setFocus();
        for (const bool byKey : {true, false}) {
            QStringList entries;
            QTimer::singleShot(50, [&] {
                auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                if (menu != nullptr) {
                    for (const QAction* const action : menu->actions()) {
                        entries << action->text().remove('&');
                    }
                    QTest::keyClick(menu, Qt::Key_Escape);
                }
            });
            if (byKey) {
                QTest::keyClick(button, Qt::Key_Down);
            } else {
                const QPoint arrow(button->width() - 5, button->height() / 2);
                QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, arrow);
            }
            QCOMPARE(entries, QStringList({"PDF of the book...", "Symbols and legend...",
                                           "Printer's test page...", "", "Add START symbol"}));
        }
    }

    void symbolsAndLegendAreMadeAlone()
    {
        Printing printing;
        printing.look([&](QWidget& dialog) {
            QCOMPARE(in<QComboBox>(dialog, "pdfSymbols")->currentText(), "nothing else");
            QCOMPARE(in<QLineEdit>(dialog, "pdfFile")->text(),
                     printing.w.path("900-Zoo-symbols.pdf"));
            press(dialog, "Create");
        });
        printing.w.trigger("actionSymbols");
        QCOMPARE(printing.result(), "The PDF was created: 900-Zoo-symbols.pdf");
        QCOMPARE(pagesIn(pdfOf(printing, "900-Zoo-symbols.pdf")), 1);
        printing.inDialog([](QWidget& dialog) {
            QCOMPARE(in<QComboBox>(dialog, "pdfSymbols")->currentText(),
                     "when no area starts the book");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void theTestPageIsMadeWithItsGame()
    {
        const ChangedVariable path("PATH", PLINKETT_BIN_DIR "/tools/text2speech_win:" +
                                               qgetenv("PATH").toStdString());
        Printing printing;
        printing.look([&](QWidget& dialog) {
            QCOMPARE(dialog.windowTitle(), "Printer's test page");
            QCOMPARE(in<QLineEdit>(dialog, "testFolder")->text(),
                     QString::fromStdString(printing.w.folder.path()));
            QVERIFY(in<QCheckBox>(dialog, "testDpi600")->isChecked());
            QVERIFY(in<QCheckBox>(dialog, "testDpi1200")->isChecked());
            QVERIFY(!in<QCheckBox>(dialog, "testDpi2400")->isChecked());
            QCOMPARE(in<QComboBox>(dialog, "testLanguage")->currentText(), "English");
            check(dialog, "testDpi600");
            check(dialog, "testDpi1200");
            QVERIFY(!create(dialog)->isEnabled());
            check(dialog, "testDpi600");
            press(dialog, "Create");
        });
        printing.w.trigger("actionPrinterTest");
        QCOMPARE(printing.result(), "Print 949-Printer test.pdf at 100 %, and copy 949-Printer "
                                    "test.gme onto the pen");
        QVERIFY(printing.exists("949-Printer test.pdf"));
        QVERIFY(printing.exists("949-Printer test.gme"));
        // Its fields are those that the dialog knows then.
        printing.inDialog([](QWidget& dialog) {
            type(dialog, "bestField", "A2");
            press(dialog, "Make profile...");
            QCOMPARE(in<QLabel>(dialog, "pdfMessage")->text(), "The test page has no field A2.");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    void aCancelledTestPageLeavesNothing()
    {
        Printing printing;
        ProgressCancel cancel(printing.w.window);
        printing.look([](QWidget& dialog) { press(dialog, "Create"); });
        printing.w.trigger("actionPrinterTest");
        QVERIFY(cancel.done);
        QCOMPARE(printing.result(), "Creating was cancelled");
        QVERIFY(!printing.exists("949-Printer test.pdf"));
        QVERIFY(!printing.exists("949-Printer test.gme"));
    }

    void aFolderThatIsNotThereIsTold()
    {
        Printing printing;
        printing.look([&](QWidget& dialog) {
            type(dialog, "testFolder", printing.w.path("no/such"));
            press(dialog, "Create");
        });
        printing.w.trigger("actionPrinterTest");
        QCOMPARE(printing.result(), "The test page was not created: Error: Can't open file '" +
                                        printing.w.path("no/such/949-Printer test.pdf") + "'");
    }

    void theDialogsFitOnASmallScreen_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            QTest::newRow(language) << QString(language);
        }
    }

    // 1280 x 720 pixels at 200 %, less the bar with the title; nothing is squeezed at 1024 x 600.
    void theDialogsFitOnASmallScreen()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        Printing printing;
        for (const char* const entry : {"actionPdf", "actionPrinterTest"}) {
            printing.look([](QWidget& dialog) {
                const QSize smallest = dialog.minimumSizeHint();
                QVERIFY2(smallest.width() <= 640, qPrintable(QString::number(smallest.width())));
                QVERIFY2(smallest.height() <= 330, qPrintable(QString::number(smallest.height())));
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            printing.w.trigger(entry);
        }
    }

    void everyControlOfTheDialogsHasANameAndATip()
    {
        Printing printing;
        for (const char* const entry : {"actionPdf", "actionPrinterTest"}) {
            printing.look([](QWidget& dialog) {
                for (QWidget* const control : dialog.findChildren<QWidget*>()) {
                    const bool isPart = control->objectName().startsWith("qt_") ||
                                        control->window() != &dialog ||
                                        qobject_cast<QComboBox*>(control->parentWidget()) ||
                                        qobject_cast<QSpinBox*>(control->parentWidget()) ||
                                        control->parentWidget()->inherits("QDialogButtonBox") ||
                                        control->parentWidget()->inherits("QScrollArea");
                    if (control->focusPolicy() == Qt::NoFocus || isPart) {
                        continue;
                    }
                    const QString name = control->objectName();
                    QVERIFY2(!control->toolTip().isEmpty(), qPrintable(name));
                    QAccessibleInterface* const read =
                        QAccessible::queryAccessibleInterface(control);
                    QVERIFY2(!read->text(QAccessible::Name).isEmpty(), qPrintable(name));
                }
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            printing.w.trigger(entry);
        }
    }

    void theStartSymbolIsAnAreaWithTheNumberOfTheBook()
    {
        Printing printing;
        printing.w.trigger("actionAddStart");
        QCOMPARE(printing.w.tab(), "Areas");
        QCOMPARE(printing.w.field("txPolyName"), "START");
        QCOMPARE(printing.w.get<QSpinBox>("txOidOfArea")->value(), 900);
        QCOMPARE(printing.w.status(), "The START symbol is on the page. Drag it where you like.");
        QVERIFY(printing.w.saved().find("POLY START") != std::string::npos);
        QApplication::setActiveWindow(&printing.w.window);
        QTest::keyClick(&printing.w.window, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(printing.w.saved().find("POLY START") == std::string::npos);
    }

    void theStartSymbolHasTheNumberThatStandsInTheForm()
    {
        Printing printing;
        auto* const id = printing.w.get<QSpinBox>("txProjectId");
        id->setFocus();
        id->selectAll();
        QTest::keyClicks(id, "817");
        printing.w.trigger("actionAddStart");
        QCOMPARE(printing.w.get<QSpinBox>("txOidOfArea")->value(), 817);
    }

    void aSecondStartSymbolOfThePageIsTheFirst()
    {
        Printing printing;
        printing.w.trigger("actionAddStart");
        printing.w.trigger("actionAddStart");
        QCOMPARE(printing.w.status(), "This page has its START symbol already: START");
        printing.w.trigger("actionUndo");
        QVERIFY(!printing.w.get<QAction>("actionUndo")->isEnabled());
    }

    void withoutAPageThereIsNoStartSymbol()
    {
        WindowFixture w;
        w.trigger("actionAddStart");
        QCOMPARE(w.status(), "There is no picture yet");
    }

    void aBookWithItsStartSymbolNeedsNoSymbolsPage()
    {
        Printing printing;
        printing.w.trigger("actionAddStart");
        printing.look([](QWidget& dialog) { press(dialog, "Create"); });
        printing.w.trigger("actionPdf");
        QCOMPARE(pagesIn(pdfOf(printing, "900-Zoo.pdf")), 1);
    }
};

QTEST_MAIN(PrintingTest)
#include "PrintingTest.moc"
