#pragma once

#include <vector>

#include "oid/DotLayer.h"
#include "oid/PageBackground.h"
#include "oid/PageSink.h"
#include "oid/PrintImage.h"

// The progress lines of a page: about one every ten percent units of height, measured in percent of
// the drawn width, so that they may pass 100.
class ProgressLines
{
public:
    explicit ProgressLines(double percentPerPixel) : percent(percentPerPixel) {}

    // Prints the line of row y if one is due. Rows come one by one from 0 on.
    void reach(int y);

private:
    double percent;
    double threshold = 0;
};

// Makes a page in bands of rows that are drawn, dotted and compressed on all cores, so that only a
// few bands are in memory at any time.
class PageRenderer
{
public:
    // Without dots (null) only the background is printed. The parts must outlive the renderer.
    PageRenderer(const PageGeometry& page, const PageBackground& background, const DotLayer* dots);

    ~PageRenderer();

    // Makes the whole page and gives it to the sink. False, with a message, when memory or the sink
    // do not suffice, and without one when progress cancels; the sink has no page then.
    bool render(PageSink& sink, const PrintProgress& progress);

    static constexpr int kRowsPerBand = 16;  // divides PageBackground::kTileEdge

private:
    class Worker;

    bool renderStretch(int firstBand, int bandCount, PageSink& sink);
    int rowsBefore(int band) const;

    const PageGeometry& page;
    const PageBackground& background;
    const DotLayer* dots;
    int bandCount;
    std::vector<Worker> workers;  // one for each thread
    std::vector<Strip> strips;    // of one stretch of bands
};
