#include "pdf/TestPage.h"

#include <algorithm>
#include <cctype>

#include "oid/OidPixels.h"
#include "oid/PageGeometry.h"
#include "oid/PrintImage.h"
#include "pdf/BoxDots.h"

namespace {

constexpr double kMargin = 15;  // mm, on upright A4
constexpr double kTableLeft = 60;
constexpr double kTableTop = 84;
constexpr double kAcross = 34;
constexpr double kDown = 17.5;
constexpr int kMostRows = 11;
constexpr int kColumns = 4;
constexpr int kFirstOid = 10000;
constexpr int kUsualDpi = 1200;
constexpr double kSymbolEdge = 20;
constexpr int kLargestTestDot = 4;  // pixels

const char* const kInstructions[] = {
    "English: Print at 100 %, in the best quality, without toner saving. Copy the game file onto "
    "the",
    "pen. Touch START, then the fields: the pen says the name of each field that it can read. "
    "Choose the",
    "row whose fields are all read, and in it the darkest ground; tell Plinkett its name, such as "
    "B3.",
    "Deutsch: Bei 100 % drucken, in bester Qualit\xC3\xA4t, ohne Tonersparen. Die Spieldatei auf "
    "den Stift",
    "kopieren. START ber\xC3\xBChren, dann die Felder: Der Stift nennt jedes Feld, das er lesen "
    "kann. Die Zeile",
    "w\xC3\xA4hlen, die er ganz liest, darin den dunkelsten Grund; Plinkett den Namen nennen, etwa "
    "B3.",
    "Fran\xC3\xA7"
    "ais : Imprimer \xC3\xA0 100 %, en qualit\xC3\xA9 maximale, sans \xC3\xA9"
    "conomie de toner. Copier le fichier de jeu",
    "sur le stylo. Toucher START, puis les champs : le stylo nomme chaque champ qu'il sait lire. "
    "Choisir",
    "la ligne lue en entier et son fond le plus sombre ; donner son nom \xC3\xA0 Plinkett, par "
    "exemple B3.",
    "Nederlands: Druk af op 100 %, in de beste kwaliteit, zonder tonerbesparing. Kopieer het "
    "spelbestand",
    "naar de pen. Raak START aan, dan de velden: de pen noemt elk veld dat hij kan lezen. Kies de "
    "rij die",
    "helemaal gelezen wordt en daarin de donkerste grond; geef Plinkett de naam, bijvoorbeeld B3."};

Ink inkOf(TestField::Ground ground)
{
    switch (ground) {
    case TestField::Ground::grey25:
        return {0, 0, 0, 0.25};
    case TestField::Ground::grey50:
        return {0, 0, 0, 0.5};
    case TestField::Ground::mixedGrey:
        return {0.5, 0.5, 0.5, 0};
    default:
        return {};
    }
}

const char* titleOf(TestField::Ground ground)
{
    switch (ground) {
    case TestField::Ground::grey25:
        return "K 25 %";
    case TestField::Ground::grey50:
        return "K 50 %";
    case TestField::Ground::mixedGrey:
        return "CMY 50 %";
    default:
        return "0 %";
    }
}

int standardDotAt(int dpi)
{
    Oid::PICTURE paper;
    paper.paperWidth = kA4.width;
    paper.paperHeight = kA4.height;
    paper.dpi = dpi;
    PageGeometry page;
    return page.measure(paper) ? oidPixels::standardDot(page.tileSize) : 0;
}

// From the finest to the largest.
std::vector<int> dotSizesAt(int dpi)
{
    const int standard = standardDotAt(dpi);
    std::vector<int> sizes;
    for (int size = 1; size <= std::min(standard, kLargestTestDot); ++size) {
        sizes.push_back(size);
    }
    if (standard > kLargestTestDot) {
        sizes.push_back(standard);
    }
    return sizes;
}

// A resolution's row of the table; only the fields of the first column tell it.
void drawRowTitle(PageDrawing& drawing, const TestField& field)
{
    const QPointF middle = field.place + QPointF(0, kTestFieldEdge / 2);
    drawing.text({kMargin, middle.y()}, std::to_string(field.dpi) + " dpi", 3.5,
                 PageDrawing::Weight::bold);
    const std::string micrometres =
        std::to_string((field.dotSize * 25400 + field.dpi / 2) / field.dpi);
    drawing.text({kMargin, middle.y() + 4.5},
                 std::to_string(field.dotSize) + " x " + std::to_string(field.dotSize) + ", " +
                     micrometres + " \xC2\xB5m",
                 3);
}

void drawField(PageDrawing& drawing, const TestField& field)
{
    const QRectF area(field.place, QSizeF(kTestFieldEdge, kTestFieldEdge));
    drawing.fillWith(inkOf(field.ground));
    drawing.fill(area);
    drawing.strokeWith({0.3, 0.2, 0.2, 0}, 0.15);
    drawing.stroke(area);
    drawing.fillWith(kBlackInk);
    drawing.text({area.right() + 1.5, area.center().y() + 1.5}, field.name, 4,
                 PageDrawing::Weight::bold);
}

void drawTexts(PageDrawing& drawing)
{
    drawing.fillWith(kBlackInk);
    drawing.text({kMargin, kMargin + 4},
                 std::string(kTestName) + "  " + std::to_string(kTestProduct), 5,
                 PageDrawing::Weight::bold);
    double y = kMargin + 12;
    int line = 0;
    for (const char* text : kInstructions) {
        drawing.text({kMargin, y}, text, 2.9);
        y += ++line % 3 == 0 ? 5 : 3.6;
    }
}

// The boxes of one resolution's fields.
std::vector<DottedBox> boxesOf(const std::vector<TestField>& fields, int dpi)
{
    std::vector<DottedBox> boxes;
    for (const TestField& field : fields) {
        if (field.dpi == dpi) {
            boxes.push_back({QRectF(field.place, QSizeF(kTestFieldEdge, kTestFieldEdge)), field.oid,
                             field.dotSize});
        }
    }
    return boxes;
}

void drawStart(PageDrawing& drawing, const QRectF& box)
{
    drawing.strokeWith({0.3, 0.2, 0.2, 0}, 0.15);
    drawing.stroke(box);
    drawing.fillWith(kBlackInk);
    drawing.centred({box.center().x(), box.bottom() + 4}, "START", 3.5, box.width(),
                    PageDrawing::Weight::bold);
}

bool isUsual(const std::vector<int>& resolutions)
{
    return std::find(resolutions.begin(), resolutions.end(), kUsualDpi) != resolutions.end();
}

}  // namespace

const std::vector<int>& usualTestResolutions()
{
    static const std::vector<int> usual{600, 1200};
    return usual;
}

std::vector<TestField> testFields(const std::vector<int>& resolutions)
{
    using Ground = TestField::Ground;
    std::vector<TestField> fields;
    int row = 0;
    for (const int dpi : resolutions) {
        for (const int size : dotSizesAt(dpi)) {
            int column = 0;
            for (const Ground ground :
                 {Ground::white, Ground::grey25, Ground::grey50, Ground::mixedGrey}) {
                TestField field;
                field.name = static_cast<char>('A' + column) + std::to_string(row + 1);
                field.oid = kFirstOid + row * kColumns + column;
                field.dpi = dpi;
                field.dotSize = size;
                field.ground = ground;
                field.place = {kTableLeft + column * kAcross, kTableTop + row * kDown};
                fields.push_back(field);
                ++column;
            }
            ++row;
        }
    }
    return fields;
}

bool fitTestPage(const std::vector<int>& resolutions)
{
    return testFields(resolutions).size() <= static_cast<std::size_t>(kMostRows) * kColumns;
}

std::optional<PrinterSettings> settingsOfField(const std::vector<int>& resolutions,
                                               const std::string& name)
{
    std::string wanted = name;
    for (char& letter : wanted) {
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    }
    for (const TestField& field : testFields(resolutions)) {
        if (field.name == wanted) {
            PrinterSettings printer;
            printer.dpi = field.dpi;
            printer.dotSize = field.dotSize == standardDotAt(field.dpi) ? 0 : field.dotSize;
            printer.noBlack = field.ground == TestField::Ground::mixedGrey;
            return printer;
        }
    }
    return std::nullopt;
}

bool makeTestPage(const std::string& path, const std::vector<int>& resolutions,
                  const PrintJobProgress& progress)
{
    const std::vector<TestField> fields = testFields(resolutions);
    PdfWriter file;
    PageDrawing drawing(kA4.width, kA4.height);
    drawTexts(drawing);
    for (const TestField& field : fields) {
        if (field.ground == TestField::Ground::white) {
            drawRowTitle(drawing, field);
        }
        if (field.place.y() == kTableTop) {
            drawing.centred(field.place + QPointF(kTestFieldEdge / 2, -2), titleOf(field.ground), 3,
                            kAcross);
        }
        drawField(drawing, field);
    }
    const QRectF start(kA4.width - kMargin - kSymbolEdge, 8, kSymbolEdge, kSymbolEdge);
    drawStart(drawing, start);
    int steps = 0;
    const int total = 100 * (static_cast<int>(resolutions.size()) + 1);
    const auto draw = [&](int dpi, const std::vector<DottedBox>& boxes) {
        const int done = 100 * steps++;
        return drawDots(file, drawing, dpi, boxes, [progress, done, total](int percent) {
            if (progress && !progress(done + percent, total)) {
                throw PdfFailure();
            }
        });
    };
    if (!draw(isUsual(resolutions) ? kUsualDpi : resolutions.front(), {{start, kTestProduct, 0}})) {
        return false;
    }
    for (const int dpi : resolutions) {
        if (!draw(dpi, boxesOf(fields, dpi))) {
            return false;
        }
    }
    file.addPage(drawing.page());
    return file.write(path);
}
