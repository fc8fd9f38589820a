#pragma once

#include <QPointF>

#include <optional>
#include <vector>

#include "decode/DotLattice.h"
#include "decode/DotWindow.h"

// A tile that was read, in pixels of its window.
struct ReadTile
{
    int rawCode = 0;  // of an OID, or the fill code
    QPointF middle;
    QPointF right;  // to its neighbour
    QPointF down;
};

constexpr int kFillRawCode = 65535;

// The OID of a raw code; nothing for one that no OID has.
std::optional<int> oidOfRawCode(int rawCode);

// Reads the tiles of a lattice.
class TileReader
{
public:
    TileReader(const DotWindow& window, const DotLattice& lattice);

    // All tiles whose middle lies in the part of the window from (left, top) on that are whole and
    // whose checksum is right.
    std::vector<ReadTile> read(double left, double top, double width, double height) const;

private:
    std::optional<int> codeAt(const QPointF& corner) const;

    const DotWindow& window;
    const DotLattice& lattice;
};
