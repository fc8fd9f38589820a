#pragma once

#include <QApplication>

#include <cstddef>
#include <functional>
#include <memory>

// The program. It ends in words when there is no memory left: what was being done is half done
// then, so it is not gone on with, and nothing is saved over what lies on the disk. The copy of
// unsaved work of some seconds ago is offered by the next start.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;

    // What ends the program then, at once and with nothing tidied up; for tests.
    std::function<void()> end;

private:
    void tellOutOfMemory();

    std::unique_ptr<std::byte[]> reserve;  // given back for the message
};
