#pragma once

#include <QImage>
#include <QRect>

#include <string>
#include <vector>

// Parts of a picture file, in pixels of the upright picture, each as an image of at most so many
// pixels a side, on white paper; null images for parts without pixels. A JPEG is read in strips, so
// that it never is in memory as a whole. False, with a message, when the picture cannot be read.
bool readPieces(const std::string& path, const std::vector<QRect>& parts, int longestSide,
                std::vector<QImage>& pieces);
