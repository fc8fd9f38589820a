#include "speech/tab/RecordWork.h"

#include <utility>

RecordWork::~RecordWork()
{
    if (thread.joinable()) {
        thread.join();
    }
}

void RecordWork::start(std::function<void()> work, std::function<void()> then)
{
    busy = true;
    thread = std::thread([this, work = std::move(work), then = std::move(then)] {
        work();
        QMetaObject::invokeMethod(
            this,
            [this, then] {
                thread.join();
                busy = false;
                then();
            },
            Qt::QueuedConnection);
    });
}
