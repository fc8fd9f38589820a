#pragma once

#include <string>

#include "app/cli/Arguments.h"
#include "pdf/PdfOptions.h"

// The options of the commands that make PDF files, read one by one; the first mistake is kept.
class PdfArguments
{
public:
    explicit PdfArguments(const Arguments& words) : arguments(words) {}

    PdfOptions read();
    // Those that belong to a printer.
    PrinterSettings readPrinter();

    // Empty when there was none.
    const std::string& mistake() const { return message; }

private:
    PrinterSettings profile();
    void reject(const std::string& what);
    int number(const std::string& option, const std::string& name, int smallest, int largest);
    std::vector<int> pages();
    PdfOptions::Dots dots();
    std::optional<PaperSize> paper();
    PdfOptions::Symbols symbols();

    const Arguments& arguments;
    std::string message;
};

// The options that readPrinter knows.
std::vector<Option> printerOptions();
