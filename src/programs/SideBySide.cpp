#include "programs/SideBySide.h"

#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {

constexpr int kSlice = 100;     // milliseconds
constexpr int kShortSlice = 5;  // while several programs may end
constexpr int kNotEnded = -1;   // exit code of a program that crashed or did not start

size_t cores()
{
    return static_cast<size_t>(std::max(1, QThread::idealThreadCount()));
}

}  // namespace

SideBySide::SideBySide(ProgramListener shownTo) : listener(std::move(shownTo)) {}

void SideBySide::run(const std::vector<ProgramWork>& works, const std::function<bool()>& mayBegin,
                     const std::function<void()>& whileWaiting)
{
    all = &works;
    waiting.assign(works.size(), {});
    done.assign(works.size(), false);
    inTurn = 0;
    QElapsedTimer sinceCalled;
    sinceCalled.start();
    size_t begun = 0;
    bool beginsMore = true;
    do {
        while (beginsMore && begun < works.size() && lanes.size() < cores()) {
            beginsMore = mayBegin();
            if (beginsMore) {
                begin(begun++);
            }
        }
        showInTurn();
        wait();
        goOn();
        if (whileWaiting && !lanes.empty() && sinceCalled.hasExpired(kSlice)) {
            whileWaiting();
            sinceCalled.restart();
        }
    } while (!lanes.empty() || (beginsMore && begun < works.size()));
    showInTurn();
    all = nullptr;
}

void SideBySide::kill()
{
    for (const std::unique_ptr<Lane>& lane : lanes) {
        lane->process.kill();
    }
}

void SideBySide::begin(size_t work)
{
    Lane& lane = *lanes.emplace_back(std::make_unique<Lane>());
    lane.work = work;
    listenTo(lane);
    if (!startsNext(lane)) {
        lanes.pop_back();
    }
}

void SideBySide::listenTo(Lane& lane)
{
    QProcess& process = lane.process;
    const auto print = [this, &lane](QProcess::ProcessChannel channel) {
        const QByteArray output = OutsideProgram::takeOutput(lane.process, channel);
        tell(lane.work, [=] { listener.printed(output); });
    };
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [=] { print(QProcess::StandardOutput); });
    QObject::connect(&process, &QProcess::readyReadStandardError, &process,
                     [=] { print(QProcess::StandardError); });
    QObject::connect(&process, &QProcess::errorOccurred, &process,
                     [this, &lane](QProcess::ProcessError error) {
                         tell(lane.work, [=] { listener.failed(error); });
                     });
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     &process, [this, &lane](int exitCode, QProcess::ExitStatus status) {
                         lane.exitCode = status == QProcess::NormalExit ? exitCode : kNotEnded;
                         tell(lane.work, [=] { listener.finished(exitCode, status); });
                     });
}

// Starts the next program of the lane's work that can be started; false when the work is done.
bool SideBySide::startsNext(Lane& lane)
{
    while (const std::optional<ProgramCall> call = (*all)[lane.work].next(lane.exitCode)) {
        lane.exitCode = kNotEnded;
        if (lane.program.start(call->program, call->arguments, false, call->surroundings)) {
            return true;
        }
    }
    done[lane.work] = true;
    return false;
}

void SideBySide::wait()
{
    const int slice = lanes.size() == 1 ? kSlice : kShortSlice;
    for (const std::unique_ptr<Lane>& lane : lanes) {
        if (lane->process.state() != QProcess::NotRunning) {
            lane->process.waitForFinished(slice);
        }
    }
}

// What has ended makes room for what comes next.
void SideBySide::goOn()
{
    const auto isDone = [this](const std::unique_ptr<Lane>& lane) {
        return lane->process.state() == QProcess::NotRunning && !startsNext(*lane);
    };
    lanes.erase(std::remove_if(lanes.begin(), lanes.end(), isDone), lanes.end());
}

void SideBySide::tell(size_t work, Event event)
{
    if (work == inTurn) {
        event();
    } else {
        waiting[work].push_back(std::move(event));
    }
}

void SideBySide::showInTurn()
{
    while (inTurn < waiting.size()) {
        for (const Event& event : std::exchange(waiting[inTurn], {})) {
            event();
        }
        if (!done[inTurn]) {
            return;
        }
        (*all)[inTurn].shown();
        ++inTurn;
    }
}
