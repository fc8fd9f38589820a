#pragma once

#include <QString>

struct Diagnostic;

// The place of the manual that tells more about a problem of the book: "areas" is a page,
// "areas-draw" a place of it.
QString placeInManual(const Diagnostic& problem);
