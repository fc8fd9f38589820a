#pragma once

#include <QObject>
#include <QStringList>

#include <atomic>
#include <functional>
#include <future>

// What takes long in the tab: one piece of work at a time, on a thread of its own.
class SpeechWork : public QObject
{
    Q_OBJECT

public:
    // How the work keeps in touch, from its thread.
    struct Contact
    {
        // How much is done; false once the author has cancelled.
        std::function<bool(int done, int total)> tell;
        std::function<bool()> isWanted;
    };
    // Returns what came of it, in sentences for the author.
    using Job = std::function<QStringList(const Contact& contact)>;

    explicit SpeechWork(QObject* parent = nullptr) : QObject(parent) {}
    // Cancels, and waits for the end of the step.
    ~SpeechWork() override;

    // Only while it is not busy.
    void start(Job job);
    bool isBusy() const { return work.valid(); }
    void cancel() { isCancelled = true; }

signals:
    void progressed(int done, int total);
    void ended(const QStringList& sentences);

private:
    void end();

    std::atomic<bool> isCancelled{false};
    std::future<QStringList> work;
};
