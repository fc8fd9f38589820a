#include "speech/tab/SpeechWork.h"

SpeechWork::~SpeechWork()
{
    cancel();
    if (work.valid()) {
        work.wait();
    }
}

void SpeechWork::start(Job job)
{
    isCancelled = false;
    Contact contact;
    contact.isWanted = [this] { return !isCancelled; };
    contact.tell = [this](int done, int total) {
        emit progressed(done, total);
        return !isCancelled;
    };
    work = std::async(std::launch::async, [this, job = std::move(job), contact] {
        QStringList sentences = job(contact);
        QMetaObject::invokeMethod(this, &SpeechWork::end, Qt::QueuedConnection);
        return sentences;
    });
}

void SpeechWork::end()
{
    emit ended(work.get());
}
