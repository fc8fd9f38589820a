#include "quick/Quick.h"

#include "gme/GameFile.h"
#include "quick/GraphPasses.h"
#include "quick/LinePasses.h"
#include "quick/Liveness.h"

#include <algorithm>
#include <cctype>

namespace quick {

namespace {

// "asm12"
bool isLabel(const std::string& name)
{
    const std::string word = "asm";
    return name.size() > word.size() && name.compare(0, word.size(), word) == 0 &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(word.size()), name.end(),
                       [](unsigned char c) { return std::isdigit(c) != 0; });
}

Graph changed(const Graph& plain, const Passes& passes)
{
    Graph graph = followSteps(plain, passes);
    if (passes.endsAtOnce) {
        endAtOnce(graph);
    }
    splitLines(graph);
    if (passes.dropsDead) {
        dropDead(graph);
    }
    if (passes.sharesScripts) {
        shareScripts(graph);
    }
    dropUnreachable(graph);
    return graph;
}

// Temporaries that are read before anything was put into them: what the last tap left there counts.
std::set<Register> readAtOnce(const Graph& graph)
{
    const std::vector<RegisterSet> live = liveAtBeginning(graph);
    std::set<Register> result;
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        if (graph.nodes[i].isEntry) {
            result.insert(live[i].begin(), live[i].end());
        }
    }
    return result;
}

}  // namespace

std::set<uint16_t> innerCodes(const gme::Game& game, const gme::Description& description)
{
    std::set<uint16_t> inner;
    for (const auto& [name, code] : game.codes.scripts) {
        if (isLabel(name)) {
            inner.insert(code);
        }
    }
    for (const auto& [name, code] : game.codes.scripts) {
        if (!isLabel(name)) {
            inner.erase(code);
        }
    }
    for (const auto& [name, given] : description.codes.names) {
        inner.erase(given.code);
    }
    return inner;
}

namespace {

// None when it needs more codes than there are.
std::optional<gme::Game> optimisedOnce(const gme::Game& game, const std::set<uint16_t>& inner,
                                       const Passes& passes)
{
    std::optional<Graph> plain = graphOf(game, inner);
    if (!plain) {
        return game;
    }
    Graph graph = changed(*plain, passes);
    for (std::set<Register> kept = readAtOnce(graph); !kept.empty(); kept = readAtOnce(graph)) {
        for (const Register reg : kept) {
            plain->temporaries.erase(reg);
        }
        graph = changed(*plain, passes);
    }
    gme::Game result = game;
    return putGraph(graph, inner, result) ? std::make_optional(std::move(result)) : std::nullopt;
}

}  // namespace

// Where branches are doubled so often that the game file grows, or that there are not enough codes,
// they are left as they are.
gme::Game optimise(const gme::Game& game, const std::set<uint16_t>& inner, const Passes& passes)
{
    const uint64_t most = gme::layOut(game).size;
    Passes sparing = passes;
    sparing.testsOnEntry = false;
    sparing.doublesScripts = false;
    for (const Passes& some : {passes, sparing}) {
        std::optional<gme::Game> result = optimisedOnce(game, inner, some);
        if (result && (!passes.staysSmall || gme::layOut(*result).size <= most)) {
            return *std::move(result);
        }
    }
    return game;
}

}  // namespace quick
