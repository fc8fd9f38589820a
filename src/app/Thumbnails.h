#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QThreadPool>

// Small images of picture files. They are read on another thread and kept in bounded memory.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    static constexpr int kSide = 128;  // pixels, of the longer side

    explicit Thumbnails(QObject* parent);
    // Waits for the picture that is just being read.
    ~Thumbnails() override;

    // The null image while it is not there yet, or for a file that is no picture.
    QImage of(const QString& path);
    // Files have changed.
    void clear();

signals:
    void made();

private:
    void keep(const QString& key, const QImage& image);

    QCache<QString, QImage> images;
    QSet<QString> asked;
    QThreadPool reader;
};
