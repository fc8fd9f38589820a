// The progress of a long work, as its dialog shows it.
#include "app/WorkProgress.h"

#include <QTest>

class WorkProgressTest : public QObject
{
    Q_OBJECT

private slots:
    void showsHowFarTheWorkIs()
    {
        QWidget window;
        WorkProgress progress(window, "Working...", "Cancel");
        progress.tell(30, 200);
        const QProgressDialog* const dialog = window.findChild<QProgressDialog*>();
        QCOMPARE(dialog->value(), 30);
        QCOMPARE(dialog->maximum(), 200);
    }

    void endsAtAHundredPercentEvenWhenMoreIsTold()
    {
        QWidget window;
        WorkProgress progress(window, "Working...", "Cancel");
        progress.tell(90, 200);
        progress.tell(208, 200);
        const QProgressDialog* const dialog = window.findChild<QProgressDialog*>();
        QCOMPARE(dialog->value(), 200);
        QCOMPARE(dialog->maximum(), 200);
    }
};

QTEST_MAIN(WorkProgressTest)
#include "WorkProgressTest.moc"
