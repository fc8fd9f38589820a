#pragma once

#include <QByteArray>
#include <QProcess>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "programs/OutsideProgram.h"
#include "programs/ProgramWork.h"

// How a runner shows what a program does.
struct ProgramListener
{
    std::function<void(const QByteArray& output)> printed;
    std::function<void(QProcess::ProcessError error)> failed;
    std::function<void(int exitCode, QProcess::ExitStatus status)> finished;
};

// Works that are done side by side, one on each core. The listener hears of the programs of one
// work after the other, in the order of the works: of the first that is not done at once, of the
// others when it is their turn. Everything happens on the calling thread.
class SideBySide
{
public:
    explicit SideBySide(ProgramListener shownTo);

    // As ProcessRunner::runAll. Ten times a second whileWaiting is called; it may call kill.
    void run(const std::vector<ProgramWork>& works, const std::function<bool()>& mayBegin,
             const std::function<void()>& whileWaiting = {});
    bool isRunning() const { return all != nullptr; }
    // Kills the programs that are running now; their works go on.
    void kill();

private:
    using Event = std::function<void()>;

    // Where one work is done at a time.
    struct Lane
    {
        QProcess process;
        OutsideProgram program{process};
        size_t work = 0;
        int exitCode = 0;
    };

    void begin(size_t work);
    void listenTo(Lane& lane);
    bool startsNext(Lane& lane);
    void goOn();
    void wait();
    void tell(size_t work, Event event);
    void showInTurn();

    const ProgramListener listener;
    const std::vector<ProgramWork>* all = nullptr;  // while they are done
    std::vector<std::unique_ptr<Lane>> lanes;       // those with a work
    std::vector<std::vector<Event>> waiting;        // to be told, by work
    std::vector<bool> done;                         // by work
    size_t inTurn = 0;                              // the first work that is not shown
};
