#include "tools/text2speech/Espeak.h"

#include <QProcess>

#include "base/PlatformProcess.h"

namespace {

// What the program said, in one line.
std::string complaint(QProcess& process)
{
    const QString said = QString::fromUtf8(process.readAllStandardError()).simplified();
    const std::string how =
        process.exitStatus() == QProcess::CrashExit
            ? "espeak-ng crashed"
            : "espeak-ng failed with status " + std::to_string(process.exitCode());
    return said.isEmpty() ? how : how + ": " + said.toStdString();
}

}  // namespace

std::string runEspeak(const QStringList& arguments, const std::string& text,
                      const std::function<void(const QByteArray&)>& receive)
{
    const std::string program = Platform::findProgram("espeak-ng");
    QProcess process;
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [&] { receive(process.readAllStandardOutput()); });
    process.start(QString::fromStdString(program), arguments);
    if (program.empty() || !process.waitForStarted(-1)) {
        return "espeak-ng is not installed (it is not on PATH)";
    }
    process.write(text.data(), static_cast<qint64>(text.size()));
    process.closeWriteChannel();
    process.waitForFinished(-1);
    const bool succeeded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return succeeded ? std::string() : complaint(process);
}
