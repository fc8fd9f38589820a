#pragma once

#include "sound/MonoSound.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace recording {

// What is kept of a sound: its samples from begin up to end.
struct Span
{
    size_t begin = 0;
    size_t end = 0;

    size_t size() const { return end - begin; }
    bool operator==(const Span& other) const { return begin == other.begin && end == other.end; }
};

// A text as it was spoken, cut at both ends. Every change is a step that can be undone, another
// recording in its place, too. The samples stay as they were recorded.
class Take
{
public:
    // Another sound; the silence at its ends is cut. Undone once, all of it is kept; undone twice,
    // the sound before is there.
    void record(MonoSound sound);
    // Begins anew, with a sound of which all is kept.
    void load(MonoSound sound);
    // Other ends, which are brought into the sound and apart. A change that goes on is one step
    // with those before it.
    void trim(Span span, bool goesOn = false);
    // Afterwards there is no sound, and nothing to undo.
    void clear();

    // Empty until there is one.
    const MonoSound& sound() const { return *now().sound; }
    std::shared_ptr<const MonoSound> sharedSound() const { return now().sound; }
    Span kept() const { return now().kept; }
    bool isEmpty() const { return sound().samples.empty(); }
    // The samples that are kept, faded at both ends.
    MonoSound finished() const;

    bool canUndo() const { return step > 0; }
    bool canRedo() const { return step + 1 < steps.size(); }
    void undo();
    void redo();

    static constexpr double kFade = 0.010;      // seconds
    static constexpr double kShortest = 0.050;  // seconds that trimming leaves

private:
    struct State
    {
        std::shared_ptr<const MonoSound> sound;
        Span kept;
    };

    static State wholeOf(MonoSound sound);

    const State& now() const { return steps[step]; }
    void add(State state);

    std::vector<State> steps{{std::make_shared<MonoSound>(), {}}};
    size_t step = 0;
    bool isTrimming = false;  // the last step may go on
};

}  // namespace recording
