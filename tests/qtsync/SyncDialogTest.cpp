#include "qtsync/KVQSyncDialog.h"

#include "qtsync/KVQtSync.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// Asks for the name of an animal.
class AnimalDialog : public KVQSyncDialog
{
public:
    QString name = "cow";
    QLineEdit* edit = new QLineEdit(this);
    QDialogButtonBox* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QStringList directions;

    AnimalDialog()
    {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(edit);
        layout->addWidget(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

    // Runs the dialog while the user types a text and clicks a button.
    int runTyping(const QString& text, QDialogButtonBox::StandardButton button)
    {
        QTimer::singleShot(0, this, [=] {
            edit->selectAll();
            QTest::keyClicks(edit, text);
            QTest::mouseClick(buttons->button(button), Qt::LeftButton);
        });
        return exec();
    }

protected:
    void synchronise(KVQtSync& sync) override
    {
        directions << (sync.mode() == KVQtSync::ToWidgets ? "to" : "from");
        sync.syncS(name, edit);
    }
};

}  // namespace

class SyncDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { KVQtSync::DocumentIsModified(false); }

    void fieldsAreFilledBeforeTheDialogRunsAndReadAfter()
    {
        AnimalDialog dialog;
        QString shown;
        QTimer::singleShot(0, &dialog, [&] {
            QVERIFY(dialog.isModal());
            shown = dialog.edit->text();
            dialog.edit->setText("goat");
            dialog.accept();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(shown, QString("cow"));
        QCOMPARE(dialog.name, QString("goat"));
        QCOMPARE(dialog.directions, QStringList({"to", "from"}));
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void theAcceptedTextIsReadBack()
    {
        AnimalDialog dialog;
        QCOMPARE(dialog.runTyping("hen", QDialogButtonBox::Ok), int(QDialog::Accepted));
        QCOMPARE(dialog.name, QString("hen"));
    }

    void theRejectedTextIsReadBackToo()
    {
        AnimalDialog dialog;
        QCOMPARE(dialog.runTyping("hen", QDialogButtonBox::Cancel), int(QDialog::Rejected));
        QCOMPARE(dialog.name, QString("hen"));
    }

    void anUnchangedDialogLeavesTheDocumentUnmodified()
    {
        AnimalDialog dialog;
        QTimer::singleShot(0, &dialog, &QDialog::reject);
        dialog.exec();
        QVERIFY(!KVQtSync::DocumentIsModified());
    }

    void handlersMayUseAPassOfTheirOwnWhileTheDialogRuns()
    {
        AnimalDialog dialog;
        QString readInside;
        QTimer::singleShot(0, &dialog, [&] {
            readInside = KVQt::getS(dialog.edit);
            dialog.reject();
        });
        dialog.exec();
        QCOMPARE(readInside, QString("cow"));
    }
};

QTEST_MAIN(SyncDialogTest)
#include "SyncDialogTest.moc"
