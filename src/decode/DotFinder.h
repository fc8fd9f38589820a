#pragma once

#include <QPointF>

#include <vector>

#include "decode/DotWindow.h"

// The middles of the small dark spots of a window, whatever they are; 0,0 is the middle of its
// first pixel. Dots that touch are one spot.
std::vector<QPointF> findDots(const DotWindow& window);
