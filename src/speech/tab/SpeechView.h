#pragma once

#include <QTableView>

class SpeechFilter;

// The table of the texts: its rows can be played, lead to the script, and take files.
class SpeechView : public QTableView
{
    Q_OBJECT

public:
    explicit SpeechView(SpeechFilter& shown, QWidget* parent = nullptr);

signals:
    // The rows are those of the filter.
    void playAsked(int row);
    // The author wants to see the row's line in the script, or, by a mere click, only to have the
    // script stand there.
    void lineAsked(int row);
    void rowClicked(int row);
    // A sound file was dropped on a row.
    void fileDropped(int row, const QString& path);
    // Several files were dropped on the table, or a folder.
    void filesDropped(const QStringList& paths);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void markRow(int row);
    void markAll(bool marked);
    void fitColumns();
    void takeClick(const QModelIndex& index);

    int rowBelowDrag = -1;
    bool isBelowDrag = false;  // all of the table
};
