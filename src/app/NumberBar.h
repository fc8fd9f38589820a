#pragma once

#include "app/NoticeBar.h"

#include <string>

namespace Oid {
class OidProject;
}

// Tells that a book has come into a folder where another one has its number, and offers one that is
// free.
class NumberBar : public NoticeBar
{
    Q_OBJECT

public:
    explicit NumberBar(QWidget* parent = nullptr);

    // The project has just been opened: where it is and which number it has is the author's choice.
    void opened(const Oid::OidProject& project);
    // The project has just been saved, maybe into another folder or under another number.
    void saved(const Oid::OidProject& project);

signals:
    void numberTaken(int number);

private:
    void tellShared(const Oid::OidProject& project);
    void offer(int number);

    QPushButton* take;
    std::string folder;  // of the project as it was opened or saved last
    int number = 0;
    int freeNumber = 0;
};
