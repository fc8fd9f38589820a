#include "document/Step.h"

#include <cstring>

namespace {

// Bit by bit: a zero and its negative are written differently.
bool sameNumber(double a, double b)
{
    std::uint64_t bitsOfA = 0;
    std::uint64_t bitsOfB = 0;
    std::memcpy(&bitsOfA, &a, sizeof a);
    std::memcpy(&bitsOfB, &b, sizeof b);
    return bitsOfA == bitsOfB;
}

bool samePoint(const Oid::PNT& a, const Oid::PNT& b)
{
    return sameNumber(a.x, b.x) && sameNumber(a.y, b.y);
}

Oid::PNT moved(const Oid::PNT& point, const Oid::PNT& by)
{
    return {point.x + by.x, point.y + by.y};
}

Oid::PNT movedBack(const Oid::PNT& point, const Oid::PNT& by)
{
    return {point.x - by.x, point.y - by.y};
}

std::optional<Oid::PNT> commonWay(const std::vector<Oid::PNT>& before,
                                  const std::vector<Oid::PNT>& after)
{
    if (before.empty() || before.size() != after.size()) {
        return std::nullopt;
    }
    const Oid::PNT by = movedBack(after[0], before[0]);
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!samePoint(moved(before[i], by), after[i]) ||
            !samePoint(movedBack(after[i], by), before[i])) {
            return std::nullopt;
        }
    }
    return by;
}

template <class T>
std::size_t heapBytes(const std::vector<T>& list)
{
    return list.capacity() * sizeof(T);
}

}  // namespace

CornersChange::CornersChange(AreaId changed, const std::vector<Oid::PNT>& before,
                             const std::vector<Oid::PNT>& after)
    : area(changed), splice(spliceBetween(before, after, samePoint))
{
    if (splice.before.size() < 2) {
        return;
    }
    shift = commonWay(before, after);
    if (shift) {
        splice = {};
    }
}

void CornersChange::apply(std::vector<Oid::PNT>& corners, bool forward) const
{
    if (!shift) {
        splice.apply(corners, forward);
        return;
    }
    for (Oid::PNT& corner : corners) {
        corner = forward ? moved(corner, *shift) : movedBack(corner, *shift);
    }
}

bool Step::empty() const
{
    return pages.empty() && orders.empty() && corners.empty() && names.empty() && numbers.empty() &&
           papers.empty() && files.empty();
}

std::size_t Step::bytes() const
{
    std::size_t sum = sizeof(Step) + heapBytes(selectionBefore.before) +
                      heapBytes(selectionAfter.before) + pages.bytes() + heapBytes(orders) +
                      heapBytes(corners) + heapBytes(names) + heapBytes(numbers) +
                      heapBytes(papers) + heapBytes(files);
    for (const AreaOrderChange& order : orders) {
        sum += order.areas.bytes();
    }
    for (const CornersChange& change : corners) {
        sum += change.splice.bytes();
    }
    for (const auto& name : names) {
        sum += name.before.capacity() + name.after.capacity();
    }
    for (const auto& number : numbers) {
        sum += number.key.capacity();
    }
    return sum;
}
