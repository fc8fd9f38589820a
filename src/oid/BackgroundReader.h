#pragma once

#include <QImage>

#include <string>

// Reads the background of a print image. Decoders are lenient: half a JPEG is a picture to them,
// with a grey rest. Nobody wants to print that, so what they only warn about is an error here.
// False, with a message through mi_printf, when the file is no image, damaged, or larger than the
// memory allows.
bool readBackground(const std::string& path, QImage& image);
