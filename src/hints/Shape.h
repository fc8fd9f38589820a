#pragma once

#include <QSizeF>

#include <vector>

#include "oid/OidProject.h"

// What the ring of an area is like.
namespace hints {

// Whether two of its edges cross each other. Those that only touch do not.
bool edgesCross(const std::vector<Oid::PNT>& ring);

// The diameter of the largest circle inside the ring, at most kPrecision of enough less than it is.
// From enough on it is not looked for any further: what is given then is at least that.
constexpr double kPrecision = 0.01;
double widestPlace(const std::vector<Oid::PNT>& ring, double enough);

// How much of the ring lies outside of the rectangle from (0, 0) on, 0 to 1.
double shareOutside(const std::vector<Oid::PNT>& ring, QSizeF rectangle);

}  // namespace hints
