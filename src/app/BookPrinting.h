#pragma once

#include <QImage>
#include <QObject>
#include <QSettings>

#include <functional>
#include <optional>
#include <string>

#include "oid/OidProject.h"
#include "pdf/PdfOptions.h"

class Document;
class KVQtStdoutWidget;
class QAction;
class QToolButton;

// Paper for the author's own printer: the button "PDF" with its menu, and what it makes. Long work
// shows how far it is and can be cancelled.
class BookPrinting : public QObject
{
    Q_OBJECT

public:
    // What the window does for it.
    struct Window
    {
        std::function<void()> takeForm;                     // into the document
        std::function<void(const QString&)> tell;           // beside the button
        std::function<QImage()> picture;                    // of the current page, upright
        std::function<std::optional<Oid::PNT>()> selected;  // a point of the area that is selected
    };

    // All outlives it. The action is another entry of the menu.
    BookPrinting(const Document& document, KVQtStdoutWidget& console, QToolButton& button,
                 QAction* addStart, const Window& window);

    // Where options and profiles are kept from now on; the settings outlive it.
    void keepSettingsIn(QSettings& kept) { settings = &kept; }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void prepareMenu(QToolButton& button, QAction* addStart);
    void makeBook();
    void makeSymbols();
    void makeTest();
    void begin();
    void askAndMake(const PdfOptions& options, const std::string& path);
    void make(const PdfOptions& options, const QString& file);
    void runTest(const QString& folder, const std::vector<int>& resolutions,
                 const QString& language);
    QWidget* window() const;

    const Document& document;
    KVQtStdoutWidget& console;
    QToolButton& button;
    const Window of;
    QSettings usual{"Plinkett", "Plinkett"};
    QSettings* settings = &usual;
};
