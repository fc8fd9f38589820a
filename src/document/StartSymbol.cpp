#include "document/StartSymbol.h"

#include <algorithm>
#include <vector>

namespace {

constexpr char kName[] = "START";
constexpr double kEdge = 20;         // mm
constexpr double kFromEdge = 5;      // mm, from the edges of the page
constexpr double kUnknownEdge = 10;  // percent of the width, when the paper is not known
constexpr double kMostOfWidth = 40;  // percent
constexpr int kProbes = 20;          // for each edge of a box

using Areas = std::vector<Oid::POLY>;

// The page in percent of the picture's width, as areas are.
struct Room
{
    Room(const Oid::PICTURE& page, QSize picture)
    {
        const bool paperIsKnown = page.paperWidth > 0 && page.paperHeight > 0;
        const double paperHeight = paperIsKnown ? page.paperHeight / page.paperWidth : 1;
        const double pictureHeight = picture.isEmpty()
                                         ? paperHeight
                                         : static_cast<double>(picture.height()) / picture.width();
        height = 100 * pictureHeight;
        edge = kUnknownEdge;
        if (paperIsKnown) {
            const double drawnWidth = std::min(page.paperWidth, page.paperHeight / pictureHeight);
            edge = kEdge / drawnWidth * 100;
        }
        edge = std::min({edge, kMostOfWidth, kMostOfWidth * pictureHeight});
        gap = edge * kFromEdge / kEdge;
    }

    double height;
    double edge;
    double gap;
};

bool isFree(const Areas& areas, const Oid::PNT& corner, double edge)
{
    const auto isInside = [&](const Oid::PNT& point) {
        return point.x >= corner.x && point.x <= corner.x + edge && point.y >= corner.y &&
               point.y <= corner.y + edge;
    };
    return std::none_of(areas.begin(), areas.end(), [&](const Oid::POLY& area) {
        if (std::any_of(area.points.begin(), area.points.end(), isInside)) {
            return true;
        }
        for (int row = 0; row <= kProbes; ++row) {
            for (int column = 0; column <= kProbes; ++column) {
                const double right = column * edge / kProbes;
                const double down = row * edge / kProbes;
                if (area.isPntInPoly({corner.x + right, corner.y + down})) {
                    return true;
                }
            }
        }
        return false;
    });
}

// The corners of the page, and then all of it from below.
std::vector<Oid::PNT> placesOn(const Room& room)
{
    const double right = 100 - room.gap - room.edge;
    const double bottom = room.height - room.gap - room.edge;
    std::vector<Oid::PNT> places = {
        {right, bottom}, {room.gap, bottom}, {right, room.gap}, {room.gap, room.gap}};
    for (double y = bottom; y >= 0; y -= room.edge / 2) {
        for (double x = right; x >= 0; x -= room.edge / 2) {
            places.push_back({x, y});
        }
    }
    return places;
}

// What has the number already, else "START", counted up while that is something else's.
std::string nameFor(const Oid::OidProject& project)
{
    for (const auto& entry : project.oids) {
        if (entry.second.oid == project.productId) {
            return entry.first;
        }
    }
    std::string name = kName;
    for (int i = 2; project.oids.count(name) == 1; ++i) {
        name = kName + std::to_string(i);
    }
    return name;
}

// The index on the page of an area with the product's number; -1 when there is none.
int startOn(const Oid::OidProject& project, const Areas& areas)
{
    const auto found = std::find_if(areas.begin(), areas.end(), [&](const Oid::POLY& area) {
        const auto entry = project.oids.find(area.name);
        return entry != project.oids.end() && entry->second.oid == project.productId;
    });
    return found != areas.end() ? static_cast<int>(found - areas.begin()) : -1;
}

Oid::POLY boxAt(const std::string& name, const Oid::PNT& corner, double edge)
{
    Oid::POLY box;
    box.name = name;
    box.points = {corner,
                  {corner.x + edge, corner.y},
                  {corner.x + edge, corner.y + edge},
                  {corner.x, corner.y + edge}};
    return box;
}

}  // namespace

StartSymbol giveStartSymbol(Document& document, QSize picture)
{
    const Oid::OidProject& project = document.project();
    const int page = document.currentPage();
    StartSymbol start;
    if (document.pageAt(page) == PageId::none) {
        return start;
    }
    const Oid::PICTURE& paper = project.pictures[static_cast<std::size_t>(page)];
    int index = startOn(project, paper.polys);
    start.isNew = index < 0;
    if (start.isNew) {
        const Room room(paper, picture);
        const std::vector<Oid::PNT> places = placesOn(room);
        const auto place = std::find_if(places.begin(), places.end(), [&](const Oid::PNT& corner) {
            return isFree(paper.polys, corner, room.edge);
        });
        start.covers = place == places.end();
        const Oid::PNT corner = start.covers ? places.front() : *place;
        // Where areas overlap the first one speaks.
        index = start.covers ? 0 : static_cast<int>(paper.polys.size());
        const Gesture gesture = document.newGesture();
        document.apply(edit::AddArea{page, boxAt(nameFor(project), corner, room.edge), index},
                       gesture);
        document.apply(edit::SetNumber{document.areaAt(page, index), project.productId}, gesture);
        document.endGesture();
    }
    start.area = document.areaAt(page, index);
    document.select(page, index);
    return start;
}
