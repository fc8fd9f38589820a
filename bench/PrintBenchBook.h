#pragma once

#include <QImage>

#include <string>

#include "oid/OidProject.h"

// The page that print images are measured with: 297.01 x 209.97 mm at 1200 DPI, a photo of
// 3000 x 2000 pixels behind it.

// Broad shapes, fine detail and sensor noise, the same in every run.
QImage photoLikeImage(int width, int height);

// A picture with this many areas of 20 vertices, spread over the page in rows and columns.
Oid::PICTURE benchPicture(int areas);

// A project of such pictures in a folder, with OIDs, saved, and with their backgrounds beside it.
Oid::OidProject benchProject(const std::string& folder, const std::vector<Oid::PICTURE>& pictures,
                             const std::string& photoFile);
