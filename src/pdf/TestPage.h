#pragma once

#include <QPointF>

#include <optional>
#include <string>
#include <vector>

#include "oid/PrintJob.h"
#include "pdf/PdfOptions.h"

// The page with which an author finds out how a printer prints dots that the pen reads: a table of
// fields with dots of different resolutions and sizes on different grounds, each with a number of
// its own.

constexpr int kTestProduct = 949;
constexpr char kTestName[] = "Printer test";
constexpr int kFewestTestDpi = 600;
constexpr int kMostTestDpi = 4800;
// Those that are tried unless others are asked for.
const std::vector<int>& usualTestResolutions();

struct TestField
{
    enum class Ground { white, grey25, grey50, mixedGrey };

    std::string name;  // "B3": column and row of the table
    int oid = 0;
    int dpi = 0;
    int dotSize = 0;  // edge in pixels of the printer
    Ground ground = Ground::white;
    QPointF place;  // of its upper left corner on upright A4, in mm
};

constexpr double kTestFieldEdge = 12;  // mm

// The fields for printers of these resolutions: for each the dots of 1 to 4 pixels that do not
// touch each other, and the standard dot.
std::vector<TestField> testFields(const std::vector<int>& resolutions);

// Whether all of them find room on the page.
bool fitTestPage(const std::vector<int>& resolutions);

// What the field whose dots the pen reads best says about the printer; nothing when there is none
// of that name, in large or small letters.
std::optional<PrinterSettings> settingsOfField(const std::vector<int>& resolutions,
                                               const std::string& name);

// Writes the page, as PDF. Messages go through mi_printf; false when nothing was written.
bool makeTestPage(const std::string& path, const std::vector<int>& resolutions,
                  const PrintJobProgress& progress = {});
