#pragma once

#include <QString>

#include <string>

#include "oid/PageBackground.h"
#include "oid/PageGeometry.h"

// The ways of printing a page, and of making parts of it, that the bench compares. A way that fails
// ends the program.

// A page ready to be printed.
struct BenchPage
{
    // Makes a folder with a project of one picture.
    BenchPage(const std::string& folder, int areas, const std::string& photoFile);

    Oid::PICTURE& picture() { return project.pictures[0]; }
    const Oid::PICTURE& picture() const { return project.pictures[0]; }

    Oid::OidProject project;
    PageGeometry geometry;
    PageBackground background;
    oidPixels fill;
    QString photoFile;
    QString printFile;
};

// makeImage.
void printPage(BenchPage& page);
// What makeImage does, but for the dots.
void printPageWithoutDots(BenchPage& page);
// A canvas of the whole page, one painter, QImage::save; without dots.
void printPlainly(const BenchPage& page, const QString& file);

// The dots of the whole page, onto bands that are thrown away.
void printDots(BenchPage& page);
// The same by one test per pixel and area, on some rows of the page only.
void printDotsPixelByPixel(const BenchPage& page, int sampledRows);
