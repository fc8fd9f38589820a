#include "app/Application.h"

#include "qtsync/WhyButton.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t kReserve = 4 << 20;  // bytes, for a message box

}  // namespace

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv),
      end([] { std::_Exit(EXIT_FAILURE); }),
      reserve(std::make_unique<std::byte[]>(kReserve))
{}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        tellOutOfMemory();
        end();
        return false;
    }
}

void Application::tellOutOfMemory()
{
    std::fputs("Error: Out of memory\n", stderr);
    if (reserve == nullptr) {
        return;  // not enough even for the message
    }
    reserve.reset();
    QMessageBox box(
        QMessageBox::Critical, "Plinkett",
        tr("There is not enough memory to go on, so Plinkett ends here. What you had not saved is "
           "kept as it was some seconds ago: open the book again to get it back."),
        QMessageBox::Ok);
    new WhyButton(box, "questions-memory");
    box.exec();
}
