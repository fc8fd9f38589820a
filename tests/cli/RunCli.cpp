#include "tests/cli/RunCli.h"

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

CliRun cli(const std::vector<std::string>& words, const std::vector<std::string>& environment,
           const std::string& folder)
{
    QStringList arguments;
    for (const std::string& word : words) {
        arguments << QString::fromStdString(word);
    }
    QProcess process;
    process.setProcessEnvironment(environmentWith(environment));
    process.setWorkingDirectory(QString::fromStdString(folder));
    process.start(PLINKETT_BIN_DIR "/plinkett-cli", arguments);
    if (!process.waitForFinished(kPatience) || process.exitStatus() != QProcess::NormalExit) {
        throw std::runtime_error("plinkett-cli did not end by itself");
    }
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

std::string resultOf(const CliRun& run)
{
    std::string text = "status " + std::to_string(run.status) + "\n" + run.out;
    return run.err.empty() ? text : text + "stderr: " + run.err;
}
