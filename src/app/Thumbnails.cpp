#include "app/Thumbnails.h"

#include "oid/PictureFile.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRunnable>

#include <functional>
#include <utility>

namespace {

constexpr int kMostKept = 256;

class Reading : public QRunnable
{
public:
    Reading(QString file, std::function<void(const QImage&)> whenRead)
        : path(std::move(file)), done(std::move(whenRead))
    {}
    void run() override { done(PictureFile(path).readSmall(Thumbnails::kSide)); }

private:
    QString path;
    std::function<void(const QImage&)> done;
};

}  // namespace

Thumbnails::Thumbnails(QObject* parent) : QObject(parent), images(kMostKept)
{
    reader.setMaxThreadCount(1);
}

Thumbnails::~Thumbnails()
{
    reader.clear();
    reader.waitForDone();
}

QImage Thumbnails::of(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return {};
    }
    const QString key = path + '?' + QString::number(file.size()) + '?' +
                        QString::number(file.lastModified().toMSecsSinceEpoch());
    if (const QImage* const image = images.object(key)) {
        return *image;
    }
    if (!asked.contains(key)) {
        asked.insert(key);
        reader.start(new Reading(path, [this, key](const QImage& image) {
            QMetaObject::invokeMethod(this, [this, key, image] { keep(key, image); });
        }));
    }
    return {};
}

// One that was asked for before clear has lost its key, and is not kept.
void Thumbnails::keep(const QString& key, const QImage& image)
{
    if (asked.remove(key)) {
        images.insert(key, new QImage(image));
        emit made();
    }
}

void Thumbnails::clear()
{
    reader.clear();
    images.clear();
    asked.clear();
}
