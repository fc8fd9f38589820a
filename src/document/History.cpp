#include "document/History.h"

#include <algorithm>
#include <utility>

void History::clear()
{
    done.clear();
    undone.clear();
    bytes = 0;
}

void History::add(Step step)
{
    forgetUndone();
    bytes += step.bytes();
    done.push_back(std::move(step));
}

void History::forgetUndone()
{
    for (; !undone.empty(); undone.pop_back()) {
        bytes -= undone.back().bytes();
        forget(undone.back(), true);
    }
}

bool History::isTooLarge(std::size_t bytesElsewhere) const
{
    return done.size() > 1 && bytes + bytesElsewhere > kMostBytes;
}

void History::dropOldest()
{
    do {
        bytes -= done.front().bytes();
        forget(done.front(), false);
        done.pop_front();
    } while (!done.empty() && done.front().silent);
}

StepLink History::linkToUndo() const
{
    const auto step =
        std::find_if(done.rbegin(), done.rend(), [](const Step& one) { return !one.silent; });
    return step != done.rend() ? step->link : StepLink::none;
}

StepLink History::linkToRedo() const
{
    return undone.empty() ? StepLink::none : undone.back().link;
}

void History::moveToUndone()
{
    undone.push_back(std::move(done.back()));
    done.pop_back();
}

void History::moveToDone()
{
    done.push_back(std::move(undone.back()));
    undone.pop_back();
}
