#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "oid/OidProject.h"

// The points 0, p, 2p, ... that the pixels of a row, or of a column, stand for.
class PixelPoints
{
public:
    PixelPoints(double step, int pixels) : p(step), perStep(1 / step), count(pixels) {}

    double operator[](int pixel) const { return pixel * p; }
    int size() const { return count; }

    // How many points are less than the limit; none when it is no number. The points grow from
    // pixel to pixel, rounded as they are, so these come first: their number is guessed, and
    // corrected with the very comparison.
    int countBelow(double limit) const
    {
        if (!(limit > 0)) {
            return 0;
        }
        if (limit > (*this)[count - 1]) {
            return count;
        }
        int guess = std::min(static_cast<int>(limit * perStep) + 1, count);
        while (guess < count && limit > (*this)[guess]) {
            ++guess;
        }
        while (guess > 0 && !(limit > (*this)[guess - 1])) {
            --guess;
        }
        return guess;
    }

private:
    double p;
    double perStep;
    int count;
};

// Where the areas of a page lie on its rows of pixels. Pixel (x, y) stands for the point (x·p,
// y·p), p being the percent per pixel, and belongs to the first area of which isPntInPoly holds.
// That is answered exactly, but once per row and edge instead of once per pixel and edge.
class AreaRows
{
public:
    AreaRows(const std::vector<Oid::POLY>& areas, double percentPerPixel, int width, int height);

    class Band;

private:
    // What an edge of an area crosses: the rows from firstRow to just before endRow.
    struct Edge
    {
        Oid::PNT vertex;
        Oid::PNT previous;
        int firstRow;
        int endRow;
    };
    // The edges from firstEdge to just before endEdge; together they cross the rows given.
    struct Area
    {
        int index;  // in the picture's list
        std::size_t firstEdge;
        std::size_t endEdge;
        int firstRow;
        int endRow;
    };

    void addArea(int index, const std::vector<Oid::PNT>& ring);

    PixelPoints columns;
    PixelPoints lines;  // the points of the rows
    std::vector<Edge> edges;
    std::vector<Area> areas;  // those that cross any row, in list order
};

// The pixels from x = from to just before x = to of one row; all belong to one area, or to none.
struct AreaSpan
{
    static constexpr int kNoArea = -1;

    int from;
    int to;
    int area;
};

// The areas on the rows of one band, worked out row by row. One for each thread.
class AreaRows::Band
{
public:
    explicit Band(const AreaRows& page) : rows(page) {}

    // Makes the rows from first to just before end known.
    void enter(int first, int end);
    // The whole row y, which lies in the band, as spans; in no particular order.
    const std::vector<AreaSpan>& spansOf(int y);

private:
    struct Gap
    {
        int from;
        int to;
    };

    void findCrossings(const Area& area, int y);
    void take(int from, int to, int area);

    const AreaRows& rows;
    std::vector<Edge> edges;  // that cross the band
    std::vector<Area> areas;  // that cross the band, with edges of the list above
    std::vector<int> crossings;
    std::vector<Gap> gaps;  // what no area has taken yet, from left to right
    std::vector<AreaSpan> spans;
};
