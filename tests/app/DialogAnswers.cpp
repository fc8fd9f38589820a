#include "tests/app/DialogAnswers.h"

#include "qtsync/WhyButton.h"
#include "tests/app/ManualPlaces.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

DialogAnswers::DialogAnswers()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    connect(&timer, &QTimer::timeout, this, &DialogAnswers::answer);
    timer.start(5);
}

void DialogAnswers::chooseFile(const QString& path)
{
    answers.emplace_back([path](QWidget& dialog) {
        QLineEdit* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

void DialogAnswers::cancel()
{
    answers.emplace_back([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
}

void DialogAnswers::press(const QString& button)
{
    answers.emplace_back([this, button](QWidget& dialog) {
        for (QAbstractButton* const candidate : dialog.findChildren<QAbstractButton*>()) {
            if (candidate->text().remove('&') == button) {
                QTest::mouseClick(candidate, Qt::LeftButton);
                return;
            }
        }
        shown << "no button: " + button;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

void DialogAnswers::look(std::function<void(QWidget&)> lookAt)
{
    answers.emplace_back(std::move(lookAt));
}

namespace {

// What tells of something wrong leads to the place of the manual that says what to do.
bool leadsToManual(const QMessageBox& box)
{
    const bool tellsOfTrouble =
        box.icon() == QMessageBox::Warning || box.icon() == QMessageBox::Critical;
    const WhyButton* const why = box.findChild<WhyButton*>();
    return !tellsOfTrouble || (why != nullptr && isInManual(why->place()));
}

}  // namespace

void DialogAnswers::answer()
{
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || dialog->inherits("QProgressDialog")) {
        return;
    }
    QString line = dialog->windowTitle();
    if (const QMessageBox* const box = qobject_cast<QMessageBox*>(dialog)) {
        line += ": " + box->text();
        if (!leadsToManual(*box)) {
            shown << "unexpected: no place in the manual for " + line;
        }
    }
    if (answers.empty()) {
        shown << "unexpected: " + line;
        QTest::keyClick(dialog, Qt::Key_Escape);
        return;
    }
    shown << line;
    const auto next = answers.front();
    answers.pop_front();
    next(*dialog);
}
