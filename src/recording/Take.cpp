#include "recording/Take.h"

#include "recording/Silence.h"

#include <algorithm>
#include <cmath>

namespace recording {

namespace {

constexpr double kPi = 3.14159265358979323846;

// From nothing to all, without a corner at either end.
float fade(size_t sample, size_t samples)
{
    const double part = (static_cast<double>(sample) + 0.5) / static_cast<double>(samples);
    return static_cast<float>(0.5 - 0.5 * std::cos(kPi * part));
}

}  // namespace

void Take::add(State state)
{
    steps.resize(step + 1);
    steps.push_back(std::move(state));
    ++step;
    isTrimming = false;
}

Take::State Take::wholeOf(MonoSound sound)
{
    const size_t end = sound.samples.size();
    return {std::make_shared<MonoSound>(std::move(sound)), {0, end}};
}

void Take::load(MonoSound sound)
{
    clear();
    steps.front() = wholeOf(std::move(sound));
}

void Take::record(MonoSound sound)
{
    add(wholeOf(std::move(sound)));
    const Span voice = withoutSilence(this->sound());
    if (!(voice == kept())) {
        add({now().sound, voice});
    }
}

void Take::trim(Span span, bool goesOn)
{
    const size_t all = sound().samples.size();
    const size_t shortest = std::min(all, sound().samplesIn(kShortest));
    Span kept;
    kept.begin = std::min(span.begin, all - shortest);
    kept.end = std::clamp(span.end, kept.begin + shortest, all);
    if (kept == now().kept) {
        return;
    }
    if (goesOn && isTrimming) {
        steps.resize(step + 1);
        steps.back().kept = kept;
    } else {
        add({now().sound, kept});
    }
    isTrimming = true;
}

void Take::clear()
{
    *this = Take();
}

void Take::undo()
{
    step -= canUndo() ? 1 : 0;
    isTrimming = false;
}

void Take::redo()
{
    step += canRedo() ? 1 : 0;
    isTrimming = false;
}

MonoSound Take::finished() const
{
    const auto at = [this](size_t sample) {
        return sound().samples.begin() + static_cast<std::ptrdiff_t>(sample);
    };
    MonoSound made{{at(kept().begin), at(kept().end)}, sound().rate};
    const size_t count = made.samples.size();
    const size_t faded = std::min(made.samplesIn(kFade), count / 2);
    for (size_t i = 0; i < faded; ++i) {
        made.samples[i] *= fade(i, faded);
        made.samples[count - 1 - i] *= fade(i, faded);
    }
    return made;
}

}  // namespace recording
