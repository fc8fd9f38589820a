#pragma once

#include <QImage>

#include <string>

#include "oid/OidProject.h"

// Print images made the slow way, straight from the rule: one canvas of the whole page, one painter
// for the background, and one test per pixel and area. What makeImage makes is compared with this.

// The background alone, on a page of width x height pixels.
QImage plainBackground(const QImage& picture, int width, int height);

// The whole page; draws the tiles of the project's areas and enters missing names as makeImage
// does.
QImage plainPrintImage(int n, Oid::OidProject& project);

// The percent of the drawn width that one pixel of picture n's page is.
double plainPercentPerPixel(const QImage& background, const Oid::PICTURE& picture);

// Empty when both images show the same, else the first pixel in which they differ.
std::string firstDifference(const QImage& made, const QImage& expected);

// Pictures and OID table of a project, so that it can be printed twice.
Oid::OidProject twinOf(const Oid::OidProject& project);
