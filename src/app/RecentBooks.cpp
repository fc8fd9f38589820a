#include "app/RecentBooks.h"

#include <QSettings>

static const char kKey[] = "books/recent";

void RecentBooks::keepIn(QSettings& kept)
{
    settings = &kept;
}

QStringList RecentBooks::files() const
{
    const QStringList all = settings != nullptr ? settings->value(kKey).toStringList() : remembered;
    return all.mid(0, kMost);
}

void RecentBooks::add(const QString& file)
{
    QStringList all = files();
    all.removeAll(file);
    all.prepend(file);
    keep(all.mid(0, kMost));
}

void RecentBooks::remove(const QString& file)
{
    QStringList all = files();
    all.removeAll(file);
    keep(all);
}

void RecentBooks::keep(const QStringList& all)
{
    remembered = all;
    if (settings != nullptr) {
        settings->setValue(kKey, all);
    }
}
