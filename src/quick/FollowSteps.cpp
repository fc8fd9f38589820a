// The compiler makes a script of each step, joined by jumps, and a pen takes its time for each.
// What a chain of steps does is known as soon as its branches are chosen, so one line can do it
// all. A branch is chosen by the conditions of a line where they ask for what registers hold on
// entry.
#include "quick/AskedSoon.h"
#include "quick/GraphPasses.h"
#include "quick/LinePasses.h"
#include "quick/Liveness.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quick {

namespace {

constexpr std::array<size_t, 3> kMostLines = {32, 8, 2};  // of a script, about
constexpr size_t kMostSteps = 256;                        // that become one line
constexpr size_t kManySteps = 64;                         // behind which a path joins others
constexpr size_t kMostInVain = 2000;                      // steps followed in an area
constexpr size_t kMostVariants = 4;                       // scripts made of one step

// A step, and what numbers registers hold when it begins.
struct Place
{
    size_t step = 0;
    SortedMap<Register, uint16_t> numbers;

    bool operator<(const Place& other) const
    {
        return step != other.step ? step < other.step : numbers < other.numbers;
    }
};

// The line of a step that is carried out, or the condition on which that depends.
struct Choice
{
    const Line* line = nullptr;  // null: none fits
    const Condition* open = nullptr;
};

Choice chooseLine(const Node& step, const Values& values)
{
    for (const Line& line : step.lines) {
        bool holdsAll = true;
        for (const Condition& condition : line.conditions) {
            const std::optional<bool> holds = values.holds(condition);
            if (!holds) {
                return {nullptr, &condition};
            }
            if (!*holds) {
                holdsAll = false;
                break;
            }
        }
        if (holdsAll) {
            return {&line, nullptr};
        }
    }
    return {};
}

// Whether a division of the line may be by zero.
bool mayFail(const Line& line, const Values& before)
{
    if (std::none_of(line.commands.begin(), line.commands.end(),
                     [](const Command& command) { return command.mayFail(); })) {
        return false;
    }
    Values values = before;
    for (Command command : line.commands) {
        const Value value = values.of(command.value);
        if (value.isNumber()) {
            command.value = {false, static_cast<uint16_t>(value.number)};
        }
        if (command.mayFail()) {
            return true;
        }
        values.apply(command);
    }
    return false;
}

// One way through the steps, from the beginning of a script on.
struct Path
{
    size_t step = 0;  // that comes next
    std::vector<Condition> conditions;
    Commands commands;
    Values start;  // what the conditions tell of the registers
    Values now;    // with what the commands have made of them
    std::vector<size_t> passed;
    bool hasJumped = false;

    bool hasPassed(size_t place) const
    {
        return std::find(passed.begin(), passed.end(), place) != passed.end();
    }
};

// What becomes a line: a path, and what comes at its end.
struct Draft
{
    Path path;
    std::optional<size_t> next;  // step
    std::optional<Sound> sound;
};

// Last lines that do nothing: nothing happens without them, too.
void dropIdleLines(std::vector<Line>& lines)
{
    while (lines.size() > 1 && lines.back().commands.empty() && !lines.back().sound &&
           !lines.back().jump) {
        lines.pop_back();
    }
}

class StepFollower
{
public:
    StepFollower(const Graph& source, const Passes& usedPasses,
                 const std::set<size_t>& sparingAreas)
        : plain(source),
          allPasses(usedPasses),
          passes(usedPasses),
          sparing(sparingAreas),
          live(liveAtBeginning(source)),
          variants(source.nodes.size()),
          uses(source.nodes.size()),
          inVain(source.nodes.size()),
          passedIn(source.nodes.size())
    {}

    Graph follow();

private:
    size_t nodeFor(const Place& place);
    size_t restNode();
    void makeNode(size_t node, const Place& place);
    void choosePasses();
    Path beginningOf(const Place& place) const;
    void tryNode(const Path& beginning, size_t mostLines);
    bool isTooLarge() const;
    void copyLines(const Path& beginning);
    void go(Path path);
    bool mustStop(const Path& path) const;
    bool mayJoin(const Path& path) const;
    size_t beforeCopies(const Path& path) const;
    bool onlyCopies(size_t step, size_t next) const;
    bool mayBranch(const Path& path) const;
    void branch(Path& path, const Condition& condition);
    bool take(Path& path, const Line& line);
    void notePassed(size_t step);
    void end(Path path, std::optional<size_t> next, const std::optional<Sound>& sound);
    void write(const Draft& draft);
    Place placeOf(const Path& path, size_t step);
    bool isWorthKnowing(size_t step, Register reg);
    bool makeRoom(Path& path, const Line& line) const;
    Live liveBehind(const std::optional<size_t>& step) const;
    void append(const Commands& more, Commands& commands, Values& values) const;
    void reduce(Commands& commands, Live behind) const;

    const Graph& plain;
    const Passes allPasses;
    Passes passes;  // for the node that is being made
    const std::set<size_t>& sparing;
    const std::vector<RegisterSet> live;  // at each step
    Graph made;
    std::map<Place, size_t> nodes;
    std::vector<size_t> variants;                       // of each step
    std::vector<size_t> uses;                           // of each step, in nodes
    std::map<std::pair<size_t, Register>, bool> asked;  // soon, at the step
    std::vector<std::pair<size_t, Place>> waiting;
    // The node that is being made, as one of several tries.
    size_t current = 0;
    std::vector<Draft> drafts;
    size_t branches = 0;           // that are still to be followed
    size_t most = 0;               // lines
    size_t attempt = 0;            // counts all tries
    size_t taken = 0;              // steps of this one
    std::vector<size_t> inVain;    // of each area, steps of tries that became too large
    std::vector<size_t> passedIn;  // each step, the last try that passed it
    std::vector<size_t> passed;    // the steps
    size_t bytesPassed = 0;        // of the steps that are passed
    size_t bytesMade = 0;          // of the drafts
};

Graph StepFollower::follow()
{
    made = plain;
    made.nodes.clear();
    made.byCode.clear();
    for (size_t i = 0; i < plain.nodes.size(); ++i) {
        if (plain.nodes[i].isEntry) {
            nodeFor({i, {}});
        }
    }
    while (!waiting.empty()) {
        const auto [node, place] = waiting.back();
        waiting.pop_back();
        makeNode(node, place);
    }
    return std::move(made);
}

size_t StepFollower::nodeFor(const Place& place)
{
    const auto [entry, isNew] = nodes.emplace(place, made.nodes.size());
    if (isNew) {
        const Node& node = plain.nodes[place.step];
        const bool staysReachable = node.isKept || (node.isEntry && place.numbers.empty());
        made.nodes.push_back(
            {staysReachable ? node.code : uint16_t{0}, staysReachable, node.isKept, node.area, {}});
        made.nodes.back().named = node.named;
        ++variants[place.step];
        if (!node.isKept) {
            waiting.emplace_back(entry->second, place);
        }
    }
    return entry->second;
}

// A script that does nothing: to jump there ends a sound, and what was to come behind it, as the
// jumps of the steps did.
size_t StepFollower::restNode()
{
    if (!made.rest) {
        made.rest = made.nodes.size();
        made.nodes.push_back({0, false, false, made.nodes[current].area, {Line()}});
    }
    return *made.rest;
}

// The more branches are followed at once, the fewer steps, but the lines become more than the steps
// whose place they take: each branch doubles those behind it. An area in which that happens again
// and again is left sparing, as it would be in the end.
void StepFollower::makeNode(size_t node, const Place& place)
{
    current = node;
    choosePasses();
    const Path beginning = beginningOf(place);
    for (const size_t lines : kMostLines) {
        tryNode(beginning, lines);
        if (!isTooLarge()) {
            break;
        }
        inVain[made.nodes[node].area] += taken;
    }
    if (isTooLarge()) {
        copyLines(beginning);
    }
    for (const size_t step : passed) {
        ++uses[step];
    }
    for (const Draft& draft : std::exchange(drafts, {})) {
        write(draft);
    }
    dropIdleLines(made.nodes[node].lines);
}

void StepFollower::choosePasses()
{
    const size_t area = made.nodes[current].area;
    const bool isSparing = sparing.count(area) != 0 || inVain[area] > kMostInVain;
    passes.testsOnEntry = allPasses.testsOnEntry && !isSparing;
    passes.doublesScripts = allPasses.doublesScripts && !isSparing;
}

Path StepFollower::beginningOf(const Place& place) const
{
    Path path;
    path.step = place.step;
    for (const Register reg : plain.constants) {
        path.start.setNumber(reg, plain.firstValues[reg]);
    }
    path.now = path.start;
    for (const auto& [reg, number] : place.numbers) {
        if (plain.temporaries.has(reg)) {
            path.commands.push_back({reg, gme::Opcode::kAssign, {false, number}});
        } else {
            path.start.setNumber(reg, number);
        }
        path.now.setNumber(reg, number);
    }
    return path;
}

void StepFollower::tryNode(const Path& beginning, size_t mostLines)
{
    drafts.clear();
    branches = 0;
    passed.clear();
    bytesPassed = 0;
    bytesMade = 0;
    most = mostLines;
    ++attempt;
    taken = 0;
    go(beginning);
}

bool StepFollower::isTooLarge() const
{
    return most > kMostLines.back() ? drafts.size() > kMostLines.back() && bytesMade > bytesPassed
                                    : drafts.size() > kMostLines.front();
}

// The lines of a step as they are, which ask more than can be answered for all of them at once.
void StepFollower::copyLines(const Path& beginning)
{
    drafts.clear();
    for (const Line& line : plain.nodes[beginning.step].lines) {
        Path path = beginning;
        bool isPossible = true;
        for (const Condition& condition : line.conditions) {
            const std::optional<bool> holds = path.now.holds(condition);
            isPossible = isPossible && holds.value_or(true);
            if (!holds) {
                path.conditions.push_back(*path.now.onEntry(condition));
            }
        }
        if (isPossible && take(path, line)) {
            end(path, path.step, std::nullopt);
        }
    }
}

void StepFollower::go(Path path)
{
    while (!mustStop(path)) {
        const Choice choice = chooseLine(plain.nodes[path.step], path.now);
        if (choice.open != nullptr) {
            const std::optional<Condition> condition = path.now.onEntry(*choice.open);
            if (!condition || !mayBranch(path)) {
                const size_t next = beforeCopies(path);
                end(std::move(path), next, std::nullopt);
                return;
            }
            branch(path, *condition);
            if (isTooLarge()) {
                return;
            }
        } else if (choice.line == nullptr) {
            end(std::move(path), std::nullopt, std::nullopt);
            return;
        } else {
            if (!makeRoom(path, *choice.line)) {
                break;
            }
            if (!take(path, *choice.line)) {
                return;
            }
        }
    }
    const size_t next = path.step;
    end(std::move(path), next, std::nullopt);
}

// Where the line of a path ends that cannot answer what its next step asks: before the steps that
// do nothing but put copies for the question into temporaries. The next script then asks the
// originals.
size_t StepFollower::beforeCopies(const Path& path) const
{
    size_t step = path.step;
    for (size_t i = passes.testsOnEntry ? path.passed.size() : 0;
         i-- > 1 && onlyCopies(path.passed[i], step);) {
        step = path.passed[i];
    }
    return step;
}

// Whether the step, from which the next one was reached, changes nothing that it needs itself.
bool StepFollower::onlyCopies(size_t step, size_t next) const
{
    const std::vector<Line>& lines = plain.nodes[step].lines;
    return lines.size() == 1 && !lines.front().sound &&
           std::all_of(live[step].begin(), live[step].end(),
                       [&](Register reg) { return live[next].has(reg); }) &&
           std::all_of(lines.front().commands.begin(), lines.front().commands.end(),
                       [&](const Command& command) {
                           return plain.temporaries.has(command.target) &&
                                  !live[step].has(command.target) && !command.mayFail();
                       });
}

// After many steps a path joins others where a script of theirs begins: so that not each of a
// thousand cases follows all that come behind it.
bool StepFollower::mayJoin(const Path& path) const
{
    return path.passed.size() >= kManySteps && live[path.step].empty() &&
           nodes.count({path.step, {}}) != 0;
}

bool StepFollower::mustStop(const Path& path) const
{
    return plain.nodes[path.step].isKept || path.hasPassed(path.step) ||
           path.passed.size() >= kMostSteps || mayJoin(path) ||
           (!passes.followsJumps && !path.passed.empty());
}

// The first step of a script asks whatever it likes.
bool StepFollower::mayBranch(const Path& path) const
{
    return path.passed.empty() || (passes.testsOnEntry && drafts.size() + branches < most);
}

// The path on which the condition holds is followed first: its lines stand before those of the
// other, which therefore need not say that it does not hold.
void StepFollower::branch(Path& path, const Condition& condition)
{
    Path other = path;
    other.conditions.push_back(condition);
    other.start.learn(condition, true);
    other.now.learn(condition, true);
    ++branches;
    go(std::move(other));
    --branches;
    path.start.learn(condition, false);
    path.now.learn(condition, false);
}

// Whether the line can be carried out together with what is on the path already, which is
// simplified as soon as that is in question.
bool StepFollower::makeRoom(Path& path, const Line& line) const
{
    const size_t others = (line.jump ? 1 : 0) + (line.sound ? 1 : 0);
    const auto isThere = [&] {
        return path.commands.size() + line.commands.size() + others <= kMostCommands;
    };
    if (path.passed.empty() || isThere()) {
        return true;
    }
    reduce(path.commands, liveBehind(path.step));
    if (isThere()) {
        return true;
    }
    Commands commands = path.commands;
    Values values = path.now;
    append(line.commands, commands, values);
    Live behind = liveBehind(line.jump);
    for (const Register reg : RegisterSet(behind.alive)) {
        if (passes.doublesScripts && values.of(reg).isNumber()) {
            behind.alive.erase(reg);
        }
    }
    reduce(commands, std::move(behind));
    return commands.size() + others <= kMostCommands;
}

// Carries the line out. False where the path ends with it.
bool StepFollower::take(Path& path, const Line& line)
{
    const bool isLast = line.sound || mayFail(line, path.now) || !line.jump;
    ++taken;
    notePassed(path.step);
    path.passed.push_back(path.step);
    path.hasJumped = path.hasJumped || line.jump;
    append(line.commands, path.commands, path.now);
    if (isLast) {
        end(std::move(path), line.jump, line.sound);
        return false;
    }
    path.step = *line.jump;
    return true;
}

void StepFollower::notePassed(size_t step)
{
    if (passedIn[step] != attempt) {
        passedIn[step] = attempt;
        passed.push_back(step);
        for (const Line& line : plain.nodes[step].lines) {
            bytesPassed += bytesOf(line) / (1 + uses[step]);
        }
    }
}

void StepFollower::end(Path path, std::optional<size_t> next, const std::optional<Sound>& sound)
{
    bytesMade += bytesOf({path.conditions, path.commands, sound, next});
    drafts.push_back({std::move(path), next, sound});
}

// Writes down the line of the path: what is done, and which step comes next.
void StepFollower::write(const Draft& draft)
{
    Line line;
    line.conditions = draft.path.conditions;
    line.sound = draft.sound;
    Live behind = liveBehind(draft.next);
    if (draft.next) {
        const Place place = placeOf(draft.path, *draft.next);
        line.jump = nodeFor(place);
        for (const auto& entry : place.numbers) {
            behind.alive.erase(entry.first);
        }
    } else if (draft.path.hasJumped && made.nodes[current].isEntry) {
        line.jump = restNode();
    }
    line.commands = draft.path.commands;
    if (passes.carriesValues) {
        carryValues(line.commands, draft.path.start, plain.temporaries);
    }
    reduce(line.commands, std::move(behind));
    made.nodes[current].lines.push_back(std::move(line));
}

// Numbers that temporaries hold need no register where the next script is made for them, and what
// is known of variables that are asked for next need not be asked. Too many scripts for one step
// are none the better.
Place StepFollower::placeOf(const Path& path, size_t step)
{
    Place place{step, {}};
    const bool joins = step == path.step && mayJoin(path);
    if (!passes.doublesScripts || plain.nodes[step].isKept || joins) {
        return place;
    }
    Place withVariables = place;
    for (const auto& [reg, number] : path.now.numbers()) {
        if (live[step].has(reg)) {
            place.numbers.set(reg, number);
            withVariables.numbers.set(reg, number);
        } else if (isWorthKnowing(step, reg)) {
            withVariables.numbers.set(reg, number);
        }
    }
    for (const Place& wanted : {withVariables, place}) {
        if (nodes.count(wanted) != 0 || variants[step] < kMostVariants) {
            return wanted;
        }
    }
    return {step, {}};
}

bool StepFollower::isWorthKnowing(size_t step, Register reg)
{
    if (plain.temporaries.has(reg) || plain.constants.has(reg) || plain.unsteady.has(reg)) {
        return false;
    }
    const auto [entry, isNew] = asked.emplace(std::make_pair(step, reg), false);
    if (isNew) {
        entry->second = isAskedSoon(plain, step, reg);
    }
    return entry->second;
}

Live StepFollower::liveBehind(const std::optional<size_t>& step) const
{
    return {plain.temporaries, step ? live[*step] : RegisterSet()};
}

// Adds commands to those of a path, of which the values before them are known. What a temporary
// held before it gets a value may have been left out, so that nothing may be made of that.
void StepFollower::append(const Commands& more, Commands& commands, Values& values) const
{
    for (const Command& command : more) {
        const bool beginsAnew =
            command.opcode == gme::Opcode::kAssign && plain.temporaries.has(command.target);
        const auto simple = passes.carriesValues && !beginsAnew
                                ? carried(command, values, plain.temporaries)
                                : std::make_optional(command);
        if (simple) {
            commands.push_back(*simple);
        }
        values.apply(command);
    }
}

void StepFollower::reduce(Commands& commands, Live behind) const
{
    if (passes.writesDirectly) {
        writeDirectly(commands, behind);
    }
    if (passes.sumsAdditions) {
        sumAdditions(commands);
    }
    if (passes.dropsDead) {
        dropDead(commands, std::move(behind));
    }
}

}  // namespace

Graph followSteps(const Graph& plain, const Passes& passes, const std::set<size_t>& sparing)
{
    return StepFollower(plain, passes, sparing).follow();
}

}  // namespace quick
