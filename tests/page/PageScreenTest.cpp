// What stands on the screen after edits, resizing and scrolling is what a new window shows, and no
// more of it is painted than has to be. Runs on a fine screen, too.
#include "base/PlatformFiles.h"
#include "page/PolyEditorWidget.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QApplication>
#include <QPaintEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <random>

namespace {

using Random = std::mt19937;

int anyOf(Random& random, int count)
{
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

// The page of a document in a window in which it can be scrolled.
class PageWindow
{
public:
    PageWindow(Document& document, QSize size) : editor(new PolyEditorWidget)
    {
        editor->setDocument(&document);
        window.setFrameShape(QFrame::NoFrame);
        // They would come and go, and take of the room that the page has.
        window.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.setWidgetResizable(true);
        window.setWidget(editor);
        resize(size);
    }

    void resize(QSize size)
    {
        window.resize(size);
        window.show();
        rest();
    }

    // The page as many times as wide as the window.
    void zoom(int times)
    {
        window.setWidgetResizable(times == 1);
        if (times > 1) {
            const int width = window.viewport()->width() * times;
            editor->resize(width, editor->heightForWidth(width));
        }
        rest();
    }

    QPoint scrolled() const
    {
        return {window.horizontalScrollBar()->value(), window.verticalScrollBar()->value()};
    }
    void scrollTo(QPoint place)
    {
        window.horizontalScrollBar()->setValue(place.x());
        window.verticalScrollBar()->setValue(place.y());
        rest();
    }

    // As it is in the end.
    QImage screen() const
    {
        while (!editor->isSharp()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        rest();
        return window.screen()->grabWindow(window.winId()).toImage();
    }

    static void rest() { QCoreApplication::processEvents(); }

    QScrollArea window;
    PolyEditorWidget* const editor;  // the window's
};

// A document with pages of noise, some of them transparent, whose areas come in all shapes.
struct Book
{
    explicit Book(unsigned seed) : random(seed)
    {
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().pictures.resize(kPages);
        for (int page = 0; page < kPages; ++page) {
            savePicture(page);
        }
        document.restart();
        for (int i = 0; i < 12; ++i) {
            document.apply(edit::AddArea{0, anyArea()});
        }
    }

    void savePicture(int page)
    {
        const QSize sizes[kPages] = {{300, 500}, {90, 40}};
        const QImage::Format formats[kPages] = {QImage::Format_RGB32, QImage::Format_ARGB32};
        QImage image(sizes[page], formats[page]);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, random() | (page == 0 ? 0xff000000 : 0));
            }
        }
        image.save(
            QString::fromStdString(Platform::nativePath(document.project().pathImageSource(page))),
            "png");
    }

    double anyPercent() { return anyOf(random, 1400) / 10.0 - 20; }
    Oid::PNT anyPoint() { return {anyPercent(), anyPercent()}; }

    Oid::POLY anyArea()
    {
        Oid::POLY area;
        area.name = "area";
        if (anyOf(random, 3) == 0) {
            const Oid::PNT a = anyPoint();
            const Oid::PNT b = anyPoint();
            area.points = {a, {b.x, a.y}, b, {a.x, b.y}};
        } else {
            area.points.resize(static_cast<size_t>(anyOf(random, 8)));
            std::generate(area.points.begin(), area.points.end(), [this] { return anyPoint(); });
        }
        return area;
    }

    AreaId anyAreaThere()
    {
        const int page = document.currentPage();
        const auto count = static_cast<int>(areas().size());
        return count > 0 ? document.areaAt(page, anyOf(random, count)) : AreaId::none;
    }
    const std::vector<Oid::POLY>& areas() const
    {
        return document.project().pictures[static_cast<size_t>(document.currentPage())].polys;
    }

    void changeCorners()
    {
        const AreaId area = anyAreaThere();
        if (area == AreaId::none) {
            return;
        }
        std::vector<Oid::PNT> corners =
            areas()[static_cast<size_t>(document.placeOf(area).index)].points;
        const int at = anyOf(random, static_cast<int>(corners.size()) + 1);
        const auto corner = corners.begin() + at;
        if (at == static_cast<int>(corners.size()) || anyOf(random, 4) == 0) {
            corners.insert(corner, anyPoint());
        } else if (anyOf(random, 4) == 0) {
            corners.erase(corner);
        } else {
            const Oid::PNT by{anyPercent() / 20, anyPercent() / 20};
            *corner = {corner->x + by.x, corner->y + by.y};
        }
        document.apply(edit::SetCorners{area, corners});
    }

    void anyEdit()
    {
        switch (anyOf(random, 12)) {
        case 0:
            document.apply(edit::AddArea{document.currentPage(), anyArea(), anyOf(random, 4)});
            break;
        case 1:
            document.apply(edit::RemoveArea{anyAreaThere()});
            break;
        case 2:
            document.apply(edit::MoveAreas{{anyAreaThere()}, {anyPercent() / 9, 1}});
            break;
        case 3:
            document.apply(edit::ReorderArea{anyAreaThere(), anyOf(random, 5)});
            break;
        case 4:
            document.selectAreas(document.currentPage(), {anyAreaThere(), anyAreaThere()});
            break;
        case 5:
            document.undo();
            break;
        case 6:
            document.redo();
            break;
        default:
            changeCorners();
        }
    }

    static constexpr int kPages = 2;
    Random random;
    TemporaryFolder folder;
    Document document;
};

// How many pixels of a widget are painted from now on.
class PaintedPixels : public QObject
{
public:
    explicit PaintedPixels(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            for (const QRect& rect : static_cast<QPaintEvent*>(event)->region()) {
                count += rect.width() * rect.height();
            }
        }
        return false;
    }

    int count = 0;
};

}  // namespace

class PageScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void afterAnyEditsTheScreenIsThatOfANewWindow()
    {
        for (unsigned seed = 0; seed < 12; ++seed) {
            Book book(seed);
            QSize size(300, 260);
            int zoom = 1;
            PageWindow page(book.document, size);
            for (int step = 0; step < 30; ++step) {
                switch (anyOf(book.random, 12)) {
                case 0:
                    size = QSize(100 + anyOf(book.random, 300), 60 + anyOf(book.random, 300));
                    page.resize(size);
                    break;
                case 1:
                    zoom = 1 + anyOf(book.random, 5);
                    page.zoom(zoom);
                    break;
                case 2:
                    book.document.select(anyOf(book.random, Book::kPages), 0);
                    page.rest();
                    break;
                case 3:
                case 4:
                    page.scrollTo({anyOf(book.random, 500), anyOf(book.random, 900)});
                    break;
                default:
                    for (int i = anyOf(book.random, 4); i >= 0; --i) {
                        book.anyEdit();
                    }
                    page.editor->paintChanges();
                }
                PageWindow fresh(book.document, size);
                fresh.zoom(zoom);
                fresh.editor->resize(page.editor->size());
                fresh.scrollTo(page.scrolled());
                QCOMPARE(fresh.scrolled(), page.scrolled());
                const QImage shown = page.screen();
                QVERIFY(!shown.isNull());
                QVERIFY2(shown == fresh.screen(),
                         qPrintable(QString("seed %1, step %2").arg(seed).arg(step)));
            }
        }
    }

    void manyAreasMovedAtOnceLookAsInANewWindow()
    {
        Book book(2);
        for (int i = 0; i < 60; ++i) {
            book.document.apply(edit::AddArea{0, book.anyArea()});
        }
        PageWindow page(book.document, {300, 260});
        std::vector<AreaId> all;
        for (int i = 0; i < 72; ++i) {
            all.push_back(book.document.areaAt(0, i));
        }
        for (int step = 0; step < 4; ++step) {
            book.document.apply(edit::MoveAreas{all, {3.0 - step, 2}});
            page.editor->paintChanges();
            const PageWindow fresh(book.document, {300, 260});
            QVERIFY2(page.screen() == fresh.screen(), qPrintable(QString::number(step)));
        }
    }

    void aDraggedCornerPaintsItsWayAndNotItsArea()
    {
        Book book(1);
        PageWindow page(book.document, {1000, 800});
        Oid::POLY large;
        large.points = {{5, 5}, {90, 5}, {90, 70}, {5, 70}};
        book.document.apply(edit::AddArea{0, large});
        page.rest();
        PaintedPixels painted(*page.editor);
        large.points[2] = {90.5, 70.5};
        book.document.apply(edit::SetCorners{book.document.areaAt(0, 12), large.points});
        page.editor->paintChanges();
        QVERIFY(painted.count > 100);
        QVERIFY(painted.count < 60000);  // of 550,000 within the area
    }

    void whatDoesNotLookDifferentIsNotPainted()
    {
        Book book(1);
        PageWindow page(book.document, {400, 300});
        PaintedPixels painted(*page.editor);
        book.document.apply(edit::RenameArea{book.document.areaAt(0, 3), "cow"});
        book.document.apply(edit::SetNumber{book.document.areaAt(0, 3), 4711});
        book.document.apply(edit::SetPaper{0, 100, 100, 300});
        page.editor->paintChanges();
        page.rest();
        QCOMPARE(painted.count, 0);
    }
};

QTEST_MAIN(PageScreenTest)
#include "PageScreenTest.moc"
