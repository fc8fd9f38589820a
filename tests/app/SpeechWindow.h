#pragma once

#include "oid/OpenProject.h"
#include "speech/Engines.h"
#include "speech/SpeechIndex.h"
#include "speech/SpeechTexts.h"
#include "tests/app/WindowFixture.h"
#include "tests/helpers/Environment.h"
#include "tests/sound/FakeSpeech.h"
#include "tests/sound/WavFile.h"

#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QUrl>

// The tab "Speech" of a window over a book with a few texts.

inline constexpr int kPatience = 20000;  // ms

inline const std::string kScript = "sub cow\r\n"
                                   "  say \"Moo\"\r\n"
                                   "  say eve \"Mooo!\"\r\n"
                                   "end sub\r\n"
                                   "sub pig\r\n"
                                   "  say \"Oink\"\r\n"
                                   "end sub\r\n";

inline std::string farm(const std::string& script = kScript)
{
    return projectFile({""}, script, "PRODUCT 900, \"Farm\"");
}

enum Column { voice, text, line, length, state, play };

class SpeechWindow : public FakeSpeech, public WindowFixture
{
public:
    explicit SpeechWindow(const std::string& project = farm())
    {
        if (!project.empty()) {
            open(project, 1);
        }
        showTab();
        window.activateWindow();
    }

    void showTab() { get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabSpeech")); }
    bool isHeard() const
    {
        return QFileInfo(QString::fromStdString(programs.file("heard.raw"))).size() > 0;
    }
    bool allows(const char* button) { return get<QPushButton>(button)->isEnabled(); }
    void drop(const QString& file, QPoint point) { drop(QStringList{file}, point); }
    void drop(const QStringList& files, QPoint point)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files) {
            urls << QUrl::fromLocalFile(file);
        }
        data.setUrls(urls);
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(table().viewport(), &enter);
        QDragMoveEvent move(point, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(table().viewport(), &move);
        QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(table().viewport(), &drop);
    }
    QTableView& table() { return *get<QTableView>("speechTable"); }
    void setScript(const QString& script)
    {
        get<KVQtHighlightEditCtrl>("codeEditor")->setText(script);
    }

    // "adam|Moo|2||missing", a row each.
    QStringList rows()
    {
        QStringList rows;
        const QAbstractItemModel& model = *table().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = voice; column <= state; ++column) {
                cells << model.index(row, column).data().toString();
            }
            rows << cells.join('|');
        }
        return rows;
    }

    QString audio(const char* name) { return path("900-audio/") + name + ".ogg"; }
    // A sound of that length in the place of an audio file; what it is in is known by its
    // beginning.
    void putAudio(const char* name, double seconds = 0.5)
    {
        QDir().mkpath(path("900-audio"));
        writeFile(audio(name).toStdString(), wavFile(1, 22050, tone(1, 22050, 440, seconds)));
    }
    // As if it had just been spoken so.
    void noteSpoken(const char* name, const std::string& words, const std::string& speaker = "adam")
    {
        SpeechIndex index(path("900-audio").toStdString());
        ttbasic script;
        Utterance said = utteranceOf({speaker, words}, script.voices.at(speaker), Engines());
        QVERIFY(index.remember(name, said));
        QVERIFY(index.save());
    }

    QPoint cell(int row, int column)
    {
        return table().visualRect(table().model()->index(row, column)).center();
    }
    void clickCell(int row, int column, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, keys, cell(row, column));
    }
    int caretLine()
    {
        return get<KVQtHighlightEditCtrl>("codeEditor")->surface().editor.selection.end.line + 1;
    }
    void choose(const char* comboBox, const QString& entry)
    {
        auto* const box = get<QComboBox>(comboBox);
        QVERIFY(box->findText(entry) >= 0);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < box->count() && box->currentText() != entry; ++i) {
            QTest::keyClick(box, Qt::Key_Down);
        }
        QCOMPARE(box->currentText(), entry);
    }
};

inline const QStringList kNothingSpoken = {"adam|Moo|2||missing", "eve|Mooo!|3||missing",
                                           "adam|Oink|6||missing",
                                           "adam|Farm. Start.|welcome||missing"};
