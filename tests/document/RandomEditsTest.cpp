#include "document/Document.h"

#include "tests/document/Snapshot.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

// An author who does anything, in any order.
class RandomAuthor
{
public:
    RandomAuthor(Document& edited, unsigned seed) : document(edited), random(seed) {}

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

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
    // As the window does it.
    void save() { EXPECT_TRUE(document.save(document.project().projectPath)); }

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
    double anyNumber() { return std::uniform_real_distribution<double>(-20, 120)(random); }
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
    std::mt19937 random;
};

std::string all(Document& document)
{
    return snapshot(document) + savedBytes(document);
}

// What the author did not ask for by itself.
void follow(Document& document)
{
    document.orientAreas(0);
    document.numberAllAreas();
}

}  // namespace

// Every state that an undo or a redo leads to is, to the last bit, the one that was there before:
// also after what the author did not ask for (orientation, numbers), and after new steps on top of
// undone ones.
TEST(RandomEdits, AreUndoneAndRedoneExactly)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        const TemporaryFolder folder;
        Document document;
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().print = CapturedMessages::print;
        document.projectRecord().pictures.resize(1);
        document.restart();
        RandomAuthor author(document, seed);
        std::vector<std::string> done{all(document)};  // the last one is now
        std::vector<std::string> undone;
        for (int i = 0; i < 100; ++i) {
            if (undone.empty() &&
                author.below(4) == 0) {  // what was undone would know of the old one
                author.select();
                done.back() = all(document);
            }
            const int what = author.below(10);
            if (author.below(12) == 0) {
                author.save();
                ASSERT_EQ(all(document), done.back()) << "after " << i;
                continue;
            }
            if (what < 7) {
                what < 3   ? author.edit()
                : what < 4 ? author.movePage()
                : what < 6 ? author.gesture()
                           : follow(document);
                document.endGesture();
                if (const std::string now = all(document); now != done.back()) {
                    what < 6 ? done.push_back(now) : void(done.back() = now);
                    undone.clear();
                }
                continue;
            }
            const bool forward = what == 9;
            ASSERT_EQ(forward ? document.redo() : document.undo(),
                      forward ? !undone.empty() : done.size() > 1);
            if (forward && !undone.empty()) {
                done.push_back(undone.back());
                undone.pop_back();
            } else if (!forward && done.size() > 1) {
                undone.push_back(done.back());
                done.pop_back();
            }
            ASSERT_EQ(all(document), done.back()) << "after " << i;
        }
    }
}

TEST(RandomEdits, ThatAreGivenUpLeaveNothing)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        const TemporaryFolder folder;
        Document document;
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().print = CapturedMessages::print;
        document.projectRecord().pictures.resize(2);
        document.restart();
        RandomAuthor author(document, seed);
        for (int i = 0; i < 30; ++i) {
            author.edit();
            author.select();
            const std::string before = all(document);
            const Gesture gesture = document.newGesture();
            for (int count = author.below(6); count > 0; --count) {
                author.edit(gesture);
            }
            document.takeBack(gesture);
            ASSERT_EQ(all(document), before);
        }
    }
}
