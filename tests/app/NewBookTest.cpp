// "New book...": what it asks for, what it makes, and what it says when that is not possible.
#include "app/Translations.h"
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QTranslator>

namespace {

// For a file dialog that opens while another dialog is answered.
void chooseFileNext(const QString& files)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, files] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr && dialog->isVisible()) {
            timer->stop();
            timer->deleteLater();
            auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
            name->setText(files);
            QTest::keyClick(name, Qt::Key_Return);
        }
    });
    timer->start(5);
}

// The dialog as its author uses it.
class Asked
{
public:
    explicit Asked(QWidget& shown) : dialog(shown) {}

    template <class T>
    T& get(const char* name)
    {
        return *dialog.findChild<T*>(name);
    }
    void type(const char* field, const QString& text)
    {
        get<QLineEdit>(field).setFocus();
        get<QLineEdit>(field).selectAll();
        QTest::keyClicks(&get<QLineEdit>(field), text);
    }
    void typeNumber(const QString& text)
    {
        QSpinBox& number = get<QSpinBox>("txNewBookNumber");
        number.setFocus();
        number.selectAll();
        QTest::keyClicks(&number, text);
    }
    void click(const char* button) { QTest::mouseClick(&get<QPushButton>(button), Qt::LeftButton); }
    QPushButton& make()
    {
        return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    QString problem() { return get<QLabel>("lbNewBookProblem").text().remove(QChar(0x200B)); }
    QStringList pages()
    {
        QStringList names;
        for (int row = 0; row < list().count(); ++row) {
            names << list().item(row)->text();
        }
        return names;
    }
    QListWidget& list() { return get<QListWidget>("newBookPages"); }
    void close() { QTest::keyClick(&dialog, Qt::Key_Escape); }

    QWidget& dialog;
};

// In a file of the test's own; they outlive the window.
struct OwnSettings
{
    TemporaryFolder ofSettings;
    QSettings settings{QString::fromStdString(ofSettings.file("settings.ini")),
                       QSettings::IniFormat};
};

class Author : public OwnSettings, public WindowFixture
{
public:
    Author()
    {
        // So that the suggested folder lies among the test's.
        QDir(path("")).mkpath("books/farm");
        writeFile(folder.file("books/farm/farm.oidpro"), "PRODUCT 900, \"Farm\"\n");
        settings.setValue("books/recent", QStringList(path("books/farm/farm.oidpro")));
        window.keepSettingsIn(settings);
        for (const char* const name : {"page10.png", "page9.png", "cover.jpg"}) {
            makePicture(name, {60, 40}, 11811);
        }
    }

    // What is done with the dialog; it has to be closed by that.
    void newBook(const std::function<void(Asked&)>& use)
    {
        dialogs.look([use](QWidget& dialog) {
            Asked asked(dialog);
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            use(asked);
        });
        window.activateWindow();  // it is not, after another dialog
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    }
    // For the dialog "Pictures of the pages".
    void choosePictures(const QStringList& names)
    {
        QStringList files;
        for (const QString& name : names) {
            files << '"' + path(qPrintable(name)) + '"';
        }
        chooseFileNext(files.join(' '));
    }
    QString in(const char* name) const { return QDir::toNativeSeparators(path("books/") + name); }
};

}  // namespace

class NewBookTest : public QObject
{
    Q_OBJECT

private slots:
    void makesABookWithAllItsPages()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            author.choosePictures({"page10.png", "cover.jpg", "page9.png"});
            asked.click("btNewBookAdd");
            QCOMPARE(asked.pages(), QStringList({"cover.jpg", "page9.png", "page10.png"}));
            QTest::mouseClick(&asked.make(), Qt::LeftButton);
        });
        QCOMPARE(QDir(author.in("Zoo")).entryList(QDir::Files),
                 QStringList({"901-bkgnd0.jpg", "901-bkgnd1.jpg", "901-bkgnd2.jpg", "Zoo.oidpro"}));
        QCOMPARE(author.status(), QString("Opened: Zoo.oidpro"));
        QCOMPARE(author.field("txProjectName"), QString("Zoo"));
        QCOMPARE(author.get<QSpinBox>("txProjectId")->value(), 901);
        QCOMPARE(author.text("lbPageOfPages"), QString("Page 1 of 3"));
        QVERIFY(!author.get<QWidget>("welcomePage")->isVisible());
    }

    void makesWhatSavingAndImportingMake()
    {
        const char* const files[] = {"Zoo.oidpro", "901-bkgnd0.jpg", "901-bkgnd1.jpg"};
        std::vector<std::string> made;
        {
            Author author;
            author.newBook([&](Asked& asked) {
                asked.type("txNewBookName", "Zoo");
                author.choosePictures({"cover.jpg", "page9.png"});
                asked.click("btNewBookAdd");
                QTest::mouseClick(&asked.make(), Qt::LeftButton);
            });
            for (const char* const name : files) {
                made.push_back(readFile(author.folder.file(std::string("books/Zoo/") + name)));
            }
        }
        Author author;
        author.type("txProjectName", "Zoo");
        author.get<QSpinBox>("txProjectId")->setValue(901);
        author.dialogs.chooseFile(author.path("Zoo.oidpro"));
        author.trigger("action_Save_As");
        for (const char* const name : {"cover.jpg", "page9.png"}) {
            author.dialogs.chooseFile(author.path(name));
            author.click("btNextPicture");
        }
        author.trigger("actionSave");
        for (std::size_t i = 0; i < made.size(); ++i) {
            QVERIFY2(!made[i].empty() && readFile(author.folder.file(files[i])) == made[i],
                     files[i]);
        }
    }

    void isDoneByKeysAlone()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            QTRY_COMPARE(QApplication::focusWidget(), &asked.get<QLineEdit>("txNewBookName"));
            QTest::keyClicks(QApplication::focusWidget(), "Sea");
            QStringList reached;
            for (int i = 0; i < 5; ++i) {
                QTest::keyClick(&asked.dialog, Qt::Key_Tab);
                reached << QApplication::focusWidget()->objectName();
            }
            QCOMPARE(reached, QStringList({"txNewBookNumber", "txNewBookFolder", "btNewBookFolder",
                                           "newBookPages", "btNewBookAdd"}));
            author.choosePictures({"cover.jpg", "page9.png", "page10.png"});
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            asked.dialog.activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), &asked.dialog);
            asked.list().setFocus();
            QTest::keyClick(&asked.list(), Qt::Key_Up, Qt::AltModifier);
            QTest::keyClick(&asked.list(), Qt::Key_Up, Qt::AltModifier);
            QTest::keyClick(&asked.list(), Qt::Key_Up, Qt::AltModifier);
            QCOMPARE(asked.pages(), QStringList({"page10.png", "cover.jpg", "page9.png"}));
            QTest::keyClick(&asked.list(), Qt::Key_Down, Qt::AltModifier);
            QCOMPARE(asked.pages(), QStringList({"cover.jpg", "page10.png", "page9.png"}));
            QTest::keyClick(&asked.list(), Qt::Key_Delete);
            QCOMPARE(asked.pages(), QStringList({"cover.jpg", "page9.png"}));
            QTest::keyClick(&asked.get<QLineEdit>("txNewBookName"), Qt::Key_Return);
        });
        QCOMPARE(author.status(), QString("Opened: Sea.oidpro"));
        QCOMPARE(author.text("lbPageOfPages"), QString("Page 1 of 2"));
    }

    void isAskedForByTheToolBar()
    {
        Author author;
        author.dialogs.look([](QWidget& dialog) {
            QCOMPARE(dialog.windowTitle(), QString("New book"));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QToolBar* const bar = author.get<QToolBar>("editBar");
        QWidget* const button = bar->widgetForAction(author.get<QAction>("actionNewBook"));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(author.dialogs.allGiven());
    }

    void thePagesAreOrderedByButtonsToo()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            author.choosePictures({"cover.jpg", "page9.png"});
            asked.click("btNewBookAdd");
            QVERIFY(!asked.get<QPushButton>("btNewBookDown").isEnabled());
            asked.click("btNewBookUp");
            QCOMPARE(asked.pages(), QStringList({"page9.png", "cover.jpg"}));
            QVERIFY(!asked.get<QPushButton>("btNewBookUp").isEnabled());
            asked.click("btNewBookDown");
            QCOMPARE(asked.pages(), QStringList({"cover.jpg", "page9.png"}));
            asked.click("btNewBookRemove");
            QCOMPARE(asked.pages(), QStringList("cover.jpg"));
            asked.close();
        });
    }

    void theFolderIsSuggestedBesideThatOfTheLastBook()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            QCOMPARE(asked.get<QLineEdit>("txNewBookFolder").text(), author.in("Zoo"));
            asked.type("txNewBookName", "Sea");
            QCOMPARE(asked.get<QLineEdit>("txNewBookFolder").text(), author.in("Sea"));
            asked.type("txNewBookFolder", author.in("mine"));
            asked.type("txNewBookName", "Wood");
            QCOMPARE(asked.get<QLineEdit>("txNewBookFolder").text(), author.in("mine"));
            asked.close();
        });
    }

    void theFolderIsChosen()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            chooseFileNext(author.path("books"));
            asked.click("btNewBookFolder");
            QCOMPARE(asked.get<QLineEdit>("txNewBookFolder").text(),
                     QDir::toNativeSeparators(author.path("books")));
            QTest::mouseClick(&asked.make(), Qt::LeftButton);
        });
        QVERIFY(QFileInfo::exists(author.in("Zoo.oidpro")));
    }

    void theNumberThatIsSuggestedIsNoOtherBooks()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            QCOMPARE(asked.get<QSpinBox>("txNewBookNumber").value(), 901);
            QVERIFY(!asked.get<QLabel>("lbNewBookNumber").isVisible());
            asked.typeNumber("900");
            QCOMPARE(asked.get<QLabel>("lbNewBookNumber").text().remove(QChar(0x200B)),
                     "The book " + author.in("farm/farm.oidpro") +
                         " has this number, too: they cannot both be on the pen.");
            QVERIFY(asked.make().isEnabled());
            asked.close();
        });
    }

    void aNumberOutOfRangeIsTold()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            QCOMPARE(asked.problem(), QString());
            asked.typeNumber("1000");
            QCOMPARE(asked.problem(), QString("The number must be from 1 to 999."));
            QVERIFY(!asked.make().isEnabled());
            asked.typeNumber("0");
            QVERIFY(!asked.make().isEnabled());
            asked.typeNumber("999");
            QVERIFY(asked.make().isEnabled());
            asked.close();
        });
    }

    void aNumberInUseIsTold()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            asked.type("txNewBookFolder", author.in("farm"));
            asked.typeNumber("900");
            QCOMPARE(asked.problem(),
                     QString("The book farm.oidpro in this folder has the number 900, too. Take "
                             "another number or folder."));
            QVERIFY(!asked.make().isEnabled());
            asked.close();
        });
    }

    void aBookThatIsThereIsNotOverwritten()
    {
        Author author;
        const QString farm = author.in("farm/farm.oidpro");
        const std::string before = readFile(farm.toStdString());
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookFolder", author.in("farm"));
            asked.type("txNewBookName", "farm");
            QCOMPARE(asked.problem(),
                     "There is a book already: " + farm + ". Take another name or folder.");
            QTest::keyClick(&asked.get<QLineEdit>("txNewBookName"), Qt::Key_Return);
            QVERIFY(asked.dialog.isVisible());
            asked.close();
        });
        QCOMPARE(readFile(farm.toStdString()), before);
    }

    void aNameThatCannotBeIsTold()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            QCOMPARE(asked.problem(), QString("The book needs a name."));
            asked.type("txNewBookName", "Cats # dogs");
            QCOMPARE(asked.problem(), QString("Not possible in the name: #"));
            QVERIFY(!asked.make().isEnabled());
            asked.close();
        });
    }

    void aPictureThatIsNoneComesNotIntoTheList()
    {
        Author author;
        writeFile(author.folder.file("letter.png"), "Dear reader");
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            author.choosePictures({"cover.jpg", "letter.png"});
            asked.click("btNewBookAdd");
            QCOMPARE(asked.pages(), QStringList("cover.jpg"));
            QCOMPARE(asked.problem(), "No picture, so it is not in the list: " +
                                          QDir::toNativeSeparators(author.path("letter.png")));
            asked.close();
        });
    }

    void aPictureThatIsLostMeanwhileIsToldAndNothingIsLeft()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            author.choosePictures({"cover.jpg", "page9.png"});
            asked.click("btNewBookAdd");
            QFile::remove(author.path("page9.png"));
            QTest::mouseClick(&asked.make(), Qt::LeftButton);
            QVERIFY(asked.dialog.isVisible());
            QCOMPARE(asked.problem(), QDir::toNativeSeparators(author.path("page9.png")) +
                                          " is no picture, or cannot be read.");
            QVERIFY(!QFileInfo::exists(author.in("Zoo")));
            asked.click("btNewBookRemove");
            QTest::mouseClick(&asked.make(), Qt::LeftButton);
        });
        QCOMPARE(author.status(), QString("Opened: Zoo.oidpro"));
    }

    void aFolderThatCannotBeMadeIsTold()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            asked.type("txNewBookFolder", author.in("farm/farm.oidpro/zoo"));
            QCOMPARE(asked.problem(), author.in("farm/farm.oidpro") + " is a file and no folder.");
            asked.type("txNewBookFolder", "zoo");
            QCOMPARE(asked.problem(), QString("The folder needs its whole path."));
            asked.close();
        });
    }

    void aFullDiskIsToldAndNothingIsLeft()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            const SmallDisk disk(10);
            QTest::mouseClick(&asked.make(), Qt::LeftButton);
            QVERIFY(
                asked.problem().startsWith(author.in("Zoo/Zoo.oidpro") + " cannot be written."));
            QVERIFY(!QFileInfo::exists(author.in("Zoo")));
            asked.close();
        });
    }

    void cancelMakesNothing()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            asked.close();
        });
        QVERIFY(!QFileInfo::exists(author.in("Zoo")));
        QVERIFY(author.get<QWidget>("welcomePage")->isVisible());
        QCOMPARE(author.status(), QString());
    }

    // As when another project is opened.
    void unsavedWorkIsKeptAndOffered()
    {
        Author author;
        author.open(projectFile({}));
        author.type("txProjectName", "Changed");
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Sea");
            asked.type("txNewBookFolder", author.in("Sea"));
            QTest::mouseClick(&asked.make(), Qt::LeftButton);
        });
        QCOMPARE(author.field("txProjectName"), QString("Sea"));
        author.window.openProject(author.path("book.oidpro"));
        QCOMPARE(author.field("txProjectName"), QString("Zoo"));
        QVERIFY(author.get<QWidget>("recoveryBar")->isVisible());
    }

    void everyControlHasANameAndAToolTip()
    {
        Author author;
        author.newBook([&](Asked& asked) {
            for (const char* const name : {"txNewBookName", "txNewBookNumber", "txNewBookFolder",
                                           "btNewBookFolder", "newBookPages", "btNewBookAdd",
                                           "btNewBookUp", "btNewBookDown", "btNewBookRemove"}) {
                QWidget& control = asked.get<QWidget>(name);
                QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&control);
                QVERIFY2(!read->text(QAccessible::Name).isEmpty(), name);
                QVERIFY2(!control.toolTip().isEmpty() || control.inherits("QListWidget"), name);
            }
            asked.close();
        });
    }

    void fitsOnASmallScreen_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            QTest::newRow(language) << QString(language);
        }
    }

    // 1024 x 600 at 200 %; what has no room is scrolled to, up and down only.
    void fitsOnASmallScreen()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        Author author;
        author.newBook([&](Asked& asked) {
            asked.type("txNewBookName", "Zoo");
            asked.type("txNewBookFolder", author.in("farm"));
            asked.typeNumber("900");
            asked.dialog.resize(512, 280);
            QTest::qWait(10);
            QVERIFY(asked.dialog.height() <= 280 && asked.dialog.width() <= 512);
            const QRect inside = asked.dialog.rect();
            const auto seen = [&](const QWidget& control) {
                return inside.contains(
                    QRect(control.mapTo(&asked.dialog, QPoint()), control.size()));
            };
            QVERIFY(seen(asked.make()));
            QVERIFY(seen(asked.get<QLabel>("lbNewBookProblem")));
            auto* const scroll = asked.dialog.findChild<QScrollArea*>();
            for (QWidget* const control : scroll->widget()->findChildren<QWidget*>()) {
                if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
                    const QPoint place = control->mapTo(scroll->widget(), QPoint());
                    QVERIFY2(place.x() + control->width() <= scroll->viewport()->width(),
                             qPrintable(control->objectName()));
                }
            }
            asked.close();
        });
    }
};

QTEST_MAIN(NewBookTest)
#include "NewBookTest.moc"
