#pragma once

#include <deque>
#include <functional>
#include <optional>

#include "document/Step.h"

// The steps that were done and, behind them, those that were undone. What they hold is bounded: the
// oldest ones go first.
class History
{
public:
    // Called with a step that can never be carried out again, forward or backward.
    using Forget = std::function<void(const Step& step, bool forward)>;
    explicit History(Forget forgetStep) : forget(std::move(forgetStep)) {}

    // Forgets all without a word.
    void clear();
    // What was done last. What was undone before is forgotten.
    void add(Step step);
    void forgetUndone();
    // True when the steps, with what is kept for them elsewhere, are more than the bound, and there
    // is one that can go.
    bool isTooLarge(std::size_t bytesElsewhere) const;
    // The oldest step goes, and those that follow it silently.
    void dropOldest();

    bool canUndo() const { return !done.empty(); }
    bool canRedo() const { return !undone.empty(); }
    // Null where there is none. Silent steps follow the one that they belong to.
    const Step* lastDone() const { return done.empty() ? nullptr : &done.back(); }
    const std::deque<Step>& doneSteps() const { return done; }  // the oldest first
    Step* toUndo() { return done.empty() ? nullptr : &done.back(); }
    Step* toRedo() { return undone.empty() ? nullptr : &undone.back(); }
    // Of the author's steps; none where there is no such step.
    StepLink linkToUndo() const;
    StepLink linkToRedo() const;
    // The step has been carried out in that direction.
    void moveToUndone();
    void moveToDone();
    // Whether one more is to be carried out with the one just moved.
    bool redoGoesOn() const { return !undone.empty() && undone.back().silent; }

    static constexpr std::size_t kMostBytes = 64U * 1024 * 1024;

private:
    Forget forget;
    std::deque<Step> done;    // oldest first
    std::deque<Step> undone;  // the next to redo last
    std::size_t bytes = 0;
};
