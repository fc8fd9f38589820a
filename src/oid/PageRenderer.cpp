#include "oid/PageRenderer.h"

#include <omp.h>

#include <algorithm>
#include <cstdio>
#include <new>
#include <optional>

void ProgressLines::reach(int y)
{
    const double reached = y * percent + 0.01;
    if (reached < threshold) {
        return;
    }
    mi_printf("    %3.0f%%\n", reached);
    std::fflush(stdout);
    threshold += 10;
}

// What one thread needs to make strips.
class PageRenderer::Worker
{
public:
    explicit Worker(const PageRenderer& pageRenderer) : renderer(pageRenderer)
    {
        if (renderer.dots != nullptr) {
            printer.emplace(*renderer.dots);
        }
    }

    // False when there is not enough memory.
    bool makeStrip(int band, Strip& strip) noexcept
    {
        try {
            drawBand(renderer.rowsBefore(band), renderer.rowsBefore(band + 1));
            return compressor.compress(pixels.data(), renderer.page.width, rowCount, strip);
        } catch (const std::bad_alloc&) {
            return false;  // an exception must not leave the parallel region
        }
    }

private:
    void drawBand(int firstRow, int endRow)
    {
        rowCount = endRow - firstRow;
        pixels.resize(static_cast<std::size_t>(renderer.page.width) *
                      static_cast<std::size_t>(rowCount));
        renderer.background.drawRows(pixels.data(), firstRow, rowCount);
        if (printer) {
            printer->print(pixels.data(), firstRow, rowCount);
        }
    }

    const PageRenderer& renderer;
    std::optional<DotLayer::Printer> printer;
    StripCompressor compressor;
    std::vector<QRgb> pixels;
    int rowCount = 0;
};

PageRenderer::PageRenderer(const PageGeometry& pageGeometry, const PageBackground& pageBackground,
                           const DotLayer* dotLayer)
    : page(pageGeometry),
      background(pageBackground),
      dots(dotLayer),
      bandCount((page.height + kRowsPerBand - 1) / kRowsPerBand)
{
    // A stretch is long enough that waiting for its last band does not matter, even when another
    // program holds up one of the threads.
    constexpr int kBandsPerStretch = 64;
    const int threads = std::clamp(omp_get_max_threads(), 1, bandCount);
    for (int i = 0; i < threads; ++i) {
        workers.emplace_back(*this);
    }
    strips.resize(static_cast<std::size_t>(std::max(kBandsPerStretch, 2 * threads)));
}

PageRenderer::~PageRenderer() = default;

bool PageRenderer::render(PageSink& sink, const PrintProgress& progress)
{
    if (!sink.open(page, kRowsPerBand)) {
        return false;
    }
    ProgressLines lines(background.percentPerPixel());
    const int bandsPerStretch = static_cast<int>(strips.size());
    for (int band = 0; band < bandCount; band += bandsPerStretch) {
        const int endBand = std::min(band + bandsPerStretch, bandCount);
        for (int y = rowsBefore(band); y < rowsBefore(endBand); ++y) {
            lines.reach(y);
        }
        if (!renderStretch(band, endBand - band, sink)) {
            return false;
        }
        const auto percentDone = static_cast<int>(100LL * rowsBefore(endBand) / page.height);
        if (progress && !progress(percentDone)) {
            return false;
        }
    }
    return sink.finish();
}

// Whoever completes a strip also writes those that are due, so that the page grows in order while
// the other threads go on.
bool PageRenderer::renderStretch(int firstBand, int count, PageSink& sink)
{
    const int threads = static_cast<int>(workers.size());
    std::vector<bool> made(strips.size());
    std::size_t next = 0;
    bool complete = true;
    bool written = true;
#pragma omp parallel for schedule(dynamic) num_threads(threads)
    for (int i = 0; i < count; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        Worker& worker = workers[static_cast<std::size_t>(omp_get_thread_num())];
        const bool enoughMemory = worker.makeStrip(firstBand + i, strips[slot]);
#pragma omp critical(strips)
        {
            complete = complete && enoughMemory;
            made[slot] = true;
            for (; next < made.size() && made[next]; ++next) {
                written = written && complete && sink.writeStrip(strips[next]);
            }
        }
    }
    if (!complete) {
        mi_printf("Error: Not enough memory to print the page\n");
        return false;
    }
    return written || sink.finish();  // which tells why
}

int PageRenderer::rowsBefore(int band) const
{
    return std::min(band * kRowsPerBand, page.height);
}
