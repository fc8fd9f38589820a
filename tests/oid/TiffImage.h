#pragma once

#include <QImage>

#include <string>

// The pixels of a TIFF file as libtiff reads them; a null image when it cannot. (Not every Qt reads
// such files.)
QImage readTiff(const std::string& path);
