#pragma once

#include <QObject>
#include <QString>

class QUrl;

// Stands in for the desktop, which would start a browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser();
    ~Browser() override;

    // Where the last page that was opened leads: "areas-draw".
    QString place;
    QString file;

public slots:
    void open(const QUrl& url);
};

// Whether the manual has this place in all of its languages.
bool isInManual(const QString& place);
