#pragma once

#include "document/SampleBooks.h"

#include <QScrollArea>

class QBoxLayout;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class RecentBooks;

// What an empty window shows in the place of the picture: the ways to a book. It lies over a widget
// and follows its size; what it has no room for is scrolled to.
class WelcomePage : public QScrollArea
{
    Q_OBJECT

public:
    // The books outlive the page.
    WelcomePage(RecentBooks& recent, QWidget* covered);

signals:
    void newBookAsked();
    void openAsked();
    void projectAsked(const QString& file);
    void sampleAsked(const SampleBook& book);
    void told(const QString& message);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeBeginning();
    QWidget* makeRecent();
    void findSamples();
    void showRecent();
    void open(const QListWidgetItem* item);
    void removeCurrent();
    void follow();
    void arrange();

    RecentBooks& recent;
    QWidget* covered;
    QBoxLayout* columns = nullptr;
    QBoxLayout* samples = nullptr;
    QWidget* beginning = nullptr;
    QWidget* last = nullptr;
    QLabel* samplesTitle = nullptr;
    QListWidget* list = nullptr;
    QPushButton* remove = nullptr;
    bool samplesKnown = false;
};
