#include "app/Recovery.h"

#include <QDir>

#include <utility>

Recovery::Recovery(UnsavedWork::Source source, Restore restoreCopy, RecoveryBar& recoveryBar)
    : work(std::move(source)), restore(std::move(restoreCopy)), bar(recoveryBar)
{
    work.isSaved({});  // an empty window holds nothing to keep
    connect(&bar, &RecoveryBar::restoreAsked, this, &Recovery::restoreOffered);
    connect(&bar, &RecoveryBar::forgetAsked, this, &Recovery::forgetOffered);
    // Never started anew, so that typing on and on does not put the copy off.
    constexpr int kEvery = 2000;  // ms
    connect(&timer, &QTimer::timeout, this, &Recovery::keep);
    timer.start(kEvery);
}

void Recovery::keep()
{
    const bool wasKept = std::exchange(kept, work.keep());
    if (wasKept && !kept) {
        emit told(tr("Unsaved work cannot be kept in %1. Save it soon.")
                      .arg(QDir::toNativeSeparators(RecoveryFolder().path())));
    }
}

void Recovery::leaving()
{
    work.leave();
}

void Recovery::opened(const std::string& path, bool successfully)
{
    work.isSaved(successfully ? path : std::string());
    nextOffer = [path] { return RecoveryFolder().newestFor(path); };
    offer();
}

void Recovery::saved(const std::string& path)
{
    work.isSaved(path);
    bar.hide();
}

void Recovery::begun()
{
    nextOffer = [] { return RecoveryFolder().newestWithoutFile(); };
    offer();
}

void Recovery::offer()
{
    offered = nextOffer();
    if (offered) {
        bar.offer(*offered);
    } else {
        bar.hide();
    }
}

// What the window holds until now stays as a copy of its own.
void Recovery::restoreOffered()
{
    std::unique_ptr<RecoveryFile> copy = RecoveryFile::take(offered->path);
    const std::optional<RecoveryHead> head = copy != nullptr ? copy->head() : std::nullopt;
    if (!head) {
        copy = nullptr;  // so that a damaged one is found, and told
        emit told(tr("That work is not there any more, or another window has it."));
        offer();
        return;
    }
    work.leave();
    if (!restore(copy->path(), *head)) {
        work.isSaved({});
        return;
    }
    work.continueWith(std::move(copy), *head);
    bar.hide();
}

void Recovery::forgetOffered()
{
    if (const std::unique_ptr<RecoveryFile> copy = RecoveryFile::take(offered->path)) {
        copy->remove();
    }
    offer();
}
