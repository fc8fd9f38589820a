#pragma once

#include <QDialog>
#include <QMap>

#include <deque>

#include "sound/SoundPlayer.h"
#include "speech/SpokenTexts.h"
#include "speech/tab/NewVoice.h"

class LanguageBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class VoiceTable;

// One sentence in many voices, those of the script and others, to be heard. One that the author
// likes becomes a statement for the script. Nothing here waits.
class TryVoicesDialog : public QDialog
{
    Q_OBJECT

public:
    // The script's voices, the built-in ones among them.
    explicit TryVoicesDialog(const Voices& voices, QWidget* parent = nullptr);
    ~TryVoicesDialog() override;

    // After it was accepted: the line that declares the chosen voice, without a line end, such as
    // "voice grandma lang de sex f age 70".
    QString statement() const;

private:
    QLayout* makeFields();
    QLayout* makePlayButtons();
    QLayout* makeChoice();
    QPushButton* makeButton(const char* name, const QString& text, const QString& toolTip,
                            void (TryVoicesDialog::*slot)());
    void connectSpeech();

    void showVoice();
    void showSentence();
    void showStatement();
    QString complaintOfName() const;

    void play();
    void playAll();
    void playRows(const std::vector<int>& rows);
    void playNext();
    void stop();
    void setBusy(bool busy);
    void say(const QString& text);
    void complain(const QString& text);
    void showMessage(const QString& text);

    const Voices scriptVoices;
    VoiceTable* const table;
    LanguageBox* languages = nullptr;
    QLineEdit* const sentence;
    QLineEdit* const name;
    QLabel* const preview;
    QLabel* const message;
    QPushButton* playButton = nullptr;
    QPushButton* playAllButton = nullptr;
    QPushButton* stopButton = nullptr;
    QDialogButtonBox* buttons = nullptr;
    QMap<QString, QString> sentences;  // as the author changed them, by language
    std::deque<int> waiting;           // rows that are heard next
    QString speaker;                   // the name of who is heard now, or soon
    bool hasComplained = false;        // since the author asked for a voice
    SpokenTexts speech;
    SoundPlayer player;
};
