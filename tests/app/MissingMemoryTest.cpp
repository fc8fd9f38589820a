// The window without memory: it says so once, and ends.
#include "app/Application.h"

#include "tests/app/DialogAnswers.h"

#include <QTest>

#include <new>

namespace {

// Something of the window that gets no memory for what it is to do.
class Hungry : public QObject
{
public:
    bool event(QEvent* /*event*/) override { throw std::bad_alloc(); }
};

QString saidWhileHungry(Application& application, int& ended)
{
    application.end = [&ended] { ++ended; };
    DialogAnswers answers;
    answers.press("OK");
    Hungry hungry;
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&hungry, &event);
    return answers.seen().join('|');
}

}  // namespace

class MissingMemoryTest : public QObject
{
    Q_OBJECT

private slots:
    void isToldOnceAndEndsTheProgram()
    {
        auto& application = *static_cast<Application*>(QCoreApplication::instance());
        int ended = 0;
        QCOMPARE(saidWhileHungry(application, ended),
                 QString("Plinkett: There is not enough memory to go on, so Plinkett ends here. "
                         "What you had not saved is kept as it was some seconds ago: open the book "
                         "again to get it back."));
        QCOMPARE(ended, 1);
        QCOMPARE(saidWhileHungry(application, ended), QString());  // there is no reserve any more
        QCOMPARE(ended, 2);
    }
};

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    MissingMemoryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MissingMemoryTest.moc"
