#pragma once

#include "app/Thumbnails.h"
#include "document/Document.h"

#include <QAbstractListModel>

// The pages of a document with small pictures of them. A page that is dragged to another place asks
// for the move.
class PageListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    // The document outlives the model.
    PageListModel(Document& document, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    void moveAsked(int page, int to);

private:
    void showChange(const Change& change);
    QImage picture(int page) const;

    Document& document;
    Thumbnails* thumbnails;
    int count = 0;
};
