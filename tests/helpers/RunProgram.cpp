#include "tests/helpers/RunProgram.h"

#include "base/PlatformProcess.h"
#include "tests/helpers/Environment.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <stdexcept>

namespace {

constexpr int kPatience = 120'000;  // ms, also for sanitized programs on a busy machine

QProcessEnvironment environmentWith(const std::vector<std::string>& settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const std::string& setting : settings) {
        const std::size_t equals = setting.find('=');
        environment.insert(QString::fromStdString(setting.substr(0, equals)),
                           QString::fromStdString(setting.substr(equals + 1)));
    }
    return environment;
}

}  // namespace

ProgramRun runProgram(const std::string& program, const std::vector<std::string>& words,
                      const std::vector<std::string>& environment, const std::string& folder,
                      const std::string& input)
{
    Platform::useUtf8ForSystemTexts();
    QStringList arguments;
    for (const std::string& word : words) {
        arguments << QString::fromStdString(word);
    }
    QProcess process;
    process.setProcessEnvironment(environmentWith(environment));
    process.setWorkingDirectory(QString::fromStdString(folder));
    process.start(QString::fromStdString(program), arguments);
    process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    if (!process.waitForFinished(kPatience) || process.exitStatus() != QProcess::NormalExit) {
        throw std::runtime_error(program + " did not end by itself");
    }
    return {process.exitCode(), printedLines(process.readAllStandardOutput().toStdString()),
            printedLines(process.readAllStandardError().toStdString())};
}

std::string resultOf(const ProgramRun& run)
{
    const std::string text = "status " + std::to_string(run.status) + "\n" + run.out;
    return run.err.empty() ? text : text + "stderr: " + run.err;
}
