#pragma once

#include "app/MainWindow.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"
#include "page/PolyEditorWidget.h"
#include "tests/app/DialogAnswers.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/PaintCounter.h"

#include <QImage>
#include <QTest>

// A window that is shown, with a folder of its own for projects, used as an author uses it: through
// its controls.
class WindowFixture
{
public:
    WindowFixture();
    // Fails the test when a dialog came that nobody expected, or one that was expected did not.
    ~WindowFixture();

    // A control by its name in the form.
    template <class T>
    T* get(const char* name)
    {
        T* const control = window.findChild<T*>(name);
        Q_ASSERT(control != nullptr);
        return control;
    }

    void click(const char* button);
    void clickAt(QPoint point);  // on the picture
    // Replaces what a field holds, key by key.
    void type(const char* lineEdit, const QString& text);
    void trigger(const char* action);

    // Writes a project file with its pictures into the folder and opens it.
    void open(const std::string& project, int pictures = 0);
    // Saves the project under its path and returns the file.
    std::string saved();
    QString path(const char* name) const { return QString::fromStdString(folder.file(name)); }
    void makePicture(const char* name, QSize size = {200, 100}, int dotsPerMetre = 0);

    QString field(const char* lineEdit);
    QString script();
    QString console();
    QString tab();
    QString status();  // what the status bar says
    QString text(const char* label);

    OwnDataFolder userData;  // what the window keeps for the user
    TemporaryFolder folder;
    DialogAnswers dialogs;
    MainWindow window;
};

// A project of pictures, each given by its lines between DPI and the next IMAGE.
std::string projectFile(const std::vector<std::string>& pictures, const std::string& script = "",
                        const std::string& product = "PRODUCT 900, \"Zoo\"");
