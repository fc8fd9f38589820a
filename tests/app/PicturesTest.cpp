// Going from picture to picture, importing them, and making their print images.
#include "tests/app/ProgressCancel.h"
#include "tests/app/WindowFixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QWheelEvent>

namespace {

const std::string kArea = "OID 1001\r\nPOLY cow\r\nEND\r\n\r\n";

int current(WindowFixture& w)
{
    return w.get<PolyEditorWidget>("polyArea")->currentPicture();
}

// The page takes seconds to print: long enough for a progress dialog on any machine.
void makeLarge(WindowFixture& w)
{
    w.type("txProjPaperWidth", "600");
    w.type("txProjPaperHeight", "300");
    w.type("txProjDPI", "2400");
}

}  // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void aPictureHigherThanTheTabIsScrolledToItsLastLine()
    {
        WindowFixture w;
        w.makePicture("900-bkgnd0.jpg", {200, 400});
        w.open(projectFile({kArea}));
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        PolyEditorWidget& picture = *w.get<PolyEditorWidget>("polyArea");
        QTRY_VERIFY(picture.height() >= 2 * picture.width());
        QVERIFY(picture.visibleRegion().boundingRect().top() == 0);

        const QPointF middle(100, 100);
        QWheelEvent down(middle, picture.mapToGlobal(middle.toPoint()), {}, {0, -120 * 100},
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        for (int page = 0; page < 10; ++page) {
            QCoreApplication::sendEvent(picture.parentWidget(), &down);
        }
        QTRY_COMPARE(picture.visibleRegion().boundingRect().bottom(), picture.height() - 1);
        w.click("btAddPoly");
        w.clickAt({0, 2 * picture.width()});
        QVERIFY(w.saved().find("POLY polygon2\r\n        0.00   200.00\r\nEND") !=
                std::string::npos);
    }

    void anotherPageIsShownFromItsTop()
    {
        WindowFixture w;
        w.makePicture("900-bkgnd0.jpg", {200, 400});
        w.makePicture("900-bkgnd1.jpg", {200, 400});
        w.open(projectFile({kArea, kArea}));
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        const PolyEditorWidget& picture = *w.get<PolyEditorWidget>("polyArea");
        QScrollBar& bar = *w.get<QScrollArea>("pictureScroll")->verticalScrollBar();
        QTRY_VERIFY(picture.height() >= 2 * picture.width());
        bar.setValue(bar.maximum());
        QVERIFY(picture.y() < 0);
        w.click("btNextPicture");
        QCOMPARE(picture.y(), 0);

        bar.setValue(bar.maximum());
        w.open(projectFile({kArea, kArea}));
        QCOMPARE(picture.y(), 0);
    }

    void aPictureLowerThanTheTabHasItsWholeWidth()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        PolyEditorWidget& picture = *w.get<PolyEditorWidget>("polyArea");
        QTRY_COMPARE(picture.size(), picture.parentWidget()->size());
        QCOMPARE(picture.width(),
                 w.get<QWidget>("tabAreas")->contentsRect().width() -
                     2 * w.get<QLayout>("verticalLayout_2")->contentsMargins().left());
    }

    void previousWrapsAndNextAsksForMore()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea, kArea}), 3);
        w.click("btPreviousPicture");
        QCOMPARE(current(w), 2);
        w.click("btPreviousPicture");
        QCOMPARE(current(w), 1);
        w.click("btNextPicture");
        QCOMPARE(current(w), 2);
        w.dialogs.cancel();
        w.click("btNextPicture");
        QCOMPARE(current(w), 2);
        QCOMPARE(w.dialogs.seen(), QStringList({"Open project", "Import Picture"}));
    }

    void theFirstPictureIsImportedByNextPreviousAndLoad()
    {
        for (const char* const button : {"btNextPicture", "btPreviousPicture", "btLoadImage"}) {
            WindowFixture w;
            w.dialogs.chooseFile(w.path("book.oidpro"));
            w.trigger("action_Save_As");
            w.makePicture("scan.png", {600, 300}, 11811);
            w.dialogs.chooseFile(w.path("scan.png"));
            w.click(button);
            QCOMPARE(w.field("txProjDPI"), "300");
            QVERIFY(QFile::exists(w.path("900-bkgnd0.jpg")));
        }
    }

    void anImportedPictureHasTheSizeAndResolutionOfItsFile()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.makePicture("scan.png", {2362, 1181}, 23622);  // 600 dots per inch
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btNextPicture");
        QCOMPARE(current(w), 1);
        QCOMPARE(w.field("txProjPaperWidth"), "100");
        QCOMPARE(w.field("txProjPaperHeight"), "50");
        QCOMPARE(w.field("txProjDPI"), "600");
        QCOMPARE(QImage(w.path("900-bkgnd1.jpg")).size(), QSize(2362, 1181));
    }

    void theResolutionIsThatOfTheRowsAndLosesItsFraction_data()
    {
        QTest::addColumn<int>("dotsPerMetre");
        QTest::addColumn<QString>("dpi");
        QTest::newRow("71.98") << 2834 << "72";
        QTest::newRow("76.5") << 3012 << "76";
        QTest::newRow("76.7") << 3020 << "77";
        QTest::newRow("600") << 23622 << "600";
    }

    void theResolutionIsThatOfTheRowsAndLosesItsFraction()
    {
        QFETCH(int, dotsPerMetre);
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        QImage image(120, 120, QImage::Format_RGB32);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(1000);
        QVERIFY(image.save(w.path("scan.png")));
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btNextPicture");
        QTEST(w.field("txProjDPI"), "dpi");
        QCOMPARE(w.field("txProjPaperHeight"), "120");
    }

    void anotherPictureIsPaintedAtOnce()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea}), 2);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        const auto painted = [&](const char* button) {
            QTest::qWait(1);
            const PaintCounter paints(*w.get<PolyEditorWidget>("polyArea"));
            w.click(button);
            return paints.count > 0;
        };
        QVERIFY(painted("btNextPicture"));
        QVERIFY(painted("btPreviousPicture"));
    }

    void aReplacedPictureIsShown()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea}), 2);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        PolyEditorWidget* const picture = w.get<PolyEditorWidget>("polyArea");
        const auto shown = [&] { return picture->grab().toImage().pixelColor(50, 50); };
        const QColor before = shown();
        QImage black(60, 30, QImage::Format_RGB32);
        black.fill(Qt::black);
        QVERIFY(black.save(w.path("scan.png")));
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.press("Yes");
        w.click("btLoadImage");
        QVERIFY(!picture->loadedPath.empty());  // at once
        QCOMPARE(shown(), QColor(0, 0, 0));
        QCOMPARE(QImage(w.path("900-bkgnd1.jpg")).size(), QSize(200, 100));
        w.click("btNextPicture");
        QCOMPARE(shown(), before);
    }

    void inAProjectThatWasNeverOpenedMessagesStandInTheConsole()
    {
        WindowFixture w;
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Save_As");
        w.makePicture("scan.png");
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btNextPicture");
        w.click("btAddPoly");
        QCOMPARE(w.console(), "OID  1001 assigned to 'polygon1'");
    }

    // Pictures are named by the id; the copy must be found under the one that is kept.
    void aPictureIsKeptUnderAnIdThatWasJustTyped()
    {
        WindowFixture w;
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Save_As");
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.makePicture("scan.png", {600, 300}, 11811);
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btNextPicture");
        QCOMPARE(QString::fromStdString(w.folder.listing()), "905-bkgnd0.jpg book.oidpro scan.png");
        QCOMPARE(w.get<QSpinBox>("txProjectId")->value(), 905);
    }

    void aPictureIsReplacedUnderAnIdThatWasJustTyped()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.makePicture("scan.png", {60, 60});
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btLoadImage");
        QCOMPARE(QImage(w.path("905-bkgnd0.jpg")).size(), QSize(60, 60));
    }

    void thatANewPictureCannotBeReadIsSaid()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        writeFile(w.folder.file("broken.png"), "no picture");
        w.dialogs.chooseFile(w.path("broken.png"));
        w.dialogs.press("OK");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen().last(), "Warning: Can't load that picture.");
        QCOMPARE(current(w), 0);
        QVERIFY(!QFile::exists(w.path("900-bkgnd1.jpg")));
    }

    void aBrokenPictureIsRefusedBeforeTheQuestion()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        writeFile(w.folder.file("broken.png"), "no picture");
        w.dialogs.chooseFile(w.path("broken.png"));
        w.dialogs.press("OK");
        w.click("btLoadImage");
        QCOMPARE(w.dialogs.seen(), QStringList({"Open project", "Import Picture",
                                                "Warning: Can't load that picture."}));
        QCOMPARE(QImage(w.path("900-bkgnd0.jpg")).size(), QSize(200, 100));
    }

    void aPictureInTheWayIsOnlyOverwrittenOnYes()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 2);
        w.makePicture("scan.png", {60, 60});
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.press("No");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen().last(),
                 "Overwrite Picture: Do you want to overwrite the picture in the cache?");
        QCOMPARE(current(w), 0);
        QCOMPARE(QImage(w.path("900-bkgnd1.jpg")).size(), QSize(200, 100));
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.press("Yes");
        w.click("btNextPicture");
        QCOMPARE(current(w), 1);
        QCOMPARE(QImage(w.path("900-bkgnd1.jpg")).size(), QSize(60, 60));
    }

    void loadReplacesThePictureAndKeepsTheRest()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.makePicture("scan.png", {60, 60}, 11811);
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.press("Yes");
        w.click("btLoadImage");
        QCOMPARE(QImage(w.path("900-bkgnd0.jpg")).size(), QSize(60, 60));
        QCOMPARE(w.saved(), projectFile({kArea}));
    }

    // Said before a file is chosen in vain.
    void aNeverSavedProjectHasNoPlaceForPictures()
    {
        WindowFixture w;
        w.dialogs.press("OK");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen(), QStringList{"Warning: Save the project first: its pictures are "
                                               "kept beside the project file."});
        QVERIFY(!QFile::exists("900-bkgnd0.jpg"));
    }

    void returnDoesNotOverwriteAPicture()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 2);
        w.makePicture("scan.png", {60, 60});
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.look([](QWidget& question) { QTest::keyClick(&question, Qt::Key_Return); });
        w.click("btNextPicture");
        QCOMPARE(current(w), 0);
        QCOMPARE(QImage(w.path("900-bkgnd1.jpg")).size(), QSize(200, 100));
    }

    void aCopyThatCannotBeWrittenIsSaid()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        QVERIFY(QDir().mkdir(w.path("900-bkgnd1.jpg")));
        w.makePicture("scan.png");
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.press("Yes");
        w.dialogs.press("OK");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen().last(),
                 "Warning: The picture could not be kept beside the project file.");
        QCOMPARE(current(w), 0);
    }

    void aLinkToAnotherFolderIsNotWrittenAndNamed()
    {
        WindowFixture w;
        const TemporaryFolder other;
        w.open(projectFile({kArea}), 1);
        const QString elsewhere = QString::fromStdString(other.file("not-there.jpg"));
        QVERIFY(QFile::link(elsewhere, w.path("900-bkgnd1.jpg")));
        w.makePicture("scan.png");
        w.dialogs.chooseFile(w.path("scan.png"));
        w.dialogs.press("OK");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen().last(),
                 "Warning: The picture could not be kept beside the project file.\n\n" +
                     w.path("900-bkgnd1.jpg") +
                     "\nIt is a link to a file outside of the project's folder.");
        QVERIFY(!QFile::exists(elsewhere));
        QCOMPARE(current(w), 0);
    }

    void aPictureForAFolderThatHasVanishedIsNotTaken()
    {
        WindowFixture w;
        const TemporaryFolder scans;
        const QString scan = QString::fromStdString(scans.file("scan.png"));
        QVERIFY(QImage(60, 60, QImage::Format_RGB32).save(scan));
        w.open(projectFile({kArea}), 1);
        QVERIFY(QDir(QString::fromStdString(w.folder.path())).removeRecursively());
        w.dialogs.chooseFile(scan);
        w.dialogs.press("OK");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen().last(),
                 "Warning: The picture could not be kept beside the project file.");
        QCOMPARE(current(w), 0);
    }

    // 80000 x 80000 pixels, says its header.
    void aPictureThatIsTooLargeForTheMemoryIsNotTaken()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.makePicture("huge.bmp");
        std::string bytes = readFile(w.folder.file("huge.bmp"));
        for (const size_t side : {18, 22}) {
            bytes.replace(side, 4, std::string("\x80\x38\x01\x00", 4));
        }
        writeFile(w.folder.file("huge.bmp"), bytes);
        w.dialogs.chooseFile(w.path("huge.bmp"));
        w.dialogs.press("OK");
        w.click("btNextPicture");
        QCOMPARE(w.dialogs.seen().last(), "Warning: Can't load that picture.");
        QCOMPARE(current(w), 0);
    }

    void aPhotoComesInUpright()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        QImage image(80, 40, QImage::Format_RGB32);
        image.fill(Qt::gray);
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(image.save(&buffer, "jpg"));
        // An EXIF block that says: turn by a quarter (orientation 6).
        const QByteArray exif = QByteArray::fromHex(
            "ffe100224578696600004d4d002a00000008000101120003000000010006000000000000");
        jpeg.insert(2, exif);
        writeFile(w.folder.file("photo.jpg"), jpeg.toStdString());
        w.dialogs.chooseFile(w.path("photo.jpg"));
        w.click("btNextPicture");
        QCOMPARE(QImage(w.path("900-bkgnd1.jpg")).size(), QSize(40, 80));
    }

    void aJpegIsKeptAsItCame()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        const std::string photo = readFile(PLINKETT_SOURCE_DIR "/examples/farm/901-bkgnd0.jpg");
        writeFile(w.folder.file("photo.jpg"), photo);
        w.dialogs.chooseFile(w.path("photo.jpg"));
        w.click("btNextPicture");
        QVERIFY(readFile(w.folder.file("900-bkgnd1.jpg")) == photo);
        const QImage image(w.path("photo.jpg"));
        QCOMPARE(w.field("txProjPaperWidth"), QString::number(image.widthMM()));
        QCOMPARE(w.field("txProjDPI"),
                 QString::number(int(image.dotsPerMeterX() / 39.37 + 0.4444)));
    }

    void whatShinesThroughAPictureIsWhite()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        QImage image(32, 16, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        for (int x = 16; x < 32; ++x) {
            for (int y = 0; y < 16; ++y) {
                image.setPixelColor(x, y, QColor(0, 0, 0, 127));
            }
        }
        QVERIFY(image.save(w.path("clear.png")));
        w.dialogs.chooseFile(w.path("clear.png"));
        w.click("btNextPicture");
        const QImage kept(w.path("900-bkgnd1.jpg"));
        QCOMPARE(kept.pixelColor(4, 4), QColor(255, 255, 255));
        QCOMPARE(kept.pixelColor(28, 4), QColor(128, 128, 128));
    }

    void theDialogShowsAllKindsOfPictures()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        for (const char* const name : {"a.png", "b.jpg", "c.jpeg", "d.bmp", "e.PNG", "f.JPG"}) {
            w.makePicture(name);
        }
        writeFile(w.folder.file("g.txt"), "");
        QStringList listed;
        QString filter;
        w.dialogs.look([&](QWidget& dialog) {
            QFileDialog& files = static_cast<QFileDialog&>(dialog);
            files.setDirectory(QString::fromStdString(w.folder.path()));
            QTest::qWait(200);
            const QAbstractItemModel* const model =
                dialog.findChild<QAbstractItemView*>("listView")->model();
            const QModelIndex root = dialog.findChild<QAbstractItemView*>("listView")->rootIndex();
            for (int i = 0; i < model->rowCount(root); ++i) {
                listed << model->index(i, 0, root).data().toString();
            }
            filter = dialog.findChild<QComboBox*>("fileTypeCombo")->currentText();
            files.reject();
        });
        w.click("btNextPicture");
        listed.sort();
        QCOMPARE(listed, QStringList({"900-bkgnd0.jpg", "a.png", "b.jpg", "c.jpeg", "d.bmp",
                                      "e.PNG", "f.JPG"}));
        QCOMPARE(filter, "Picture files (*.png; *.jpg; *.jpeg; *.bmp)");
    }

    void deletingAPictureIsNotThereYet()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.dialogs.press("No");
        w.click("btDeletePicture");
        w.dialogs.press("Yes");
        w.dialogs.press("OK");
        w.click("btDeletePicture");
        const QString question = "Delete Picture: Do you really want to delete this picture?";
        QCOMPARE(w.dialogs.seen().mid(1),
                 QStringList({question, question,
                              "Warning: This is not implemented, yet. You must edit the project "
                              "file and also RENAME the source images!"}));
        QCOMPARE(w.saved(), projectFile({kArea}));
    }

    void whoWantsToDeleteAPictureIsShownHowAPageIsRemoved()
    {
        WindowFixture w;
        w.open(projectFile({"", kArea}), 2);
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        w.click("btNextPicture");
        w.get<QAction>("actionDockPages")->setChecked(false);
        w.dialogs.press("Yes");
        QString advice;
        w.dialogs.look([&](QWidget& box) {
            advice = qobject_cast<QMessageBox*>(&box)->informativeText();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        w.click("btDeletePicture");
        QCOMPARE(advice, "Pages are removed in the list of the pages, which opens now: Delete "
                         "removes this one, and Undo brings it back.");
        QCOMPARE(w.status(), "Delete removes page 2, and Undo brings it back.");
        auto* const list = w.get<QWidget>("pageList");
        QVERIFY(list->isVisible());
        QCOMPARE(w.window.focusWidget(), list);
    }

    void withoutAPageThereIsNothingToShow()
    {
        WindowFixture w;
        w.get<QAction>("actionDockPages")->setChecked(false);
        w.dialogs.press("Yes");
        w.dialogs.press("OK");
        w.click("btDeletePicture");
        QVERIFY(!w.get<QWidget>("pageList")->isVisible());
        QCOMPARE(w.status(), "");
    }

    void createMakesThePrintImageOfEachPicture()
    {
        WindowFixture w;
        std::string project = projectFile({kArea, kArea});
        const std::string paper = "PAPER 200.0 100.0\r\nDPI   300";
        for (size_t found; (found = project.find(paper)) != std::string::npos;) {
            project.replace(found, paper.size(), "PAPER 20.0 10.0\r\nDPI   254");
        }
        w.open(project, 2);
        w.click("btCreateImage");
        QCOMPARE(QImage(w.path("900-print0.tiff")).size(), QSize(200, 100));
        QCOMPARE(QImage(w.path("900-print1.tiff")).size(), QSize(200, 100));
        QVERIFY(w.console().startsWith("Warning: picture 0: 254 DPI are too few for the dots\n"
                                       "Warning: picture 1: 254 DPI are too few for the dots\n"
                                       "Creating pixel image...\n      0%\n     10%\n"));
        QCOMPARE(w.status(), "2 print images created");
        QCOMPARE(w.text("lbCreateResult"), "2 print images created\n"
                                           "picture 0: 254 DPI are too few for the dots\n"
                                           "picture 1: 254 DPI are too few for the dots");
        QCOMPARE(QDir::current(), QDir(QString::fromStdString(w.folder.path())));
    }

    void createMakesTheImagesOfAnIdThatWasJustTyped()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.type("txProjDPI", "60");
        w.makePicture("905-bkgnd0.jpg");
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.click("btCreateImage");
        QVERIFY(QFile::exists(w.path("905-print0.tiff")));
        QVERIFY(!QFile::exists(w.path("900-print0.tiff")));
    }

    void createGoesOnBehindAPictureWithoutItsFile()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea}));
        w.makePicture("900-bkgnd1.jpg");
        w.click("btNextPicture");
        w.type("txProjDPI", "60");
        w.click("btCreateImage");
        QVERIFY(w.console().contains("\nNo image was loaded for this picture.\nCreating"));
        QVERIFY(!QFile::exists(w.path("900-print0.tiff")));
        QVERIFY(QFile::exists(w.path("900-print1.tiff")));
    }

    void aNumberThatWasJustTypedIsPrinted()
    {
        WindowFixture w;
        const auto page = [](const char* oid) {
            std::string project =
                projectFile({std::string("OID ") + oid + "\r\nBOX cow 0 0 100 50\r\n"});
            const std::string dpi = "DPI   300";
            return project.replace(project.find(dpi), dpi.size(), "DPI   600");
        };
        w.open(page("1001"), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.clickAt(w.get<PolyEditorWidget>("polyArea")->toPix({10, 10}));
        w.get<QSpinBox>("txOidOfArea")->setValue(4321);
        w.click("btCreateImage");
        const QImage printed(w.path("900-print0.tiff"));
        w.open(page("4321"), 1);
        w.click("btCreateImage");
        QVERIFY(printed == QImage(w.path("900-print0.tiff")));
        w.open(page("1001"), 1);
        w.click("btCreateImage");
        QVERIFY(printed != QImage(w.path("900-print0.tiff")));
    }

    void creatingCanBeCancelledAndLeavesNoHalfPrintImage()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea}), 2);
        makeLarge(w);
        const ProgressCancel cancel(w.window);
        w.click("btCreateImage");
        QVERIFY(cancel.done);
        QCOMPARE(w.folder.listing(), std::string("900-bkgnd0.jpg 900-bkgnd1.jpg book.oidpro"));
    }

    void theProgressOfCreatingCountsEveryPicture()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea, kArea}), 3);
        makeLarge(w);
        const ProgressCancel cancel(w.window);
        w.click("btCreateImage");
        QCOMPARE(cancel.steps, 300);
    }

    void createWithoutAPictureFileSaysSo()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 0);
        w.click("btCreateImage");
        QCOMPARE(w.console(), "Warning: picture 0: 300 DPI are too few for the dots\n"
                              "No image was loaded for this picture.");
        const QString failed = "Picture 0 was not created: No image was loaded for this picture.";
        QCOMPARE(w.status(), failed);
        QCOMPARE(w.text("lbCreateResult"),
                 failed + "\npicture 0: 300 DPI are too few for the dots");
    }

    void createSaysInTheStatusBarThatThereIsOneImage()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.type("txProjDPI", "600");
        w.click("btCreateImage");
        QCOMPARE(w.status(), "1 print image created");
        QCOMPARE(w.text("lbCreateResult"), "1 print image created");
    }

    void createWithoutAPictureSaysSo()
    {
        WindowFixture w;
        w.click("btCreateImage");
        QCOMPARE(w.status(), "There is no picture yet");
        QCOMPARE(w.text("lbCreateResult"), "There is no picture yet");
    }

    // Before the work, which may take long.
    void tooFewDpiAreSeenWhileCreating()
    {
        WindowFixture w;
        w.open(projectFile({kArea}), 1);
        w.type("txProjPaperWidth", "2000");
        w.type("txProjPaperHeight", "2000");
        QString seen;
        bool painted = false;
        QTimer::singleShot(0, [&] {
            seen = w.text("lbCreateResult");
            painted = w.get<QLabel>("lbCreateResult")->isVisible();
        });
        const ProgressCancel cancel(w.window);
        w.click("btCreateImage");
        QVERIFY(painted);
        QCOMPARE(seen, "picture 0: 300 DPI are too few for the dots");
        QCOMPARE(w.status(), "Creating was cancelled");
    }

    void createTwiceInASessionPrintsOnlyTheDotsOfNow()
    {
        WindowFixture w;
        w.open(projectFile({"OID 1001\r\nBOX cow 0 0 100 50\r\n"}), 1);
        w.type("txProjDPI", "1200");
        w.type("txProjPaperWidth", "20");
        w.type("txProjPaperHeight", "10");
        w.click("btCreateImage");
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.clickAt(w.get<PolyEditorWidget>("polyArea")->toPix({10, 10}));
        w.get<QSpinBox>("txOidOfArea")->setValue(4321);
        w.type("txProjDPI", "600");
        w.click("btCreateImage");
        const QImage printed(w.path("900-print0.tiff"));
        w.open(w.saved(), 1);
        w.click("btCreateImage");
        QVERIFY(!printed.isNull());
        QVERIFY(printed == QImage(w.path("900-print0.tiff")));
    }

    void paperAndResolutionOfAPictureCanBeGivenToAll()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea, kArea}), 3);
        w.click("btNextPicture");
        w.type("txProjPaperWidth", "148,5");
        w.type("txProjPaperHeight", "105");
        w.type("txProjDPI", "1200");
        w.click("btSizeForAll");
        QCOMPARE(w.status(), "All pictures have this paper and these DPI now");
        const QString saved = QString::fromStdString(w.saved());
        QCOMPARE(saved.count("PAPER 148.5 105.0\r\nDPI   1200\r\n"), 3);
        QCOMPARE(w.field("txProjPaperWidth"), "148.5");
    }

    void aPaperOfNoSizeIsGivenToNoOtherPicture()
    {
        WindowFixture w;
        w.open(projectFile({kArea, kArea}), 2);
        w.type("txProjDPI", "");
        w.click("btSizeForAll");
        QCOMPARE(w.status(), "Paper size and DPI must be greater than 0");
        QCOMPARE(w.text("lbCreateResult"), "Paper size and DPI must be greater than 0");
        QCOMPARE(QString::fromStdString(w.saved()).count("DPI   300\r\n"), 1);
    }

    void withoutAPictureThereIsNoPaperToGive()
    {
        WindowFixture w;
        w.click("btSizeForAll");
        QCOMPARE(w.status(), "There is no picture yet");
    }
};

QTEST_MAIN(PicturesTest)
#include "PicturesTest.moc"
