#include "quick/Saving.h"

#include "quick/Liveness.h"
#include "quick/Values.h"

#include <algorithm>

namespace quick {

namespace {

constexpr size_t kMostVariants = 16;  // of a step, each with other numbers

// A step, and what numbers temporaries hold when it begins: they keep apart the branches of what
// was asked before.
struct Place
{
    size_t step = 0;
    std::map<Register, uint16_t> numbers;

    bool operator<(const Place& other) const
    {
        return step != other.step ? step < other.step : numbers < other.numbers;
    }
};

// Whether the line can be the one that is carried out.
enum class Chance { no, open, yes };

// Tells what follows for the registers: once it is the line, and once it is not.
Chance chanceOf(const Line& line, Values& ifSo, Values& ifNot)
{
    std::vector<Condition> open;
    for (const Condition& condition : line.conditions) {
        const std::optional<bool> holds = ifNot.holds(condition);
        if (holds == false) {
            return Chance::no;
        }
        if (!holds) {
            open.push_back(*ifNot.onEntry(condition));
        }
    }
    ifSo = ifNot;
    for (const Condition& condition : open) {
        ifSo.learn(condition, true);
    }
    if (open.size() == 1) {
        ifNot.learn(open[0], false);
    }
    return open.empty() ? Chance::yes : Chance::open;
}

// The longest way to a sound. Depth first, without recursion, since ways may have thousands of
// steps; a jump back to a step of the way itself is not followed.
class SoundSeeker
{
public:
    explicit SoundSeeker(const Graph& source)
        : graph(source), live(liveAtBeginning(source)), variants(source.nodes.size())
    {}

    // Steps from that one on, 0 when none of them makes a sound.
    size_t stepsFrom(size_t step);

private:
    struct Stop
    {
        bool wasSeen = false;
        std::vector<size_t> next;  // stops that it may jump to before a sound
        size_t waiting = 0;        // how many of these are still to be followed
        size_t steps = 0;          // from here until a sound; 0: none comes, or it is not known yet
    };

    size_t stopAt(Place place);
    void look(size_t stop);
    void lookBehind(size_t stop, const Line& line, Values values);
    void finish(size_t stop);

    const Graph& graph;
    const std::vector<RegisterSet> live;  // at each step
    std::map<Place, size_t> numbers;      // of the stops
    std::vector<Place> places;
    std::vector<Stop> stops;
    std::vector<size_t> variants;  // of each step
};

size_t SoundSeeker::stepsFrom(size_t step)
{
    const size_t first = stopAt({step, {}});
    std::vector<size_t> way;
    const auto goTo = [&](size_t stop) {
        if (!stops[stop].wasSeen) {
            look(stop);
            way.push_back(stop);
        }
    };
    goTo(first);
    while (!way.empty()) {
        Stop& last = stops[way.back()];
        if (last.waiting != 0) {
            goTo(last.next[--last.waiting]);
        } else {
            finish(way.back());
            way.pop_back();
        }
    }
    return stops[first].steps;
}

size_t SoundSeeker::stopAt(Place place)
{
    if (numbers.count(place) == 0 && variants[place.step] >= kMostVariants) {
        place.numbers.clear();
    }
    const auto [entry, isNew] = numbers.emplace(place, stops.size());
    if (isNew) {
        ++variants[place.step];
        places.push_back(std::move(place));
        stops.emplace_back();
    }
    return entry->second;
}

void SoundSeeker::look(size_t stop)
{
    stops[stop].wasSeen = true;
    const Place place = places[stop];
    const Node& step = graph.nodes[place.step];
    stops[stop].steps = step.isKept ? 1 : 0;
    Values values;
    for (const Register reg : graph.constants) {
        values.setNumber(reg, graph.firstValues[reg]);
    }
    for (const auto& [reg, number] : place.numbers) {
        values.setNumber(reg, number);
    }
    for (const Line& line : step.lines) {
        Values inLine;
        const Chance chance = chanceOf(line, inLine, values);
        if (chance != Chance::no) {
            lookBehind(stop, line, std::move(inLine));
        }
        if (chance == Chance::yes) {
            break;
        }
    }
    stops[stop].waiting = stops[stop].next.size();
}

void SoundSeeker::lookBehind(size_t stop, const Line& line, Values values)
{
    if (line.sound) {
        stops[stop].steps = 1;
    } else if (line.jump) {
        for (const Command& command : line.commands) {
            values.apply(command);
        }
        Place place{*line.jump, {}};
        for (const Register reg : live[place.step]) {
            const Value value = values.of(reg);
            if (value.isNumber()) {
                place.numbers[reg] = static_cast<uint16_t>(value.number);
            }
        }
        const size_t next = stopAt(std::move(place));
        stops[stop].next.push_back(next);
    }
}

void SoundSeeker::finish(size_t stop)
{
    size_t& steps = stops[stop].steps;
    for (const size_t next : stops[stop].next) {
        if (stops[next].steps != 0) {
            steps = std::max(steps, stops[next].steps + 1);
        }
    }
}

std::string inWords(size_t count)
{
    return std::to_string(count) + (count == 1 ? " step" : " steps");
}

}  // namespace

Steps stepsOf(const gme::Game& game, const std::set<uint16_t>& inner)
{
    Steps result{game.scripts.size(), 0};
    const std::optional<Graph> graph = graphOf(game, inner);
    if (!graph) {
        return result;
    }
    SoundSeeker seeker(*graph);
    for (size_t i = 0; i < graph->nodes.size(); ++i) {
        if (graph->nodes[i].isEntry) {
            result.slowestAnswer = std::max(result.slowestAnswer, seeker.stepsFrom(i));
        }
    }
    return result;
}

std::string savingInWords(const Steps& plain, const Steps& quick)
{
    std::string words;
    if (quick.count < plain.count) {
        words = inWords(plain.count) + " became " + std::to_string(quick.count);
    }
    if (quick.slowestAnswer < plain.slowestAnswer) {
        words += words.empty() ? "" : "; ";
        words += "the slowest answer takes " + inWords(quick.slowestAnswer) + " instead of " +
                 std::to_string(plain.slowestAnswer);
    }
    return words.empty() ? words : "Quick answers: " + words;
}

}  // namespace quick
