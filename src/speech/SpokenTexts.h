#pragma once

#include "programs/OutsideProgram.h"
#include "ttbasic/ttbasic.h"

#include <QObject>
#include <QProcess>
#include <QString>

#include <optional>
#include <string>

// Texts that have no audio file yet, spoken by the speech program into files of our own, where they
// are found again. Nothing here waits.
class SpokenTexts : public QObject
{
    Q_OBJECT

public:
    // Where the files lie; a folder that is not there is made when it is needed.
    explicit SpokenTexts(QString folder, QObject* parent = nullptr);
    ~SpokenTexts() override;

    // Why a text is not spoken.
    enum class Problem {
        tooLong,    // for the speech program
        noProgram,  // there is no speech program
        failed      // the program could not
    };

    // The folder in the user's cache.
    static QString usualFolder();

    // One text at a time: only for the last one, ready or failed will come. Not within this call.
    void want(const std::string& text, const ttbasic::VOICE& voice);
    // None is wanted any more.
    void giveUp() { wanted.reset(); }
    // Nor is the one that is being spoken to be finished for another time.
    void cancel();

signals:
    void ready(const QString& file);
    // With what the program said about it, in one line; it may have said nothing.
    void failed(SpokenTexts::Problem problem, const QString& words);

private:
    struct Speech
    {
        std::string text;
        ttbasic::VOICE voice;
        QString file;
    };

    QString fileOf(const std::string& text, const ttbasic::VOICE& voice) const;
    void bringOn();
    void speak();
    void takeSpoken();
    void tell(Problem problem, const QString& words = {});

    const QString folder;
    const QString unfinishedFile;
    QProcess process;
    OutsideProgram program{process};
    std::optional<Speech> wanted;
    std::optional<Speech> spoken;  // by the program, while it runs
};
