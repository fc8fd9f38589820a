#pragma once

#include <QStringList>

class QSettings;

// The project files that were opened or saved last, the latest first. Several windows share them
// through the settings; without settings they are only remembered by this one.
class RecentBooks
{
public:
    static constexpr int kMost = 10;

    // The settings outlive this.
    void keepIn(QSettings& settings);

    // Whole paths.
    QStringList files() const;
    void add(const QString& file);
    void remove(const QString& file);

private:
    void keep(const QStringList& files);

    QSettings* settings = nullptr;
    QStringList remembered;
};
