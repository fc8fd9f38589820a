#include "app/ScriptAreas.h"

#include "app/RenameEverywhere.h"
#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"

#include <QBuffer>
#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

class ScriptAreas
{
    Q_DECLARE_TR_FUNCTIONS(ScriptAreas)

public:
    static QString toolTip(const Document& document, const std::string& name);
};

// The first one of the name; page -1 where there is none.
Contents::Place placeOf(const Oid::OidProject& project, const std::string& name)
{
    for (std::size_t page = 0; page < project.pictures.size(); ++page) {
        const std::vector<Oid::POLY>& areas = project.pictures[page].polys;
        for (std::size_t i = 0; i < areas.size(); ++i) {
            if (areas[i].name == name) {
                return {static_cast<int>(page), static_cast<int>(i)};
            }
        }
    }
    return {};
}

// The part of the picture round the corners; points are in percent of its width.
QImage pieceOf(const QImage& picture, const std::vector<Oid::PNT>& corners)
{
    if (picture.isNull() || corners.empty()) {
        return {};
    }
    QRectF bounds({corners[0].x, corners[0].y}, QSizeF(0, 0));
    for (const Oid::PNT& corner : corners) {
        bounds.setLeft(std::min(bounds.left(), corner.x));
        bounds.setRight(std::max(bounds.right(), corner.x));
        bounds.setTop(std::min(bounds.top(), corner.y));
        bounds.setBottom(std::max(bounds.bottom(), corner.y));
    }
    const double scale = picture.width() / 100.0;
    const QRect pixels = QRectF(bounds.topLeft() * scale, bounds.size() * scale).toAlignedRect();
    const QImage piece = picture.copy(pixels.intersected(picture.rect()));
    constexpr int kLargest = 160;  // pixels
    return piece.width() > kLargest || piece.height() > kLargest
               ? piece.scaled(kLargest, kLargest, Qt::KeepAspectRatio, Qt::SmoothTransformation)
               : piece;
}

QString asHtml(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (image.isNull() || !image.save(&buffer, "PNG")) {
        return {};
    }
    return "<br><img src=\"data:image/png;base64," + QString::fromLatin1(bytes.toBase64()) + "\">";
}

QString ScriptAreas::toolTip(const Document& document, const std::string& name)
{
    const Oid::OidProject& project = document.project();
    const Contents::Place place = placeOf(project, name);
    if (place.page < 0) {
        return {};
    }
    const auto number = project.oids.find(name);
    const QString text = tr("Area %1, number %2, page %3")
                             .arg(QString::fromStdString(name).toHtmlEscaped())
                             .arg(number != project.oids.end() ? number->second.oid : 0)
                             .arg(place.page + 1);
    constexpr int kFineEnough = 1200;  // pixels
    const std::string file = Platform::nativePath(project.pathImageSource(place.page));
    const QImage picture = PictureFile(QString::fromStdString(file)).readSmall(kFineEnough);
    const Oid::PICTURE& page = project.pictures[static_cast<std::size_t>(place.page)];
    return text +
           asHtml(pieceOf(picture, page.polys[static_cast<std::size_t>(place.index)].points));
}

std::vector<std::string> namesOf(const Oid::OidProject& project)
{
    std::vector<std::string> names;
    for (const Oid::PICTURE& page : project.pictures) {
        for (const Oid::POLY& area : page.polys) {
            names.push_back(area.name);
        }
    }
    return names;
}

}  // namespace

BookAreas areasForScript(Document& document, RenameEverywhere& rename,
                         std::function<void()> showPage)
{
    BookAreas areas;
    areas.names = [&document] { return namesOf(document.project()); };
    areas.toolTip = [&document](const std::string& name) {
        return ScriptAreas::toolTip(document, name);
    };
    areas.show = [&document, showPage = std::move(showPage)](const std::string& name) {
        const Contents::Place place = placeOf(document.project(), name);
        if (place.page >= 0) {
            document.select(place.page, place.index);
            showPage();
        }
        return place.page >= 0;
    };
    areas.rename = [&rename](const std::string& name) {
        rename.askFor(QString::fromStdString(name));
    };
    return areas;
}
