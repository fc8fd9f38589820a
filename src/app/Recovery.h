#pragma once

#include "app/RecoveryBar.h"
#include "document/UnsavedWork.h"

#include <QObject>
#include <QTimer>

#include <functional>

// Keeps the window's unsaved work, looking for changes every two seconds, and offers in a bar what
// an earlier window left.
class Recovery : public QObject
{
    Q_OBJECT

public:
    // Brings the copy in this file into the window; the head says what it is. False when it cannot
    // be read; then the window is empty.
    using Restore = std::function<bool(const QString& file, const RecoveryHead& head)>;

    // The bar stays the window's.
    Recovery(UnsavedWork::Source source, Restore restore, RecoveryBar& bar);

    // Keeps what has changed. Also called before works that let no timer through.
    void keep();
    // The same, and waits until it is written. False when it could not be.
    bool keepNow() { return work.keepNow(); }
    // The window is about to show another project.
    void leaving();
    // It shows this one now, or could not open it.
    void opened(const std::string& path, bool successfully);
    void saved(const std::string& path);
    // The window has begun without a project.
    void begun();

signals:
    void told(const QString& message);

private:
    void offer();
    void restoreOffered();
    void forgetOffered();

    UnsavedWork work;
    Restore restore;
    RecoveryBar& bar;
    QTimer timer;
    std::function<std::optional<FoundCopy>()> nextOffer;
    std::optional<FoundCopy> offered;
    bool kept = true;
};
