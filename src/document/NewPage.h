#pragma once

#include "document/Edit.h"

class PictureCopy;

// The page that a picture, which is one, becomes when it comes into a book: its paper and
// resolution are what the picture says of itself, and it keeps a copy of the picture.
edit::AddPage newPage(const PictureCopy& picture);
