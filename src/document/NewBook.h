#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>

// A book that is to be made: what is known of it before there is any file. Folders and files are
// whole paths.
struct NewBook
{
    Q_DECLARE_TR_FUNCTIONS(NewBook)

public:
    static constexpr int kFirstNumber = 1;
    static constexpr int kLastNumber = 999;

    QString name;  // of the product
    int number = 900;
    QString folder;        // made when it is not there
    QStringList pictures;  // one for each page, in their order

    // In its folder, named as the book; what cannot stand in the name of a file becomes "_".
    QString projectFile() const;
    // A folder named as the book, in that of all books.
    QString folderIn(const QString& books) const;
    // What keeps it from being made, as far as that can be told beforehand, in the author's
    // language; empty when nothing does.
    QString problem() const;

    // Told how many pages are done; false cancels the rest.
    using Progress = std::function<bool(int pages)>;
    struct Outcome
    {
        bool made = false;
        QString problem;  // in the author's language; empty also when it was cancelled
    };
    // Makes folder, project file and pages, as Save and the import of pictures would. Overwrites
    // nothing. When it fails or is cancelled nothing stays of it.
    Outcome make(const Progress& progress) const;

private:
    QString problemOfFolder() const;
    QString problemOfNumber() const;
    QString makeFiles(const Progress& progress) const;
    void removeFiles() const;
};
