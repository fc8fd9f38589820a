#pragma once

#include <QDialog>

#include <string>
#include <vector>

class QDialogButtonBox;
class TickTable;

// Audio files that no text uses: the author says which of them go into the trash.
class TidyDialog : public QDialog
{
    Q_OBJECT

public:
    struct File
    {
        std::string name;
        bool isOurs;  // it was spoken for the author
    };

    explicit TidyDialog(std::vector<File> unused, QWidget* parent = nullptr);

    // After it was accepted: the names of those that are to go.
    std::vector<std::string> chosen() const;

private:
    void allowMove();

    const std::vector<File> files;
    TickTable* const table;
    QDialogButtonBox* const buttons;
};
