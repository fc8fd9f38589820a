#include "play/Exploration.h"

#include <random>
#include <set>

namespace play {

namespace {

constexpr uint64_t kMostSteps = 20000;      // more than a reader waits for: 23 minutes
constexpr uint64_t kTapsUntilRestart = 50;  // in the second half

class Explorer
{
public:
    Explorer(const Book& book, uint64_t seed)
        : areas(book.areas.begin(), book.areas.end()), random(seed), played(book, optionsOf(seed))
    {}

    Exploration explore(uint64_t taps);

private:
    static pen::PenOptions optionsOf(uint64_t seed);
    void tap(size_t area, uint64_t number);

    const std::vector<std::pair<std::string, uint16_t>> areas;
    std::mt19937_64 random;
    PlayedBook played;
    Exploration exploration;
    std::set<std::pair<Incident::Kind, int>> known;
    std::set<size_t> touched;
    std::set<size_t> heard;
};

pen::PenOptions Explorer::optionsOf(uint64_t seed)
{
    pen::PenOptions options;
    options.seed = seed;
    options.mostSteps = kMostSteps;
    return options;
}

Exploration Explorer::explore(uint64_t taps)
{
    for (uint64_t number = 1; number <= taps && !areas.empty(); ++number) {
        if (number > taps / 2 && number % kTapsUntilRestart == 0) {
            played.start();
        }
        tap(random() % areas.size(), number);
    }
    for (const size_t area : touched) {
        if (heard.count(area) == 0) {
            exploration.silentAreas.push_back(areas[area].first);
        }
    }
    exploration.areasTouched = touched.size();
    return std::move(exploration);
}

void Explorer::tap(size_t area, uint64_t number)
{
    played.tap(areas[area].second);
    played.runToRest();
    const Outcome outcome = played.outcome();
    touched.insert(area);
    if (!outcome.heard.empty()) {
        heard.insert(area);
    }
    for (const Incident& incident : outcome.incidents) {
        if (incident.kind != Incident::Kind::noScript &&
            known.insert({incident.kind, incident.line}).second) {
            exploration.findings.push_back({incident, areas[area].first, number});
        }
    }
}

}  // namespace

Exploration explore(const Book& book, uint64_t taps, uint64_t seed)
{
    return Explorer(book, seed).explore(taps);
}

}  // namespace play
