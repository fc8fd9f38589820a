#include "app/PageListModel.h"

#include "base/PlatformFiles.h"

#include <QMimeData>
#include <QPainter>

static const char kPage[] = "application/x-plinkett-page";

PageListModel::PageListModel(Document& shown, QObject* parent)
    : QAbstractListModel(parent), document(shown), thumbnails(new Thumbnails(this))
{
    connect(&document, &Document::changed, this, &PageListModel::showChange);
    connect(thumbnails, &Thumbnails::made, this, [this] {
        if (count > 0) {
            emit dataChanged(index(0), index(count - 1), {Qt::DecorationRole});
        }
    });
    showChange(Change{Change::everything, -1, {}});
}

int PageListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count;
}

// As large as all others, so that the list does not jump when one comes.
QImage PageListModel::picture(int page) const
{
    QImage framed(Thumbnails::kSide, Thumbnails::kSide, QImage::Format_ARGB32_Premultiplied);
    framed.fill(Qt::transparent);
    const QString path =
        QString::fromStdString(Platform::nativePath(document.project().pathImageSource(page)));
    const QImage image = thumbnails->of(path);
    QPainter painter(&framed);
    if (image.isNull()) {
        painter.setPen(Qt::gray);
        painter.drawRect(framed.rect().adjusted(4, 20, -5, -21));
    } else {
        painter.drawImage((framed.width() - image.width()) / 2,
                          (framed.height() - image.height()) / 2, image);
    }
    return framed;
}

QVariant PageListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= static_cast<int>(document.project().pictures.size())) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QString::number(index.row() + 1);
    case Qt::DecorationRole:
        return picture(index.row());
    case Qt::AccessibleTextRole:
        return tr("Page %1").arg(index.row() + 1);
    default:
        return {};
    }
}

Qt::ItemFlags PageListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractListModel::flags(index);
    return index.isValid() ? usual | Qt::ItemIsDragEnabled : usual | Qt::ItemIsDropEnabled;
}

QStringList PageListModel::mimeTypes() const
{
    return {kPage};
}

QMimeData* PageListModel::mimeData(const QModelIndexList& indexes) const
{
    auto* const data = new QMimeData;
    data->setData(kPage, QByteArray::number(indexes.value(0).row()));
    return data;
}

// False: the view has nothing to take away, the document moves the page.
bool PageListModel::dropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int row,
                                 int /*column*/, const QModelIndex& /*parent*/)
{
    if (data->hasFormat(kPage)) {
        const int page = data->data(kPage).toInt();
        const int before = row < 0 ? count : row;
        emit moveAsked(page, before > page ? before - 1 : before);
    }
    return false;
}

void PageListModel::showChange(const Change& change)
{
    const bool otherPictures = change.has(Change::pictureFile) || change.has(Change::product);
    if (otherPictures) {
        thumbnails->clear();
    }
    if (change.has(Change::pages)) {
        beginResetModel();
        count = static_cast<int>(document.project().pictures.size());
        endResetModel();
    } else if (otherPictures && count > 0) {
        emit dataChanged(index(0), index(count - 1), {Qt::DecorationRole});
    }
}
