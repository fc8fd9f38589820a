#include "programs/OutsideProgram.h"

#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"

#include <QDir>

namespace {

// The program may start in another folder, in which a relative path would lead elsewhere. One that
// was not found would be searched by the system, also in the current folder, which is a stranger's
// project's while that is built: so it is looked for beside our own program only.
QString pathOf(const std::string& program)
{
    const QString path =
        QDir::fromNativeSeparators(QString::fromStdString(Platform::programToStart(program)));
    const QDir folder = path.contains('/') ? QDir::current()
                                           : QDir(QString::fromStdString(Platform::exeDirectory()));
    return folder.absoluteFilePath(path);
}

}  // namespace

bool OutsideProgram::start(const std::string& program, const std::vector<std::string>& arguments,
                           bool wait, const Surroundings& surroundings)
{
    Platform::useUtf8ForSystemTexts();
    QStringList words;
    for (const std::string& argument : arguments) {
        words << QString::fromStdString(argument);
    }
    surroundWith(surroundings);
    process.start(pathOf(program), words, QIODevice::ReadWrite);
    const bool started = process.waitForStarted(-1);
    process.closeWriteChannel();  // nobody answers: a question must not wait for ever
    if (started && wait) {
        waitForEnd();
    }
    return started;
}

void OutsideProgram::surroundWith(const Surroundings& surroundings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : surroundings.variables) {
        if (value.empty()) {
            environment.remove(QString::fromStdString(name));
        } else {
            environment.insert(QString::fromStdString(name), QString::fromStdString(value));
        }
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QString::fromStdString(Platform::nativePath(surroundings.folder)));
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

QByteArray OutsideProgram::takeOutput(QProcess& process, QProcess::ProcessChannel channel)
{
    process.setReadChannel(channel);
    QByteArray output = process.peek(process.bytesAvailable());
    if (output.endsWith('\r') && process.state() != QProcess::NotRunning) {
        output.chop(1);  // the other half of the line end is on its way
    }
    process.skip(output.size());
    return output.replace("\r\n", "\n");
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
