#pragma once

#include <QDialog>

#include <vector>

#include "speech/SpeechImport.h"
#include "speech/tab/SpeechJobs.h"
#include "speech/tab/SpeechWork.h"

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QProgressBar;
class TickTable;

// Recordings of the author's own that came from somewhere: what each of them would become, and then
// what became of it. The author leaves out what is not wanted.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    // The texts are those in which the files were found.
    ImportDialog(const SpeechImport& found, const std::vector<SpeechText>& allTexts,
                 Oid::OidProject project, QWidget* parent = nullptr);

    // What came of it, in sentences for the author; none when nothing was taken over.
    QStringList sentences() const { return told; }

    // Takes over what has a tick; when that is done, closes.
    void accept() override;
    // Ends what is being made.
    void reject() override;

private:
    QWidget* makeEnd();
    void fill(const SpeechImport& found);
    void addDoubts(const std::vector<SpeechImport::Doubt>& doubts, const QString& reason);
    void showCount();
    void begin();
    void end(const QStringList& sentences);
    QString nameOfText(std::size_t text) const;
    QString planOf(const SpeechImport::Match& match) const;

    const std::vector<SpeechText> texts;
    Oid::OidProject book;                            // until they are taken over
    const std::vector<SpeechImport::Match> matches;  // the first rows
    std::vector<int> takenRows;
    SpeechJobs::Reports reports;
    QStringList told;
    bool isDone = false;

    QLabel* const summary;
    TickTable* const table;
    QCheckBox* const all;
    QProgressBar* const progress;
    QDialogButtonBox* const buttons;
    SpeechWork work;
};
