// The form: its objects, their types, texts, tool tips and ranges, and how it is used by keyboard.
#include "app/ScreenFit.h"
#include "app/Translations.h"
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

#include <algorithm>

class FormTest : public QObject
{
    Q_OBJECT

private slots:
    void hasItsObjects_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        const auto row = [](const char* name, const char* type, const QString& text = {},
                            const QString& toolTip = {}) {
            QTest::newRow(name) << QString(type) << text << toolTip;
        };
        row("centralwidget", "QWidget");
        row("ribbonTab", "QTabWidget");
        row("toolBar", "QToolBar", "toolBar");
        row("statusbar", "QStatusBar");
        row("tabProject", "QWidget");
        row("groupBox_3", "QGroupBox", "Project");
        row("label_8", "QLabel", "Project Name");
        row("txProjectName", "QLineEdit", "",
            "The name of the book: the pen says it when the book is switched on, and game and PDF "
            "are named after it");
        row("lbProjectNameProblems", "QLabel");
        row("label_9", "QLabel", "Project ID");
        row("widget", "QWidget");
        row("txProjectId", "QSpinBox", "",
            "The number by which the pen knows the book: each book on the pen needs its own, 900 "
            "to 950 for those made at home");
        row("frCurrentPicture", "QGroupBox", "Current Picture (Area)");
        row("label_3", "QLabel", "Paper: [mm]");
        row("widget_2", "QWidget");
        row("txProjPaperWidth", "QLineEdit", "",
            "How wide this page is printed, in millimetres: its picture fills the paper");
        row("label_4", "QLabel", "X");
        row("txProjPaperHeight", "QLineEdit", "",
            "How high this page is printed, in millimetres: its picture fills the paper");
        row("label_5", "QLabel", "DPI:");
        row("widget_4", "QWidget");
        row("txProjDPI", "QLineEdit", "",
            "The dots per inch of the printer, for this page: the pen needs 600 at least, better "
            "are 1200");
        row("btSizeForAll", "QPushButton", "For all pictures",
            "Gives the paper and the DPI of this picture to all others, for a book that is printed "
            "on one kind of paper");
        row("widget_6", "QWidget");
        row("btCreateImage", "QPushButton", "Create",
            "Makes a print image (TIFF) of each page, for a print shop; for a printer at home take "
            "PDF");
        row("label_7", "QLabel", "Create the output image now...");
        row("btCreatePdf", "QToolButton", "PDF",
            "Makes a PDF of the book for your own printer, each page in its true size; its menu "
            "(key Down) has symbols and the printer's test page");
        row("lbCreateResult", "QLabel");
        row("tabAreas", "QWidget");
        row("widget_7", "QWidget");
        row("groupBox", "QGroupBox", "Picture");
        row("btPreviousPicture", "QPushButton", "<-", "Show the previous picture");
        row("btNextPicture", "QPushButton", "->", "Shows the next picture or appends a new one");
        row("btLoadImage", "QPushButton", "load...",
            "Puts another picture file in the place of this one, such as a better scan; paper and "
            "areas stay");
        row("btDeletePicture", "QPushButton", u8"\u2716",
            "Shows how this page is removed: in the list of the pages (Ctrl+Shift+P), where Delete "
            "does it and Undo brings it back");
        row("groupBox_2", "QGroupBox", "Area");
        row("btPickPoly", "QPushButton", u8"\u2196", "Pick area mode");
        row("btAddPoly", "QPushButton", "+", "Add a new polygon mode");
        row("btDelPoly", "QPushButton", u8"\u2716", "Delete selected polygon");
        row("label", "QLabel", "ID:");
        row("txPolyName", "QLineEdit", "",
            "The name of the area: the sub of that name in the script says what is heard. Areas of "
            "one name do the same");
        row("txOidOfArea", "QSpinBox", "",
            "The number of the dots that the area is printed with: it comes by itself and stays, "
            "so that printed pages fit");
        row("btEditPolyCode", "QPushButton", "Goto code",
            "Goes to the sub of the area in the script, where what it says is written; begins one "
            "where there is none");
        row("polyArea", "PolyEditorWidget");
        row("tabScript", "QWidget");
        row("codeEditor", "KVQtHighlightEditCtrl");
        row("tabBuild", "QWidget");
        row("widget_5", "QWidget");
        row("btBuild", "QPushButton", u8"\U0001F477 Build", "Builds the project to a binary game");
        row("chDebugMode", "QCheckBox", u8"\u26A0Debug Mode",
            "Tells (says) the code line number, when running on the device");
        row("btCopyToPen", "QPushButton", "Copy to Device",
            "Copies the binary to the attached USB device");
        row("chQuickAnswers", "QCheckBox", "&Quick answers",
            "Makes the same game in fewer steps, so that the pen answers at once, also where the "
            "script reckons much");
        row("lbBuildResult", "QLabel");
        row("txConsole", "KVQtStdoutWidget");
        row("tabTry", "QWidget");
        row("btStart", "QPushButton", "Start",
            "Switches the book on, as START on paper does: plays the welcome");
        row("tabSpeech", "QWidget");
        row("speechTable", "SpeechView", "",
            "Every text of the book. A click on the sign plays it (Space), one on the line goes "
            "there (Enter)");
    }

    void hasItsObjects()
    {
        WindowFixture w;
        const QList<QWidget*> found = w.window.findChildren<QWidget*>(QTest::currentDataTag());
        QCOMPARE(found.size(), 1);
        QFETCH(QString, type);
        QFETCH(QString, text);
        QFETCH(QString, toolTip);
        QCOMPARE(QString(found[0]->metaObject()->className()), type);
        QCOMPARE(found[0]->toolTip(), toolTip);
        const char* const property = type == "QGroupBox"  ? "title"
                                     : type == "QToolBar" ? "windowTitle"
                                                          : "text";
        if (!text.isEmpty()) {
            QCOMPARE(found[0]->property(property).toString(), text);
        }
    }

    void hasItsLayouts()
    {
        WindowFixture w;
        for (const char* const name :
             {"horizontalLayout_3", "verticalLayout_6", "formLayout", "horizontalLayout_8",
              "formLayout_2", "horizontalLayout_4", "horizontalLayout_5", "horizontalLayout_7",
              "verticalLayout_2", "horizontalLayout_10", "horizontalLayout", "horizontalLayout_9",
              "verticalLayout_4", "verticalLayout", "horizontalLayout_6"}) {
            QVERIFY2(w.window.findChild<QLayout*>(name) != nullptr, name);
        }
    }

    void startsAtTheAreasTab()
    {
        WindowFixture w;
        const QTabWidget* const tabs = w.get<QTabWidget>("ribbonTab");
        QCOMPARE(tabs->count(), 6);
        QCOMPARE(tabs->tabText(0), "Project");
        QCOMPARE(tabs->tabText(1), "Areas");
        QCOMPARE(tabs->tabText(2), "Script");
        QCOMPARE(tabs->tabText(3), "Build");
        QCOMPARE(tabs->tabText(4), "Try");
        QCOMPARE(tabs->tabText(5), "Speech");
        QCOMPARE(tabs->currentIndex(), 1);
        QCOMPARE(tabs->styleSheet(), "QTabBar::tab {\nmin-height:32px;\n}");
    }

    void isAWindowOf1000By700NamedPlinkett()
    {
        WindowFixture w;
        QCOMPARE(w.window.objectName(), "MainWindow");
        QCOMPARE(w.window.windowTitle(), "Plinkett");
        QCOMPARE(w.window.size(), QSize(1000, 700));
        QVERIFY(!w.window.windowIcon().isNull());
        QVERIFY(!w.window.windowIcon().pixmap(32).isNull());
    }

    void hasThreeActionsInItsToolBar()
    {
        WindowFixture w;
        const QList<QAction*> actions = w.get<QToolBar>("toolBar")->actions();
        QCOMPARE(actions.size(), 3);
        const auto check = [&](int i, const char* name, const char* text, const char* shortcut,
                               const char* toolTip) {
            QCOMPARE(actions[i]->toolTip(), toolTip);
            QCOMPARE(actions[i]->objectName(), name);
            QCOMPARE(actions[i]->text(), text);
            QCOMPARE(actions[i]->shortcut().toString(), shortcut);
            QVERIFY(!actions[i]->icon().pixmap(24).isNull());
        };
        check(0, "action_Open", "&Open", "Ctrl+O",
              "Opens another book; of this one, what is not saved is kept and offered again "
              "(Ctrl+O)");
        check(1, "actionSave", "Save", "Ctrl+S",
              "Writes the book into its project file; pictures and audio files lie beside it "
              "(Ctrl+S)");
        check(2, "action_Save_As", "&Save As...", "Ctrl+Shift+S",
              "Saves the book under another name or in another folder, and takes pictures and "
              "audio files along (Ctrl+Shift+S)");
        QCOMPARE(w.window.toolBarArea(w.get<QToolBar>("toolBar")), Qt::TopToolBarArea);
    }

    void hasAStatusBarThatShowsNothingAndNoMenuBar()
    {
        WindowFixture w;
        QCOMPARE(w.get<QStatusBar>("statusbar")->currentMessage(), "");
        QVERIFY(w.window.findChild<QMenuBar*>() == nullptr);
    }

    void hasItsSlotsInTheirOrder()
    {
        const QMetaObject& window = MainWindow::staticMetaObject;
        QStringList slotNames;
        for (int i = window.methodOffset(); i < window.methodCount(); ++i) {
            slotNames << window.method(i).methodSignature();
        }
        QCOMPARE(slotNames, QStringList({"on_action_Open_triggered()",
                                         "on_action_Save_As_triggered()",
                                         "on_btAddPoly_clicked()",
                                         "onPolyAreaClickedLB(Oid::PNT)",
                                         "on_btDelPoly_clicked()",
                                         "on_btPickPoly_clicked()",
                                         "on_txPolyName_textEdited(QString)",
                                         "on_txProjPaperWidth_textChanged(QString)",
                                         "on_txProjPaperHeight_textChanged(QString)",
                                         "on_txProjDPI_textChanged(QString)",
                                         "on_btBuild_clicked()",
                                         "on_btCreateImage_clicked()",
                                         "on_actionSave_triggered()",
                                         "on_btCopyToPen_clicked()",
                                         "on_txOidOfArea_valueChanged(int)",
                                         "on_txPolyName_textChanged(QString)",
                                         "on_btDeletePicture_clicked()",
                                         "on_btPreviousPicture_clicked()",
                                         "on_btNextPicture_clicked()",
                                         "on_btLoadImage_clicked()",
                                         "on_btEditPolyCode_clicked()"}));
    }

    // Shortcuts of a hidden or torn-off tool bar are dead, and no menu would bring it back.
    void theToolBarCannotBeLost()
    {
        WindowFixture w;
        QToolBar* const toolBar = w.get<QToolBar>("toolBar");
        QWidget* const button = toolBar->widgetForAction(w.get<QAction>("actionSave"));
        for (QWidget* const place : {static_cast<QWidget*>(toolBar), button}) {
            QContextMenuEvent rightClick(QContextMenuEvent::Mouse, {3, 3},
                                         place->mapToGlobal({3, 3}));
            QCoreApplication::sendEvent(place, &rightClick);
            QCOMPARE(QApplication::activePopupWidget(), nullptr);
        }
        QVERIFY(!toolBar->isFloatable());
    }

    void ctrlTabLeavesTheScriptEditor()
    {
        WindowFixture w;
        QTabWidget* const tabs = w.get<QTabWidget>("ribbonTab");
        tabs->setCurrentIndex(2);
        w.window.activateWindow();
        QWidget& surface = w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
        surface.setFocus();
        QTest::keyClick(&surface, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(w.tab(), "Build");
        QCOMPARE(w.script(), "");
        tabs->setCurrentIndex(2);
        surface.setFocus();
        QTest::keyClick(&surface, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(w.tab(), "Areas");
    }

    void numbersHaveTheirRanges()
    {
        WindowFixture w;
        const QSpinBox* const id = w.get<QSpinBox>("txProjectId");
        QCOMPARE(id->minimum(), 1);
        QCOMPARE(id->maximum(), 999);
        QCOMPARE(id->value(), 900);
        const QSpinBox* const oid = w.get<QSpinBox>("txOidOfArea");
        QCOMPARE(oid->maximum(), 32767);
        QCOMPARE(oid->value(), 32767);
    }

    void theConsoleIsReadOnlyAndThePictureHasAnArrowCursor()
    {
        WindowFixture w;
        QVERIFY(w.get<QPlainTextEdit>("txConsole")->isReadOnly());
        const PolyEditorWidget* const picture = w.get<PolyEditorWidget>("polyArea");
        QCOMPARE(picture->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!picture->autoFillBackground());
        QVERIFY(!picture->parentWidget()->autoFillBackground());
    }

    // The project is not copied into a fresh form.
    void startsWithTheFormsOwnValues()
    {
        WindowFixture w;
        QCOMPARE(w.field("txProjectName"), "");
        QCOMPARE(w.field("txProjDPI"), "");
        QCOMPARE(w.script(), "");
    }

    // From the tabs through the controls of the tab in front and of the status bar, and round
    // again.
    void everyControlIsReachedByTab_data()
    {
        QTest::addColumn<QStringList>("order");
        const QString tabs = "qt_tabwidget_tabbar";
        const QString about = "btAbout";
        QTest::newRow("Project") << QStringList{
            tabs,        "txProjectName", "txProjectId",   "txProjPaperWidth", "txProjPaperHeight",
            "txProjDPI", "btSizeForAll",  "btCreateImage", "btCreatePdf",      about,
            tabs};
        QTest::newRow("Areas") << QStringList{tabs,
                                              "btPreviousPicture",
                                              "btNextPicture",
                                              "btLoadImage",
                                              "btDeletePicture",
                                              "btPickPoly",
                                              "btAddPoly",
                                              "btDelPoly",
                                              "txPolyName",
                                              "txOidOfArea",
                                              "btEditPolyCode",
                                              "polyArea",
                                              "btNewBook",
                                              "btOpenBook",
                                              "btSample_dictionary",
                                              "btSample_farm",
                                              "btSample_quiz",
                                              about,
                                              tabs};
        QTest::newRow("Script") << QStringList{tabs, "inlay"};
        QTest::newRow("Build") << QStringList{
            tabs,        "btBuild", "chDebugMode", "btCopyToPen", "chQuickAnswers",
            "txConsole", about,     tabs};
        QTest::newRow("Try") << QStringList{
            tabs,          "btStart",   "btTryAgain",      "btTryStop",    "btTryFresh",
            "btTryStep",   "btTryGoOn", "btTryBreakpoint", "btTryRecord",  "btTryWindow",
            "slTryVolume", "tryPage",   "tryConversation", "tryVariables", "tryScript",
            about,         tabs};
        QTest::newRow("Speech") << QStringList{
            tabs,          "txSpeechSearch", "cbSpeechState", "cbSpeechVoice",
            "speechTable", "btTryVoices",    about,           tabs};
    }

    void everyControlIsReachedByTab()
    {
        QFETCH(QStringList, order);
        WindowFixture w;
        QTabWidget* const tabs = w.get<QTabWidget>("ribbonTab");
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i) == QTest::currentDataTag()) {
                tabs->setCurrentIndex(i);
            }
        }
        w.window.activateWindow();
        tabs->setFocus();
        QStringList reached = {QApplication::focusWidget()->objectName()};
        while (reached.size() < order.size()) {
            QTest::keyClick(&w.window, Qt::Key_Tab);
            reached << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(reached, order);
    }

    void thePageShowsThatItHasTheFocus()
    {
        WindowFixture w;
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        w.window.activateWindow();
        auto* const page = w.get<PolyEditorWidget>("polyArea");
        QWidget* const frame = w.get<QWidget>("focusFrame");
        QVERIFY(!frame->isVisible());
        QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, {5, 5});
        QCOMPARE(QApplication::focusWidget(), page);
        const auto edge = [&] {
            const QPoint corner = frame->mapTo(&w.window, {0, 0});
            return w.window.grab().toImage().pixelColor(corner + QPoint(20, 1));
        };
        QCOMPARE(edge(), page->palette().color(QPalette::Highlight));
        w.window.resize(800, 600);
        QCoreApplication::processEvents();
        QCOMPARE(frame->size(), w.get<QScrollArea>("pictureScroll")->viewport()->size());
        w.get<QWidget>("txPolyName")->setFocus();
        QVERIFY(!frame->isVisible());
    }

    void everyControlHasANameForScreenReaders_data() { everyControlIsReachedByTab_data(); }

    // A label is the name of its field only where both have the same parent.
    void everyControlHasANameForScreenReaders()
    {
        QFETCH(QStringList, order);
        WindowFixture w;
        for (const QString& control : order) {
            QAccessibleInterface* const read =
                QAccessible::queryAccessibleInterface(w.window.findChild<QWidget*>(control));
            QVERIFY2(!read->text(QAccessible::Name).isEmpty(), qPrintable(control));
        }
    }

    void everyControlHasAToolTipThatSaysMoreThanItsName_data() { fitsOnASmallScreen_data(); }

    void everyControlHasAToolTipThatSaysMoreThanItsName()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        WindowFixture w;
        QStringList silent;
        for (const QWidget* const control : w.window.findChildren<QWidget*>()) {
            if (isControl(*control) && saysNoMore(control->toolTip(), *control)) {
                silent << control->window()->objectName() + "/" + control->objectName();
            }
        }
        for (const QToolBar* const bar : w.window.findChildren<QToolBar*>()) {
            for (const QAction* const action : bar->actions()) {
                if (!action->isSeparator() && saysNoMore(action->toolTip(), *action)) {
                    silent << action->objectName();
                }
            }
        }
        QCOMPARE(silent, QStringList());
    }

    static bool isControl(const QWidget& control)
    {
        const bool isPart = control.objectName().startsWith("qt_") ||
                            control.parentWidget()->inherits("QTabBar") ||
                            control.parentWidget()->inherits("QToolBar");
        const QStringList types = {"QAbstractButton", "QLineEdit", "QAbstractSpinBox", "QComboBox",
                                   "QSlider",         "QTreeView", "QTableView"};
        return !isPart && std::any_of(types.begin(), types.end(), [&](const QString& type) {
            return control.inherits(type.toLatin1());
        });
    }

    // An empty tool tip, or one that repeats what stands there or is read out.
    static bool saysNoMore(const QString& toolTip, const QObject& control)
    {
        const auto plain = [](QString text) {
            return text.remove('&').remove("...").simplified().toLower();
        };
        return toolTip.isEmpty() || plain(toolTip) == plain(control.property("text").toString()) ||
               plain(toolTip) == plain(control.property("accessibleName").toString());
    }

    void theManualHasAButtonThatOpensIt()
    {
        WindowFixture w;
        const QAction* const manual = w.get<QAction>("actionManual");
        const auto* const button = qobject_cast<QToolButton*>(
            w.get<QToolBar>("editBar")->widgetForAction(w.get<QAction>("actionManual")));
        QVERIFY(button->isVisible());
        QVERIFY(!manual->icon().pixmap(24).isNull());
        QCOMPARE(QAccessible::queryAccessibleInterface(
                     w.get<QToolBar>("editBar")->widgetForAction(w.get<QAction>("actionManual")))
                     ->text(QAccessible::Name),
                 "Manual");
        QCOMPARE(manual->toolTip(),
                 "Opens the manual in your browser, at what the shown tab is for (F1)");
    }

    void quickAnswersHaveAKeyOfTheirOwn_data() { fitsOnASmallScreen_data(); }

    void quickAnswersHaveAKeyOfTheirOwn()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        WindowFixture w;
        const QCheckBox* const box = w.get<QCheckBox>("chQuickAnswers");
        const QKeySequence key = QKeySequence::mnemonic(box->text());
        QVERIFY(!key.isEmpty());
        QStringList others;
        const auto compare = [&](const QObject* other, const char* property) {
            const QString text = other->property(property).toString();
            if (other != box && QKeySequence::mnemonic(text) == key) {
                others << text;
            }
        };
        for (const QObject* const object : w.window.findChildren<QObject*>()) {
            for (const char* const property : {"text", "title"}) {
                compare(object, property);
            }
        }
        const QTabWidget* const tabs = w.get<QTabWidget>("ribbonTab");
        for (int i = 0; i < tabs->count(); ++i) {
            QVERIFY(QKeySequence::mnemonic(tabs->tabText(i)).isEmpty());
        }
        QCOMPARE(others, QStringList());
    }

    void quickAnswersExplainThemselves()
    {
        WindowFixture w;
        QCOMPARE(w.get<QCheckBox>("chQuickAnswers")->whatsThis(),
                 "The pen takes its time for every step of the script. With quick answers the game "
                 "does the same in few of them. They are made by Plinkett's own assembler, also "
                 "where tttool is installed.");
    }

    void quickAnswersStandBehindCopyToDevice()
    {
        WindowFixture w;
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabBuild"));
        const QRect copy = w.get<QPushButton>("btCopyToPen")->geometry();
        const QRect box = w.get<QCheckBox>("chQuickAnswers")->geometry();
        QVERIFY(box.left() > copy.right());
        QVERIFY(std::abs(box.center().y() - copy.center().y()) <= 1);
    }

    void theControlsOfTheBuildAreSeenAtEveryWidth_data() { fitsOnASmallScreen_data(); }

    void theControlsOfTheBuildAreSeenAtEveryWidth()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        WindowFixture w;
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabBuild"));
        for (const int width : {640, 1400}) {
            w.window.resize(width, 360);
            QCoreApplication::processEvents();
            QRect before;
            for (const char* const name :
                 {"btBuild", "chDebugMode", "btCopyToPen", "chQuickAnswers"}) {
                const QWidget* const control = w.get<QWidget>(name);
                const QWidget* const row = control->parentWidget();
                QVERIFY2(row->rect().contains(control->geometry()), name);
                QVERIFY2(control->width() >= control->sizeHint().width(), name);
                QVERIFY2(!control->geometry().intersects(before), name);
                before = control->geometry();
            }
        }
    }

    void controlsThatShowASymbolHaveAName()
    {
        WindowFixture w;
        for (const QPushButton* const button : w.window.findChildren<QPushButton*>()) {
            if (button->text().size() <= 2) {
                QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
            }
        }
    }

    void fitsOnASmallScreen_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            QTest::newRow(language) << QString(language);
        }
    }

    // 1280 x 720 pixels at 200 %, in every language.
    void fitsOnASmallScreen()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        WindowFixture w;
        const QSize smallest = w.window.minimumSizeHint();
        QVERIFY2(smallest.width() <= 640, qPrintable(QString::number(smallest.width())));
        QVERIFY2(smallest.height() <= 360, qPrintable(QString::number(smallest.height())));
    }

    static void seeAllToolsOf(WindowFixture& w)
    {
        for (const QToolBar* const bar : w.window.findChildren<QToolBar*>()) {
            for (QAction* const action : bar->actions()) {
                const QWidget* const button = bar->widgetForAction(action);
                const bool isSeen = button->isVisible() &&
                                    bar->rect().contains(button->geometry()) &&
                                    bar->childAt(button->geometry().center()) == button;
                QVERIFY2(isSeen || action->isSeparator(), qPrintable(action->objectName()));
            }
        }
    }

    void everyToolIsSeenAtEveryWidth_data() { fitsOnASmallScreen_data(); }

    void everyToolIsSeenAtEveryWidth()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        WindowFixture w;
        const auto styles = [&] {
            return QPair(w.get<QToolBar>("toolBar")->toolButtonStyle(),
                         w.get<QToolBar>("editBar")->toolButtonStyle());
        };
        for (const int width : {640, 700, 800, 900, 1000, 1400}) {
            w.window.resize(width, 600);
            QCoreApplication::processEvents();
            seeAllToolsOf(w);
        }
        QCOMPARE(styles(), QPair(Qt::ToolButtonTextBesideIcon, Qt::ToolButtonTextBesideIcon));
        w.window.resize(640, 600);
        QCoreApplication::processEvents();
        QCOMPARE(styles().second, Qt::ToolButtonIconOnly);
        seeAllToolsOf(w);
    }

    void startsMaximisedOnAScreenThatIsTooSmallForIt()
    {
        MainWindow window;
        const QSize screen = window.screen()->availableSize();
        window.resize(screen.width() + 1, screen.height() / 2);
        fitOntoScreen(window);
        QVERIFY(window.isMaximized());
        QCOMPARE(window.size(), QSize(screen.width(), screen.height() / 2));
    }

    void startsMaximisedOnAScreenThatHasNoRoomForItsTitleBar()
    {
        MainWindow window;
        window.resize(window.screen()->availableSize());
        fitOntoScreen(window);
        QVERIFY(window.isMaximized());
    }

    void keepsItsSizeOnAScreenThatIsLargeEnough()
    {
        MainWindow window;
        const QSize screen = window.screen()->availableSize();
        const QSize size(screen.width(), screen.height() * 9 / 10);
        window.resize(size);
        fitOntoScreen(window);
        QVERIFY(!window.isMaximized());
        QCOMPARE(window.size(), size);
    }

    void aFileDialogIsNoLargerThanTheScreen_data()
    {
        QTest::addColumn<QString>("opener");
        QTest::newRow("open") << "action_Open";
        QTest::newRow("save as") << "action_Save_As";
    }
    void aFileDialogIsNoLargerThanTheScreen()
    {
        QFETCH(QString, opener);
        const QFont font = QApplication::font();
        QFont large = font;
        large.setPixelSize(40);  // with it the dialog asks for more than the screen has
        QApplication::setFont(large);
        WindowFixture w;
        QSize dialogSize;
        w.dialogs.look([&](QWidget& dialog) {
            dialogSize = dialog.size();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.trigger(opener.toLatin1());
        QApplication::setFont(font);
        const QSize screen = w.window.screen()->availableSize();
        QCOMPARE(dialogSize.width(), screen.width());
        QVERIFY(dialogSize.height() < screen.height());
    }

    void theScriptEditorKnowsTheScriptLanguage()
    {
        WindowFixture w;
        auto& editor = w.get<KVQtHighlightEditCtrl>("codeEditor")->editor();
        QCOMPARE(editor.line_comments, (std::set<std::u16string>{u"'", u"#"}));
        QCOMPARE(editor.keywords_class1,
                 (std::set<std::u16string>{u"end", u"if", u"else", u"endif", u"sub", u"endsub",
                                           u"select", u"endselect", u"case", u"default", u"voice",
                                           u"say", u"goto"}));
        QCOMPARE(editor.keywords_class2,
                 (std::set<std::u16string>{u"lang", u"age", u"pitch", u"speed", u"sex"}));
        // Intended: the words of the editor's own rules keep their colours.
        QCOMPARE(editor.keyword_table[u'w'].count(u"while"), size_t(1));
        const auto& options = w.get<KVQtHighlightEditCtrl>("codeEditor")->options();
        QVERIFY(options.show_line_numbers);
        QVERIFY(!options.show_whitespace);
    }
};

QTEST_MAIN(FormTest)
#include "FormTest.moc"
