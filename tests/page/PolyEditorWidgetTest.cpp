// The picture with its areas: coordinates, clicks, and what is painted.
#include "page/PolyEditorWidget.h"
#include "page/PageTool.h"
#include "tests/helpers/PaintCounter.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(Oid::PNT)

namespace {

// A widget of 200 x 160 pixels over a project with one picture of one colour, 100 x 50 pixels.
struct Shown
{
    explicit Shown(const std::vector<Oid::POLY>& areas = {}, bool withFile = true)
    {
        project.projectPath = folder.file("book.oidpro");
        project.pictures.emplace_back().polys = areas;
        if (withFile) {
            savePicture(0, QColor(255, 255, 255));
        }
        document.restart();
        widget.setDocument(&document);
        widget.resize(200, 160);
    }

    void savePicture(int n, QColor color)
    {
        QImage image(100, 50, QImage::Format_RGB32);
        image.fill(color);
        image.save(QString::fromStdString(folder.file("900-bkgnd" + std::to_string(n) + ".jpg")));
    }

    QImage picture()
    {
        QImage shot(widget.size(), QImage::Format_RGB32);
        shot.fill(QColor(1, 2, 3));  // what shows where nothing is painted
        widget.render(&shot, {}, {}, {});
        return shot;
    }
    QColor pixel(int x, int y) { return picture().pixelColor(x, y); }

    TemporaryFolder folder;
    Document document;
    Oid::OidProject& project = document.projectRecord();
    PolyEditorWidget widget;
};

Oid::POLY square(const char* name, double left, double top, double size)
{
    Oid::POLY area;
    area.name = name;
    area.points = {{left, top}, {left + size, top}, {left + size, top + size}, {left, top + size}};
    return area;
}

// Writes down what it gets, takes one key and, when it is greedy, all that it is offered.
class NotingTool : public PageTool
{
public:
    using PageTool::PageTool;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }
    void press(const PageMouse& mouse) override { note("press", mouse); }
    void move(const PageMouse& mouse) override { note("move", mouse); }
    bool release(const PageMouse& mouse) override
    {
        note("release", mouse);
        return greedy;
    }
    bool doubleClick(const PageMouse& mouse) override
    {
        note("double click", mouse);
        return greedy;
    }
    bool rightClick(const PageMouse& mouse) override
    {
        note("right click", mouse);
        return greedy;
    }
    void leave() override { notes << "leave"; }
    void stop() override { notes << "stop"; }
    bool giveUp() override
    {
        notes << "give up";
        return greedy;
    }
    void click(const Oid::PNT& /*at*/) override { notes << "click"; }
    bool key(const QKeyEvent& event, const PageView& /*view*/) override
    {
        if (event.key() == Qt::Key_Escape) {
            notes << "key " + QString::number(event.key(), 16);
        }
        return event.key() == Qt::Key_Escape;
    }

    QStringList notes;
    bool greedy = false;

private:
    void note(const char* what, const PageMouse& mouse)
    {
        notes << QString("%1 %2 %3 button %4 of %5 keys %6")
                     .arg(what)
                     .arg(mouse.at.x)
                     .arg(mouse.at.y)
                     .arg(mouse.button)
                     .arg(static_cast<int>(mouse.buttons))
                     .arg(static_cast<int>(mouse.modifiers), 0, 16);
    }
};

// Shows one line.
class MarkingTool : public PageTool
{
public:
    using PageTool::PageTool;
    Qt::CursorShape cursor() const override { return Qt::ArrowCursor; }
    void click(const Oid::PNT& /*at*/) override {}
    PageMarks marks(const PageView& /*view*/, const QRect& /*seen*/) const override
    {
        PageMarks shown;
        shown.add(PageMark::line, {QVector<QPoint>{begin, end}});
        return shown;
    }

    QPoint begin{10, 10};
    QPoint end{190, 10};
};

// What of a widget is painted from now on.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion region;
};

void menu(QWidget& widget, QContextMenuEvent::Reason reason, QPoint at)
{
    QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &event);
}

// But for what nobody sees.
bool looksLike(const QImage& a, const QImage& b)
{
    constexpr int kUnseen = 2;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < a.width() * 4; ++i) {
            if (std::abs(a.constScanLine(y)[i] - b.constScanLine(y)[i]) > kUnseen) {
                return false;
            }
        }
    }
    return a.size() == b.size();
}

}  // namespace

class PolyEditorWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void startsWithoutAProject()
    {
        const PolyEditorWidget widget;
        QCOMPARE(widget.picture(), nullptr);
        QCOMPARE(widget.currentPicture(), 0);
        QCOMPARE(widget.selectedPoly(), -1);
        QCOMPARE(widget.loadedPath, std::string());
    }

    void hasNoPictureForAnIndexThatTheProjectDoesNotHave()
    {
        Shown shown;
        QCOMPARE(shown.widget.picture(), &shown.project.pictures[0]);
        shown.document.select(-1, shown.document.selectedIndex());
        QCOMPARE(shown.widget.picture(), nullptr);
        shown.document.select(1, shown.document.selectedIndex());
        QCOMPARE(shown.widget.picture(), nullptr);
    }

    void pointsAreInPercentOfTheWidthForBothAxes()
    {
        const Shown shown;
        const Oid::PNT point = shown.widget.toProz({50, 150});
        QCOMPARE(point.x, 25.0);
        QCOMPARE(point.y, 75.0);
        QCOMPARE(shown.widget.toPix({25, 75}), QPoint(50, 150));
    }

    void pixelsAreTruncatedTowardZero()
    {
        const Shown shown;
        QCOMPARE(shown.widget.toPix({25.49, -25.49}), QPoint(50, -50));
    }

    void aWidgetWithoutAreaHasOnlyTheOrigin()
    {
        Shown shown;
        shown.widget.resize(0, 0);
        QCOMPARE(shown.widget.toPix({25, 75}), QPoint(0, 0));
        QCOMPARE(shown.widget.toProz({50, 150}).x, 0.0);
    }

    void onlyTheReleaseOfTheLeftButtonIsAClick()
    {
        qRegisterMetaType<Oid::PNT>();
        Shown shown;
        QSignalSpy clicks(&shown.widget, &PolyEditorWidget::clickedLB);
        QTest::mousePress(&shown.widget, Qt::LeftButton, Qt::NoModifier, {50, 40});
        QCOMPARE(clicks.count(), 0);
        QTest::mouseRelease(&shown.widget, Qt::LeftButton, Qt::NoModifier, {100, 80});
        QCOMPARE(clicks.count(), 1);
        const Oid::PNT point = clicks[0][0].value<Oid::PNT>();
        QCOMPARE(point.x, 50.0);
        QCOMPARE(point.y, 40.0);
        QTest::mouseClick(&shown.widget, Qt::RightButton, Qt::NoModifier, {100, 80});
        QCOMPARE(clicks.count(), 1);
    }

    void aClickBetweenPixelsIsAtTheNearestOne()
    {
        qRegisterMetaType<Oid::PNT>();
        Shown shown;
        QSignalSpy clicks(&shown.widget, &PolyEditorWidget::clickedLB);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(99.6, 80.4), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&shown.widget, &release);
        const Oid::PNT point = clicks[0][0].value<Oid::PNT>();
        QCOMPARE(point.x, 50.0);
        QCOMPARE(point.y, 40.0);
    }

    void theToolGetsWhatTheMouseDoesInPercent()
    {
        Shown shown;
        NotingTool tool(shown.document);
        shown.widget.setTool(&tool);
        QCOMPARE(shown.widget.cursor().shape(), Qt::CrossCursor);
        QTest::mousePress(&shown.widget, Qt::RightButton, Qt::ShiftModifier, {50, 40});
        QMouseEvent move(QEvent::MouseMove, QPointF(99.6, 80.4), Qt::NoButton, Qt::LeftButton,
                         Qt::ControlModifier);
        QCoreApplication::sendEvent(&shown.widget, &move);
        QTest::mouseRelease(&shown.widget, Qt::LeftButton, Qt::NoModifier, {100, 100});
        QCOMPARE(tool.notes, QStringList({"right click 25 20 button 2 of 2 keys 2000000",
                                          "press 25 20 button 2 of 2 keys 2000000",
                                          "move 50 40 button 0 of 1 keys 4000000",
                                          "release 50 50 button 1 of 0 keys 0"}));
    }

    void theToolGetsTheKeysThatItTakes()
    {
        Shown shown;
        NotingTool tool(shown.document);
        shown.widget.setTool(&tool);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QKeyEvent other(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(&shown.widget, &escape);
        QCoreApplication::sendEvent(&shown.widget, &other);
        QCOMPARE(tool.notes, QStringList({"give up", "key 1000000"}));
        QVERIFY(escape.isAccepted());
        QVERIFY(!other.isAccepted());
    }

    void escapeGivesUpBeforeItIsAKey()
    {
        Shown shown;
        NotingTool tool(shown.document);
        tool.greedy = true;
        shown.widget.setTool(&tool);
        QTest::keyClick(&shown.widget, Qt::Key_Escape);
        QCOMPARE(tool.notes, QStringList({"give up"}));
    }

    void theToolSeesTheMouseWithoutAButtonAndItsLeaving()
    {
        Shown shown;
        NotingTool tool(shown.document);
        shown.widget.setTool(&tool);
        QVERIFY(shown.widget.hasMouseTracking());
        QMouseEvent move(QEvent::MouseMove, QPointF(50, 40), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&shown.widget, &move);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&shown.widget, &leave);
        QCOMPARE(tool.notes, QStringList({"move 25 20 button 0 of 0 keys 0", "leave"}));
    }

    void aToolIsStoppedWhenAnotherOneComes()
    {
        Shown shown;
        NotingTool tool(shown.document);
        MarkingTool other(shown.document);
        shown.widget.setTool(&tool);
        shown.widget.setTool(&tool);
        QCOMPARE(tool.notes, QStringList());
        shown.widget.setTool(&other);
        QCOMPARE(tool.notes, QStringList({"stop"}));
    }

    void theReleaseThatEndsADragIsNoClickForTheTool()
    {
        Shown shown;
        NotingTool tool(shown.document);
        shown.widget.setTool(&tool);
        QVector<bool> clicks;
        connect(&shown.widget, &PolyEditorWidget::clickedLB,
                [&] { clicks << shown.widget.isClick(); });
        QTest::mouseClick(&shown.widget, Qt::LeftButton, Qt::NoModifier, {50, 40});
        tool.greedy = true;
        QTest::mouseClick(&shown.widget, Qt::LeftButton, Qt::NoModifier, {50, 40});
        tool.greedy = false;
        QTest::mouseClick(&shown.widget, Qt::LeftButton, Qt::NoModifier, {50, 40});
        QCOMPARE(clicks, QVector<bool>({true, false, true}));
    }

    void aDoubleClickIsTheToolsOrASecondClick()
    {
        Shown shown;
        NotingTool tool(shown.document);
        shown.widget.setTool(&tool);
        QVector<bool> clicks;
        connect(&shown.widget, &PolyEditorWidget::clickedLB,
                [&] { clicks << shown.widget.isClick(); });
        const auto doubleClick = [&](bool greedy) {
            tool.notes.clear();
            tool.greedy = greedy;
            QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(50, 40), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&shown.widget, &event);
            tool.greedy = false;
            QTest::mouseRelease(&shown.widget, Qt::LeftButton, Qt::NoModifier, {50, 40});
        };
        doubleClick(true);
        QCOMPARE(tool.notes, QStringList({"double click 25 20 button 1 of 1 keys 0",
                                          "release 25 20 button 1 of 0 keys 0"}));
        doubleClick(false);
        QCOMPARE(tool.notes, QStringList({"double click 25 20 button 1 of 1 keys 0",
                                          "press 25 20 button 1 of 1 keys 0",
                                          "release 25 20 button 1 of 0 keys 0"}));
        QCOMPARE(clicks, QVector<bool>({false, true}));
    }

    void aRightClickIsTheToolsOrAsksForAMenu()
    {
        Shown shown;
        NotingTool tool(shown.document);
        shown.widget.setTool(&tool);
        std::vector<std::optional<Oid::PNT>> menus;
        connect(&shown.widget, &PolyEditorWidget::menuWanted,
                [&](QPoint /*place*/, const std::optional<Oid::PNT>& at) { menus.push_back(at); });
        tool.greedy = true;
        QTest::mousePress(&shown.widget, Qt::RightButton, Qt::NoModifier, {50, 40});
        menu(shown.widget, QContextMenuEvent::Mouse, {50, 40});
        QCOMPARE(tool.notes, QStringList({"right click 25 20 button 2 of 2 keys 0"}));
        QCOMPARE(menus.size(), std::size_t(0));
        tool.greedy = false;
        QTest::mousePress(&shown.widget, Qt::RightButton, Qt::NoModifier, {50, 40});
        menu(shown.widget, QContextMenuEvent::Mouse, {50, 40});
        menu(shown.widget, QContextMenuEvent::Keyboard, {0, 0});
        QCOMPARE(menus.size(), std::size_t(2));
        QCOMPARE(menus[0]->x, 25.0);
        QCOMPARE(menus[0]->y, 20.0);
        QVERIFY(!menus[1]);
    }

    void whatAToolShowsLiesOverThePage()
    {
        Shown shown({square("cow", 0, 0, 40)});
        MarkingTool tool(shown.document);
        shown.widget.setTool(&tool);
        const QImage marked = shown.picture();
        tool.end = tool.begin;
        shown.widget.showTool();
        const QImage plain = shown.picture();
        for (int x = 20; x < 78; ++x) {
            QVERIFY(marked.pixel(x, 10) != plain.pixel(x, 10));
        }
        QCOMPARE(marked.pixel(50, 13), plain.pixel(50, 13));
    }

    void ofWhatAToolShowsOnlyTheChangeIsPainted()
    {
        Shown shown;
        MarkingTool tool(shown.document);
        shown.widget.setTool(&tool);
        shown.widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shown.widget));
        QCoreApplication::processEvents();
        const PaintedRegion painted(shown.widget);
        shown.widget.showTool();
        QCoreApplication::processEvents();
        QVERIFY(painted.region.isEmpty());
        tool.end = {190, 90};
        shown.widget.showTool();
        QCoreApplication::processEvents();
        QVERIFY(painted.region.contains(QRect(10, 10, 180, 1)));
        QVERIFY(painted.region.contains(QPoint(189, 89)));
        QVERIFY(painted.region.contains(QPoint(100, 50)));
        QVERIFY(!painted.region.contains(QPoint(20, 60)));
        QVERIFY(!painted.region.contains(QPoint(180, 40)));
    }

    void allSelectedAreasAreRed()
    {
        Shown shown({square("cow", 5, 5, 10), square("hen", 25, 5, 10), square("pig", 45, 5, 10)});
        shown.document.selectAreas(0, {shown.document.areaAt(0, 2), shown.document.areaAt(0, 0)});
        QCOMPARE(shown.pixel(10, 20), QColor(255, 32, 32));
        QCOMPARE(shown.pixel(50, 20), QColor(32, 96, 255));
        QCOMPARE(shown.pixel(90, 20), QColor(255, 32, 32));
        shown.document.select(0, 0);
        QCOMPARE(shown.pixel(90, 20), QColor(32, 96, 255));
    }

    void aPageMayLieAnywhere()
    {
        const PageView view{400, {10, -20}};
        QCOMPARE(view.toPixel({25, 50}), QPoint(110, 180));
        const Oid::PNT point = view.toPercent({110, 180});
        QCOMPARE(point.x, 25.0);
        QCOMPARE(point.y, 50.0);
    }

    void thePictureTakesTheFullWidthAndKeepsItsShape()
    {
        Shown shown;
        QCOMPARE(shown.pixel(199, 99), QColor(255, 255, 255));
        QCOMPARE(shown.pixel(100, 100), QColor(255, 255, 255));  // one row more than the shape
        QCOMPARE(shown.pixel(100, 101), QColor(1, 2, 3));
    }

    // Scaled to the width it would have billions of pixels; only what is seen is painted.
    void aPictureLikeAThreadIsShown()
    {
        Shown shown;
        QImage image(2, 60000, QImage::Format_RGB32);
        image.fill(QColor(0, 0, 0));
        image.save(QString::fromStdString(shown.folder.file("900-bkgnd0.jpg")));
        QCOMPARE(shown.pixel(100, 159), QColor(0, 0, 0));
    }

    void nothingIsPaintedWithoutAPicture()
    {
        Shown shown;
        shown.document.select(7, shown.document.selectedIndex());
        QCOMPARE(shown.pixel(5, 5), QColor(1, 2, 3));
    }

    void aMissingPictureShowsThePlaceholder()
    {
        Shown shown({}, false);
        QCOMPARE(shown.pixel(180, 20), QColor(200, 255, 255));
        QVERIFY(shown.pixel(100, 66) != QColor(200, 255, 255));  // the line across
    }

    void thePlaceholderSaysThatNoImageIsLoaded()
    {
        QImage expected(150, 100, QImage::Format_RGB32);
        expected.fill(QColor(200, 255, 255));
        QPainter painter(&expected);
        painter.drawText(10, 10, "NO IMAGE LOADED");
        painter.drawLine(0, 0, 150, 100);
        painter.end();

        Shown shown({}, false);
        shown.widget.resize(150, 101);
        // One row more than the shape.
        QVERIFY(looksLike(shown.picture(), expected.scaled(150, 101, Qt::IgnoreAspectRatio,
                                                           Qt::SmoothTransformation)));
    }

    void aFileIsShownWhereverItLies()
    {
        Shown shown;
        shown.savePicture(7, QColor(0, 0, 0));
        QCOMPARE(shown.pixel(100, 50), QColor(255, 255, 255));
        shown.widget.loadImage(QString::fromStdString(shown.folder.file("900-bkgnd7.jpg")));
        QCOMPARE(shown.pixel(100, 50), QColor(0, 0, 0));
        shown.widget.clearImage();
        QCOMPARE(shown.pixel(180, 20), QColor(200, 255, 255));
    }

    void aLoadedFileIsPaintedAtOnce()
    {
        Shown shown;
        shown.widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shown.widget));
        const PaintCounter paints(shown.widget);
        shown.widget.loadImage("no such file");
        QCOMPARE(paints.count, 1);
    }

    void thePictureIsReadOnceUntilItsPathChanges()
    {
        Shown shown;
        QCOMPARE(shown.pixel(100, 50), QColor(255, 255, 255));
        shown.savePicture(0, QColor(0, 0, 0));
        QCOMPARE(shown.pixel(100, 50), QColor(255, 255, 255));
        shown.widget.loadedPath.clear();
        QCOMPARE(shown.pixel(100, 50), QColor(0, 0, 0));
    }

    void anotherPictureIsShownWhenTheIndexChanges()
    {
        Shown shown;
        shown.document.apply(edit::AddPage{});
        shown.savePicture(1, QColor(0, 0, 0));
        QCOMPARE(shown.pixel(100, 50), QColor(255, 255, 255));
        shown.document.select(1, shown.document.selectedIndex());
        QCOMPARE(shown.pixel(100, 50), QColor(0, 0, 0));
    }

    void areasAreOutlinedAndTheSelectedOneIsRed()
    {
        Shown shown({square("cow", 5, 5, 10), square("hen", 25, 5, 10)});
        shown.document.select(shown.document.currentPage(), 1);
        QCOMPARE(shown.pixel(10, 20), QColor(32, 96, 255));
        QCOMPARE(shown.pixel(20, 20), QColor(191, 255, 240));  // a quarter of (0, 255, 196)
        QCOMPARE(shown.pixel(50, 20), QColor(255, 32, 32));
        QCOMPARE(shown.pixel(60, 20), QColor(255, 199, 199));
    }

    void anAreaOfOneOrTwoPointsIsADotOrALine()
    {
        Oid::POLY line;
        line.points = {{10, 10}, {40, 10}};
        Oid::POLY dot;
        dot.points = {{60, 30}};
        Shown shown({line, dot, Oid::POLY()});
        QCOMPARE(shown.pixel(50, 20), QColor(32, 96, 255));
        QCOMPARE(shown.pixel(120, 60), QColor(32, 96, 255));
    }

    void whatAnOutlineGoesRoundTwiceIsNotFilled()
    {
        Oid::POLY twice = square("cow", 10, 10, 10);
        const std::vector<Oid::PNT> once = twice.points;
        twice.points.insert(twice.points.end(), once.begin(), once.end());
        Shown shown({twice});
        QCOMPARE(shown.pixel(30, 30), QColor(255, 255, 255));
        QCOMPARE(shown.pixel(20, 30), QColor(32, 96, 255));
    }

    // A picture may be lower than the tab, or its file may be missing.
    void anAreaIsAlsoPaintedBelowThePicture()
    {
        Shown shown(
            {square("cow", 10, 40, 20), square("hen", 40, 60, 10), square("pig", 60, 5, 10)});
        const QColor free(1, 2, 3);
        const QColor area(1, 65, 51);  // a quarter of its colour on what is there
        QCOMPARE(shown.pixel(30, 90), QColor(191, 255, 240));
        QCOMPARE(shown.pixel(30, 110), area);
        QCOMPARE(shown.pixel(30, 119), area);
        QCOMPARE(shown.pixel(20, 110), QColor(32, 96, 255));
        QCOMPARE(shown.pixel(90, 130), area);
        QCOMPARE(shown.pixel(130, 130), free);
        shown.document.select(shown.document.currentPage(), 1);
        QCOMPARE(shown.pixel(90, 130), QColor(65, 9, 10));
        QCOMPARE(shown.pixel(30, 110), area);
    }

    // What has been painted before is kept, but not for longer than it is true.
    void everyChangeOfTheAreasIsPainted()
    {
        const QColor paper(255, 255, 255);
        const QColor area(191, 255, 240);  // a quarter of its colour on white
        Shown shown({square("cow", 10, 10, 10)});
        QCOMPARE(shown.pixel(30, 30), area);
        shown.document.select(shown.document.currentPage(), 0);
        QCOMPARE(shown.pixel(30, 30), QColor(255, 199, 199));
        shown.document.select(shown.document.currentPage(), -1);
        QCOMPARE(shown.pixel(30, 30), area);

        QCOMPARE(shown.pixel(70, 30), paper);
        shown.document.apply(edit::AddArea{0, square("pig", 30, 10, 10)});
        QCOMPARE(shown.pixel(70, 30), area);
        shown.document.apply(edit::SetCorners{shown.document.areaAt(0, 1),
                                              {{35, 20}, {40, 10}, {40, 20}, {30, 20}}});
        QCOMPARE(shown.pixel(62, 21), paper);
        shown.document.apply(edit::RemoveArea{shown.document.areaAt(0, 1)});
        QCOMPARE(shown.pixel(70, 30), paper);

        shown.widget.resize(400, 320);
        QCOMPARE(shown.pixel(30, 30), paper);
        QCOMPARE(shown.pixel(60, 60), area);
        shown.savePicture(0, QColor(0, 0, 0));
        shown.widget.loadedPath.clear();
        QCOMPARE(shown.pixel(60, 60), QColor(0, 64, 49));
    }

    void areasFarOutsideThePictureDoNoHarm()
    {
        Shown shown({square("far", -1e300, -1e300, 1e300)});
        QCOMPARE(shown.pixel(100, 50), QColor(255, 255, 255));
    }
};

QTEST_MAIN(PolyEditorWidgetTest)
#include "PolyEditorWidgetTest.moc"
