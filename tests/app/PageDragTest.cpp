// Pages are dragged in their list with a real mouse on a real screen.
#include "tests/app/DrivenProgram.h"
#include "tests/app/OwnScreen.h"

#include <QtTest>

namespace {

constexpr QSize kWide(1200, 900);  // with room for the lists
constexpr int kPages = 3;

}  // namespace

class PageDragTest : public QObject
{
    Q_OBJECT

public:
    explicit PageDragTest(const XDisplay& screen) : display(screen) {}

private slots:
    void init()
    {
        std::string book = "\xEF\xBB\xBFPRODUCT 905, \"Farm\"\r\n";
        pictures.clear();
        for (int page = 0; page < kPages; ++page) {
            QImage image(100 + page * 100, 100, QImage::Format_RGB32);
            image.fill(Qt::white);
            image.save(QString::fromStdString(picture(page)));
            pictures.push_back(readFile(picture(page)));
            book += "IMAGE\r\nPAPER 100.0 100.0\r\nDPI   600\r\nPOLY area" + std::to_string(page) +
                    "\r\n    10 10\r\n    50 10\r\n    50 50\r\nEND\r\n\r\n";
        }
        writeFile(folder.file("farm.oidpro"), book + "SCRIPT\r\n");
    }

    void aPageIsDraggedBelowTheOthersAndBack()
    {
        try {
            DrivenProgram program(display, QString::fromStdString(folder.path()), kWide,
                                  {"farm.oidpro"});
            program.showTab("tabAreas");
            const std::string before = saved(program, "");
            const QRect list = program.placeOf("pageList");
            const QPoint first(list.left() + 40, list.top() + 40);
            const QPoint below(list.left() + 40, list.bottom() - 8);

            program.drag(first, below, [this] { return areInOrder({1, 2, 0}); });
            const std::string after = saved(program, before);
            QVERIFY(after.find("area1") < after.find("area2"));
            QVERIFY(after.find("area2") < after.find("area0"));

            program.press("ctrl+z");
            waitUntil([this] { return areInOrder({0, 1, 2}); }, "the first order");
            QCOMPARE(saved(program, after), before);
            program.press("ctrl+shift+z");
            waitUntil([this] { return areInOrder({1, 2, 0}); }, "the new order");
            QCOMPARE(saved(program, before), after);
            program.quit();
        } catch (const std::exception& failure) {
            QFAIL(failure.what());
        }
    }

private:
    std::string picture(int page) const
    {
        return folder.file("905-bkgnd" + std::to_string(page) + ".jpg");
    }

    // Whether the pages have the first pictures in this order.
    bool areInOrder(const std::vector<int>& order) const
    {
        for (int page = 0; page < kPages; ++page) {
            const auto was = static_cast<std::size_t>(order[static_cast<std::size_t>(page)]);
            if (fileNow(picture(page)) != pictures[was]) {
                return false;
            }
        }
        return true;
    }

    // The project file, when it is another one than before.
    std::string saved(DrivenProgram& program, const std::string& before) const
    {
        const std::string path = folder.file("farm.oidpro");
        const std::string old = before.empty() ? fileNow(path) : before;
        program.press("ctrl+s");
        std::string now;
        waitUntil(
            [&] {
                now = fileNow(path);
                return now != old && !now.empty();
            },
            "the saved project");
        return now;
    }

    const XDisplay& display;
    TemporaryFolder folder;
    std::vector<std::string> pictures;
};

int main(int argc, char* argv[])
{
    return runOnItsScreen(argc, argv, [](const XDisplay& display) {
        return std::make_unique<PageDragTest>(display);
    });
}

#include "PageDragTest.moc"
