#pragma once

#include "programs/OutsideProgram.h"

#include <QComboBox>
#include <QProcess>

// The languages that can be spoken. It begins with those it is given, and gets the others when the
// speech program has told them.
class LanguageBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LanguageBox(const QStringList& languages, QWidget* parent = nullptr);
    ~LanguageBox() override;

    // Such as "de".
    QString language() const { return chosen; }
    void choose(const QString& language);

signals:
    // Another one is chosen.
    void languageChanged();
    // The speech program does not tell its languages; why, in its own words if it has any.
    void incomplete(const QString& words);

private:
    void noticeChoice();
    void add(const QString& language, const QString& title);
    void takeLanguages();

    QString chosen;
    QProcess process;
    OutsideProgram program{process};
};
