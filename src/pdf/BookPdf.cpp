#include "pdf/BookPdf.h"

#include <algorithm>
#include <memory>
#include <new>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformMachine.h"
#include "oid/OutputLock.h"
#include "oid/PreparedPage.h"
#include "oid/PrintImage.h"
#include "oid/ProjectFolder.h"
#include "pdf/BookPage.h"
#include "pdf/SymbolsPage.h"

namespace {

constexpr int kPercentOfSheet = 100;

// The pages that are wanted; false, with a message, when there is no such page.
bool choosePages(const Oid::OidProject& project, const PdfOptions& options,
                 std::vector<int>& chosen)
{
    const auto count = static_cast<int>(project.pictures.size());
    chosen = options.pages;
    for (int n = 0; n < count && options.pages.empty(); ++n) {
        chosen.push_back(n);
    }
    for (const int n : chosen) {
        if (n < 0 || n >= count) {
            mi_printf("Error: There is no picture %d\n", n);
            return false;
        }
    }
    return true;
}

// Adds up the sheets, and stops the file when the author cancels.
class Progress
{
public:
    explicit Progress(const PrintJobProgress& report) : tell(report) {}

    int addSheet() { return sheets++; }
    // While so many pages are prepared, whose sheets are not known yet.
    void prepare(std::size_t pages) const
    {
        if (tell && !tell(0, kPercentOfSheet * static_cast<int>(pages))) {
            throw PdfFailure();
        }
    }
    void reach(int sheet, int percent) const
    {
        const int total = kPercentOfSheet * sheets;
        if (tell && !tell(std::min(kPercentOfSheet * sheet + percent, total), total)) {
            throw PdfFailure();
        }
    }

private:
    PrintJobProgress tell;
    int sheets = 0;
};

class BookPdf
{
public:
    BookPdf(const Oid::OidProject& book, const PdfOptions& wanted, const PrintJobProgress& report)
        : project(book), options(wanted), progress(report)
    {}

    bool make(const std::string& path)
    {
        std::vector<int> chosen;
        if (!choosePages(project, options, chosen)) {
            return false;
        }
        if (options.symbols != PdfOptions::Symbols::alone) {
            for (const int n : chosen) {
                progress.prepare(chosen.size());
                if (!addPage(n)) {
                    return false;
                }
            }
        }
        return addSymbols(chosen) && file.write(path);
    }

private:
    bool addPage(int n)
    {
        auto page = std::make_unique<BookPage>(project, n, options);
        if (!page->prepare(file)) {
            return false;
        }
        for (const Sheet& sheet : page->sheets()) {
            const int number = progress.addSheet();
            file.addPage(page->draw(
                file, sheet, [this, number](int percent) { progress.reach(number, percent); }));
        }
        pages.push_back(std::move(page));
        return true;
    }

    // At the end of the book.
    bool addSymbols(const std::vector<int>& chosen)
    {
        const auto wanted = options.symbols;
        if (wanted == PdfOptions::Symbols::never ||
            (wanted == PdfOptions::Symbols::whenNeeded && !SymbolsPages::areNeeded(project))) {
            return true;
        }
        symbols = std::make_unique<SymbolsPages>(project, options);
        for (const int n : chosen) {
            progress.prepare(chosen.size());
            if (!symbols->addPicture(n)) {
                return false;
            }
        }
        if (!symbols->prepare()) {
            return false;
        }
        for (int i = 0; i < symbols->count(); ++i) {
            const int number = progress.addSheet();
            file.addPage(symbols->draw(
                file, i, [this, number](int percent) { progress.reach(number, percent); }));
        }
        return true;
    }

    const Oid::OidProject& project;
    const PdfOptions& options;
    Progress progress;
    std::vector<std::unique_ptr<BookPage>> pages;  // the file asks them for their dots
    std::unique_ptr<SymbolsPages> symbols;         // them, too
    PdfWriter file;
};

// Under that of the game, which the product's name is a part of, and not one that the author chose.
bool isOwnName(const std::string& path, const Oid::OidProject& project)
{
    const std::string native = Platform::nativePath(path);
    return native == Platform::nativePath(pathPdf(project)) ||
           native == Platform::nativePath(pathSymbols(project));
}

}  // namespace

std::string pathPdf(const Oid::OidProject& project)
{
    const std::string game = project.pathGme();
    return game.substr(0, game.rfind('.')) + ".pdf";
}

std::string pathSymbols(const Oid::OidProject& project)
{
    const std::string game = project.pathGme();
    return game.substr(0, game.rfind('.')) + "-symbols.pdf";
}

bool makePdf(const Oid::OidProject& project, const std::string& path, const PdfOptions& options,
             const PrintJobProgress& progress)
{
    if (isOwnName(path, project) && !Oid::staysInFolder(project, path, mi_printf)) {
        return false;
    }
    mi_printf("Creating PDF...\n");
    OutputLock lock(path);
    if (!lock.take([](const char* line) { mi_printf("%s", line); })) {
        return false;
    }
    bool written = false;
    try {
        written = BookPdf(project, options, progress).make(path);
    } catch (const PdfFailure&) {  // cancelled while pages were prepared
    } catch (const std::bad_alloc&) {
        mi_printf("Error: Not enough memory to print the page\n");
    }
    Platform::releaseFreeMemory();
    return written;
}
