// Measures print images against the plain way of making them, everything side by side in each run,
// and prints one table of medians:  print_bench [RUNS]   (5 by default)

#include <omp.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <map>

#include "base/PlatformFiles.h"
#include "bench/MeasuredProcess.h"
#include "bench/PrintBenchBook.h"
#include "bench/PrintWays.h"
#include "oid/PrintImage.h"

namespace {

constexpr int kSampledRows = 24;  // of the per-pixel test
constexpr int kDotRepeats = 20;   // within a run: milliseconds each
constexpr double kMegabyte = 1e6;

// The medians of all measurements, by name.
class Measurements
{
public:
    void add(const std::string& name, double value) { values[name].push_back(value); }

    double operator[](const std::string& name) const
    {
        std::vector<double> sorted = values.at(name);
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2];
    }

    // Wall time under the name, and the processor time of all threads under "name cpu".
    void time(const std::string& name, const std::function<void()>& work)
    {
        const std::clock_t processor = std::clock();
        const auto wall = std::chrono::steady_clock::now();
        work();
        add(name, std::chrono::duration<double>(std::chrono::steady_clock::now() - wall).count());
        add(name + " cpu", static_cast<double>(std::clock() - processor) / CLOCKS_PER_SEC);
    }

private:
    std::map<std::string, std::vector<double>> values;
};

// The pages in memory.
struct Pages
{
    Pages(const std::string& folder, const std::string& photo)
        : one(folder + "/areas1", 1, photo),
          fifty(folder + "/areas50", 50, photo),
          twoHundred(folder + "/areas200", 200, photo)
    {}

    BenchPage one;
    BenchPage fifty;
    BenchPage twoHundred;
};

void measureDots(const std::string& name, BenchPage& page, Measurements& measured)
{
    for (int i = 0; i < kDotRepeats; ++i) {
        measured.time("dots " + name, [&] { printDots(page); });
    }
    // The same on one thread: its processor time tells what areas cost, whoever else is busy.
    const int threads = omp_get_max_threads();
    omp_set_num_threads(1);
    for (int i = 0; i < kDotRepeats; ++i) {
        measured.time("single dots " + name, [&] { printDots(page); });
    }
    omp_set_num_threads(threads);
    measured.time("per pixel " + name, [&] { printDotsPixelByPixel(page, kSampledRows); });
}

void measurePages(Pages& pages, const QString& plainFile, Measurements& measured)
{
    BenchPage& page = pages.twoHundred;
    measured.time("plain", [&] { printPlainly(page, plainFile); });
    measured.add("plain size", static_cast<double>(QFileInfo(plainFile).size()));
    QFile::remove(plainFile);
    measured.time("no dots", [&] { printPageWithoutDots(page); });
    measured.time("page", [&] { printPage(page); });
    measured.add("page size", static_cast<double>(QFileInfo(page.printFile).size()));
    const BusyProcess beside;
    measured.time("busy page", [&] { printPage(page); });
}

// The projects that plinkett-cli prints while its memory is watched, by name.
using Books = std::map<std::string, QString>;

Books makeBooks(const std::string& folder, const std::string& photo)
{
    Books books;
    const auto make = [&](const std::string& name, const std::vector<Oid::PICTURE>& pictures) {
        Platform::createDirectory(folder + "/" + name);
        books[name] =
            QString::fromStdString(benchProject(folder + "/" + name, pictures, photo).projectPath);
    };
    Oid::PICTURE tall = benchPicture(200);
    tall.paperHeight *= 2;
    Oid::PICTURE fine = benchPicture(200);
    fine.dpi *= 2;
    make("page", {benchPicture(200)});
    make("tall", {tall});
    make("fine", {fine});
    make("twenty", std::vector<Oid::PICTURE>(20, benchPicture(200)));
    return books;
}

void measureMemory(const Books& books, Measurements& measured)
{
    for (const auto& [name, projectFile] : books) {
        measured.add("memory " + name,
                     peakMemoryOf(PLINKETT_BIN_DIR "/plinkett-cli", {"print", projectFile}));
    }
}

// The page as plinkett-cli makes it: a PDF, and the TIFF beside it.
void measurePdf(const Books& books, const QString& pdfFile, Measurements& measured)
{
    const QString& book = books.at("page");
    const auto run = [&](const std::string& name, const QStringList& words) {
        double memory = 0;
        measured.time(name,
                      [&] { memory = peakMemoryOf(PLINKETT_BIN_DIR "/plinkett-cli", words); });
        measured.add(name + " memory", memory);
    };
    run("tiff", {"print", book});
    run("pdf", {"pdf", "--no-symbols", "-o", pdfFile, book});
    measured.add("pdf size", static_cast<double>(QFileInfo(pdfFile).size()));
    run("pdf with symbols", {"pdf", "--symbols", "-o", pdfFile, book});
}

void printRow(const char* what, const std::string& value, const std::string& other, double ratio,
              const char* limit)
{
    std::printf("| %s | %s | %s | %.3g | %s |\n", what, value.c_str(), other.c_str(), ratio, limit);
}

std::string text(const char* format, double value)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

std::string seconds(double value)
{
    return text("%.4f s", value);
}

std::string megabytes(double bytes)
{
    return text("%.1f MB", bytes / kMegabyte);
}

void printDotRows(const Measurements& measured, const PageGeometry& page)
{
    const double rowsPerSample = static_cast<double>(page.height) / kSampledRows;
    for (const char* areas : {"50", "200"}) {
        const double dots = measured[std::string("dots ") + areas];
        const double perPixel = measured[std::string("per pixel ") + areas] * rowsPerSample;
        const std::string what = std::string("dots of ") + areas + " areas, per-pixel test";
        printRow(what.c_str(), seconds(dots), seconds(perPixel), perPixel / dots,
                 areas[0] == '5' ? "at least 300" : "at least 500");
    }
    const double many = measured["single dots 200 cpu"];
    const double one = measured["single dots 1 cpu"];
    printRow("processor time of the dots of 200 areas, of 1 area (one thread)", seconds(many),
             seconds(one), many / one, "at most 2");
}

void printPageRows(const Measurements& measured)
{
    const auto row = [&](const char* what, const char* value, const char* other, const char* limit,
                         std::string (*format)(double)) {
        printRow(what, format(measured[value]), format(measured[other]),
                 measured[value] / measured[other], limit);
    };
    row("whole page with 200 areas, plain way without dots", "page", "plain", "at most 0.8",
        seconds);
    row("its file, the plain way's file", "page size", "plain size", "at most 0.3", megabytes);
    row("processor time with 200 areas, without dots", "page cpu", "no dots cpu", "at most 1.35",
        seconds);
    row("beside one busy process, idle", "busy page", "page", "at most 2.5", seconds);
}

void printMemoryRows(const Measurements& measured, const PageGeometry& page)
{
    const double canvas = 4.0 * page.width * page.height;
    const double peak = measured["memory page"];
    printRow("peak memory of `plinkett-cli print`, one 32-bit canvas", megabytes(peak),
             megabytes(canvas), peak / canvas, "at most 0.15");
    const auto row = [&](const char* what, const char* name, const char* limit) {
        printRow(what, megabytes(measured[name]), megabytes(peak), measured[name] / peak, limit);
    };
    row("peak memory of a page twice as tall, of the page", "memory tall", "about 1");
    row("peak memory at 2400 DPI (4 times the pixels), of the page", "memory fine", "at most 2");
    row("peak memory of 20 pages (their tiles stay), of the page", "memory twenty", "about 1");
}

void printPdfRows(const Measurements& measured, const PageGeometry& page, double photo)
{
    const double canvas = 4.0 * page.width * page.height;
    const double allowed = 1.2 * photo + 1.5 * kMegabyte;
    const double size = measured["pdf size"];
    printRow("the page as a PDF, 1.2 times the photo and 1.5 MB", megabytes(size),
             megabytes(allowed), size / allowed, "at most 1");
    const double time = measured["pdf"];
    printRow("`plinkett-cli pdf`, `plinkett-cli print`", seconds(time), seconds(measured["tiff"]),
             time / measured["tiff"], "at most 0.5");
    const auto memory = [&](const char* what, const char* name) {
        printRow(what, megabytes(measured[name]), megabytes(canvas), measured[name] / canvas,
                 "at most 0.09");
    };
    memory("its peak memory, one 32-bit canvas", "pdf memory");
    memory("the same with symbols and legend", "pdf with symbols memory");
}

void printTable(const Measurements& measured, const PageGeometry& page, double photo, int runs)
{
    std::printf("Page of %d x %d pixels, %d threads, medians of %d runs. Per-pixel test: %d rows "
                "measured,\nextrapolated to %d.\n\n",
                page.width, page.height, omp_get_max_threads(), runs, kSampledRows, page.height);
    std::printf("| this, and what it is compared with | this | the other | ratio | wanted |\n"
                "|---|---|---|---|---|\n");
    printDotRows(measured, page);
    printPageRows(measured);
    printMemoryRows(measured, page);
    printPdfRows(measured, page, photo);
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QString option = application.arguments().value(1);
    if (option == BusyProcess::kBusyOption) {
        stayBusy();
    }
    const int runs = std::max(1, option.isEmpty() ? 5 : option.toInt());
    mi_printf = printNothing;

    const QTemporaryDir temporary;
    const std::string folder = temporary.path().toStdString();
    const std::string photo = folder + "/photo.jpg";
    photoLikeImage(3000, 2000).save(QString::fromStdString(photo), "JPG", 90);
    Pages pages(folder, photo);
    const Books books = makeBooks(folder, photo);
    Measurements measured;
    for (int i = 0; i < runs; ++i) {
        measureDots("1", pages.one, measured);
        measureDots("50", pages.fifty, measured);
        measureDots("200", pages.twoHundred, measured);
        measurePages(pages, temporary.filePath("plain.tiff"), measured);
        measureMemory(books, measured);
        measurePdf(books, temporary.filePath("page.pdf"), measured);
    }
    const auto photoSize = static_cast<double>(QFileInfo(QString::fromStdString(photo)).size());
    printTable(measured, pages.one.geometry, photoSize, runs);
    return 0;
}
