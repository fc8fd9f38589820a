#pragma once

#include <string>
#include <vector>

#include "oid/PrintJob.h"
#include "pdf/PdfOptions.h"

namespace Oid {
class OidProject;
}

// The whole book as a PDF: a page for each picture, at its paper's true size, with the picture as
// it lies on the print image and the very dots of the print image as a mask in pure black.

// The file that a book's PDF gets unless it is named: "900-my project.pdf" beside the project.
std::string pathPdf(const Oid::OidProject& project);
// And that of its symbols alone: "900-my project-symbols.pdf".
std::string pathSymbols(const Oid::OidProject& project);

// Writes it. Messages go through mi_printf, progress tells of 100 percent for each sheet. False
// when nothing was written: with a message, or cancelled. The project stays as it is.
bool makePdf(const Oid::OidProject& project, const std::string& path, const PdfOptions& options,
             const PrintJobProgress& progress = {});
