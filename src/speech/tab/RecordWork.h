#pragma once

#include <QObject>

#include <functional>
#include <thread>

// One piece of work at a time, on a thread of its own.
class RecordWork : public QObject
{
    Q_OBJECT

public:
    explicit RecordWork(QObject* parent = nullptr) : QObject(parent) {}
    // Waits for the work: a file is written whole. What was to come then does not.
    ~RecordWork() override;

    // Has the work done; then comes what is done with it, on the thread of this object. Only while
    // it is not busy.
    void start(std::function<void()> work, std::function<void()> then);
    bool isBusy() const { return busy; }

private:
    bool busy = false;
    std::thread thread;
};
