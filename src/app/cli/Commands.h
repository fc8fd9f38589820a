#pragma once

#include <string>
#include <vector>

#include "app/cli/Arguments.h"

enum ExitStatus {
    kFine = 0,
    kFailed = 1,  // the project cannot be opened or has errors, or a file cannot be written
    kUsageError = 2
};

struct Command
{
    const char* name;
    const char* operand;  // such as "PROJECT"; empty for a command that has none
    const char* summary;
    std::vector<Option> options;
    int (*run)(const Arguments& arguments);  // returns the exit status
    std::size_t mostOperands = 1;
    ExitStatus usageErrorStatus = kUsageError;
};

Command checkCommand();
Command yamlCommand();
Command saveCommand();
Command printCommand();
Command pdfCommand();
Command readCommand();
Command symbolsCommand();
Command testPageCommand();
Command tileCommand();
Command assembleCommand();
Command buildCommand();
Command copyCommand();
Command helpCommand();
Command playCommand();
Command testCommand();
Command speechCommand();

// Reports what is wrong with the command line on standard error and returns kUsageError.
int usageError(const std::string& message);
