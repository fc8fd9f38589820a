#include "publish/OutsideProgram.h"

#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"

namespace {

// A single quote character is a word, not a pair of quotes.
std::string withoutQuotes(const std::string& word)
{
    const bool quoted = word.size() > 1 && word.front() == '"' && word.back() == '"';
    return quoted ? word.substr(1, word.size() - 2) : word;
}

}  // namespace

bool OutsideProgram::start(const KVString& commandLine, bool wait)
{
    Platform::useUtf8ForSystemTexts();
    std::vector<std::string> words;
    SplitStringKeepQuotes(QString(commandLine).toStdString(), words, false);

    QString program;
    QStringList arguments;
    for (const std::string& quotedWord : words) {
        const std::string word = withoutQuotes(quotedWord);
        if (program.isEmpty()) {
            program = QString::fromStdString(Platform::programToStart(word));
        } else {
            arguments << QString::fromStdString(word);
        }
    }
    process.start(program, arguments, QIODevice::ReadWrite);
    const bool started = process.waitForStarted(-1);
    process.closeWriteChannel();  // nobody answers: a question must not wait for ever
    if (started && wait) {
        waitForEnd();
    }
    return started;
}

void OutsideProgram::waitForEnd()
{
    if (!whileWaiting) {
        process.waitForFinished(-1);
        return;
    }
    constexpr int kSlice = 100;  // milliseconds
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(kSlice)) {
        whileWaiting();
    }
}

const char* OutsideProgram::errorText(QProcess::ProcessError error)
{
    switch (error) {
    case QProcess::FailedToStart:
        return "ERROR: File not Found\n";
    case QProcess::Crashed:
        return "ERROR: Program Crash\n";
    case QProcess::Timedout:
        return "ERROR: Timed Out\n";
    case QProcess::ReadError:
        return "ERROR: Read Error\n";
    case QProcess::WriteError:
        return "ERROR: Write Error\n";
    case QProcess::UnknownError:
        return "ERROR: Unknown Error\n";
    }
    return "";
}

std::string commandPath(const std::string& path)
{
    return "\"" + Platform::nativePath(path) + "\"";
}
