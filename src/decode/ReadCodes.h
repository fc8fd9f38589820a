#pragma once

#include <QPointF>

#include <optional>
#include <vector>

#include "decode/CodeAreas.h"
#include "decode/ScanImage.h"

// The areas with codes in a scan, with places in pixels of its file. Paper may be turned in any
// way, and its scale be wrong by a few percent. The same scan always gives the same.
std::vector<ReadArea> readCodes(const ScanImage& scan);

// The area at a place, within the width of a tile; null if there is none.
const ReadArea* areaAt(const std::vector<ReadArea>& areas, const QPointF& place, int dpi);
