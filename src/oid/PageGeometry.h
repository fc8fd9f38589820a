#pragma once

#include "oid/OidProject.h"

// The page of one picture in pixels.
struct PageGeometry
{
    int width = 0;
    int height = 0;
    int tileSize = 0;      // whole pixels per millimetre, 0 for a very low resolution
    int dotsPerMetre = 0;  // as the image file tells it

    // The page of a picture. False, with a message, when its paper size or resolution is 0 or less
    // or makes more pixels than we print.
    bool measure(const Oid::PICTURE& picture);
};
