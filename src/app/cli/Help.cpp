#include <cstdio>

#include "app/cli/Commands.h"
#include "base/Manual.h"

namespace {

int help(const Arguments& /*arguments*/)
{
    const QStringList files = manualFiles();
    if (files.isEmpty()) {
        fputs(
            "plinkett-cli: the manual is not installed; 'plinkett-cli --help' lists the commands\n",
            stderr);
        return kFailed;
    }
    for (const QString& file : files) {
        puts(file.toUtf8().constData());
    }
    return kFine;
}

}  // namespace

Command helpCommand()
{
    return {
        "help", "", "Tells where the manual lies, in English and German, for a browser.", {}, help};
}
