#include "tools/text2speech/SpeakingProgram.h"

#include <QProcess>

#include "base/PlatformProcess.h"
#include "tools/text2speech/Languages.h"

namespace {

// What the program said, in one line; of many words the last ones, which tell why it ended.
std::string complaint(const std::string& program, QProcess& process)
{
    constexpr int kLongest = 500;  // characters
    const QString all = QString::fromUtf8(process.readAllStandardError()).simplified();
    const QString said = all.size() > kLongest ? "..." + all.right(kLongest) : all;
    const std::string how =
        process.exitStatus() == QProcess::CrashExit
            ? program + " crashed"
            : program + " failed with status " + std::to_string(process.exitCode());
    return said.isEmpty() ? how : how + ": " + said.toStdString();
}

std::string whyNotThere(const std::string& program)
{
    const bool hasFolder = program.find_first_of("/\\") != std::string::npos;
    return hasFolder ? "the program '" + program + "' is not there"
                     : program + " is not installed (it is not on PATH)";
}

// espeak-ng also beside this program, and where its installer for Windows puts it.
std::string findSpeaker(const std::string& program)
{
    if (program != kEspeak) {
        return Platform::findProgram(program);
    }
    const std::string places[] = {Platform::exeDirectory() + "\\" + program, program,
                                  Platform::programsFolder() + "\\eSpeak NG\\" + program};
    for (const std::string& place : places) {
        std::string found = Platform::findProgram(place);
        if (!found.empty()) {
            return found;
        }
    }
    return {};
}

}  // namespace

bool isSpeakerThere(const std::string& program)
{
    return !findSpeaker(program).empty();
}

std::string runSpeakingProgram(const std::string& program,
                               const std::vector<std::string>& arguments, const std::string& input,
                               const std::function<void(const QByteArray&)>& receive)
{
    const std::string found = findSpeaker(program);
    if (found.empty()) {
        return whyNotThere(program);
    }
    QStringList words;
    for (const std::string& argument : arguments) {
        words << QString::fromStdString(argument);
    }
    QProcess process;
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [&] { receive(process.readAllStandardOutput()); });
    process.start(QString::fromStdString(found), words);
    if (!process.waitForStarted(-1)) {
        return program + " cannot be started: " + process.errorString().toStdString();
    }
    process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    process.waitForFinished(-1);
    const bool succeeded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return succeeded ? std::string() : complaint(program, process);
}
