#pragma once

#include "tryout/TestRecorder.h"
#include "tryout/TriedBook.h"

#include <QWidget>

#include <functional>
#include <vector>

class Conversation;
class Document;
class PageWindow;
class QComboBox;
class QLabel;
class QLayout;
class QPushButton;
class QTabBar;
class ReaderPage;
class ScriptView;
class VariableTable;

// The book as its reader has it before him: pages to be tapped, what is said, and what happens
// behind it. Only shows and asks; what happens is TriedBook's.
class TryTab : public QWidget
{
    Q_OBJECT

public:
    // The document, whose current page is shown, outlives the tab.
    TryTab(Document& document, const TriedBook::Source& source, QWidget* parent = nullptr);
    ~TryTab() override;

    // Before another project comes: offers to keep the test that is being recorded.
    void keepTest();
    // Another project has come.
    void forget() { book.forget(); }

    // Asks for a file for the text of a book test, and writes it. False when it was not written.
    std::function<bool(const std::string& test)> saveTest = [](const std::string&) {
        return false;
    };

signals:
    // For the author.
    void told(const QString& text);
    void pageAsked(int page);
    // The author wants to change this line of the script.
    void lineAsked(int line);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeControls();
    QWidget* makePanels();
    void arrangePanels();
    QPushButton* addButton(QLayout& row, const char* name, const QString& text,
                           const QString& toolTip, const char* key = nullptr);
    void connectBook();
    void takeTaps(ReaderPage* page);

    void tapArea(const QString& area);
    void turn(int way);
    void begin(const TriedBook::Tap& tap);
    void showBook();
    void showMoves();
    void showState();
    void showPages();
    void toggleWindow();
    void record(bool on);
    void useSound();

    Document& document;
    TriedBook book;
    ReaderPage* page;
    PageWindow* window = nullptr;  // once it was wanted
    Conversation* conversation = nullptr;
    VariableTable* variables = nullptr;
    ScriptView* script = nullptr;
    QTabBar* panelTabs = nullptr;  // seen where there is room for one panel only
    std::vector<QWidget*> panels;
    QComboBox* pages = nullptr;
    QLabel* state = nullptr;
    QPushButton* windowButton = nullptr;
    QPushButton* recordButton = nullptr;
    TestRecorder recorder;
    bool showingPages = false;
};
