#pragma once

#include "document/Document.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// An author who does anything, in any order.
class RandomAuthor
{
public:
    // Where chance comes from: any numbers.
    RandomAuthor(Document& edited, std::function<std::uint32_t()> chance)
        : document(edited), random(std::move(chance))
    {}

    int below(int n) { return static_cast<int>(random() % static_cast<std::uint32_t>(n)); }

    void edit(Gesture gesture = Gesture::none) { document.apply(anyEdit(), gesture); }
    void movePage()
    {
        const int page = below(pages());
        if (below(2) == 0 && pages() > 1) {
            document.apply(edit::RemovePage{page});
        } else {
            document.apply(edit::MovePage{page, below(pages())});
        }
    }
    // As the window does it; false when the disk does not take it.
    bool save() { return document.save(document.project().projectPath); }

    // Several edits as one.
    void gesture()
    {
        const Gesture one = document.newGesture();
        for (int count = 1 + below(6); count > 0; --count) {
            edit(one);
        }
    }

    // Any areas of a page, or none.
    void select()
    {
        std::vector<AreaId> areas(static_cast<std::size_t>(below(5)));
        std::generate(areas.begin(), areas.end(), [this] { return anyArea(); });
        document.selectAreas(below(pages()), areas);
    }

private:
    int pages() const { return static_cast<int>(document.project().pictures.size()); }
    double anyNumber() { return random() / 4294967296.0 * 140 - 20; }
    std::string anyName() { return std::string(1, static_cast<char>('a' + below(6))); }

    std::vector<Oid::PNT> anyCorners()
    {
        std::vector<Oid::PNT> corners(static_cast<std::size_t>(below(7)));
        for (Oid::PNT& corner : corners) {
            corner = {anyNumber(), anyNumber()};
        }
        return corners;
    }

    AreaId anyArea()
    {
        const int page = below(pages());
        const auto count = document.project().pictures[static_cast<std::size_t>(page)].polys.size();
        return document.areaAt(page, below(static_cast<int>(count) + 1));  // may be none
    }

    std::vector<Oid::PNT> otherCorners(AreaId area)
    {
        const Contents::Place place = document.placeOf(area);
        if (place.page < 0 || below(3) == 0) {
            return anyCorners();
        }
        std::vector<Oid::PNT> corners = document.project()
                                            .pictures[static_cast<std::size_t>(place.page)]
                                            .polys[static_cast<std::size_t>(place.index)]
                                            .points;
        const Oid::PNT corner{anyNumber(), anyNumber()};
        if (corners.empty() || below(2) == 0) {
            corners.insert(corners.begin() + below(static_cast<int>(corners.size()) + 1), corner);
        } else {
            corners[static_cast<std::size_t>(below(static_cast<int>(corners.size())))] = corner;
        }
        return corners;
    }

    Edit anyEdit()
    {
        switch (below(16)) {
        case 0:
        case 1:
        case 2: {
            Oid::POLY area;
            area.name = anyName();
            area.points = anyCorners();
            return edit::AddArea{below(pages()), area, below(8) - 1};
        }
        case 3:
            return edit::RemoveArea{anyArea()};
        case 4:
        case 5: {
            const AreaId area = anyArea();
            return edit::SetCorners{area, otherCorners(area)};
        }
        case 6:
            return edit::MoveAreas{{anyArea()}, {anyNumber(), anyNumber()}};
        case 7:
            return edit::RenameAreas{{anyArea(), anyArea()}, anyName()};
        case 8:
            return edit::RenameArea{anyArea(), anyName()};
        case 9:
            return edit::SetNumber{anyArea(), below(3) * 500};
        case 10:
            return edit::ReorderArea{anyArea(), below(5)};
        case 11:
        case 14:
        case 15:
            return edit::SetPaper{below(pages()), anyNumber(), anyNumber(), below(2400)};
        case 12:
            return edit::AddPage{{}, below(3) > 0 ? QByteArray() : QByteArray::number(below(9))};
        default:
            return edit::ReplacePicture{below(pages()), QByteArray::number(below(9))};
        }
    }

    Document& document;
    std::function<std::uint32_t()> random;
};
