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

Graph changed(const Graph& plain, const Passes& passes, const std::set<size_t>& sparing)
{
    Graph graph = followSteps(plain, passes, sparing);
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
RegisterSet readAtOnce(const Graph& graph)
{
    const std::vector<RegisterSet> live = liveAtBeginning(graph);
    RegisterSet result;
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        if (graph.nodes[i].isEntry) {
            for (const Register reg : live[i]) {
                result.insert(reg);
            }
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

using Areas = std::set<size_t>;

Graph optimised(Graph& plain, const Passes& passes, const Areas& sparing)
{
    Graph graph = changed(plain, passes, sparing);
    for (RegisterSet kept = readAtOnce(graph); !kept.empty(); kept = readAtOnce(graph)) {
        for (const Register reg : kept) {
            plain.temporaries.erase(reg);
        }
        graph = changed(plain, passes, sparing);
    }
    return graph;
}

int64_t bytesOfNode(const Node& node)
{
    int64_t bytes = 0;
    for (const Line& line : node.lines) {
        bytes += static_cast<int64_t>(bytesOf(line));
    }
    return bytes;
}

int64_t countOfNode(const Node& /*node*/)
{
    return 1;
}

// Areas that have grown, the most grown first, as many as are needed for the others not to have
// grown in all.
Areas grownMost(const Graph& before, const Graph& now, int64_t (*measure)(const Node&))
{
    std::map<size_t, int64_t> growth;
    int64_t sum = 0;
    for (const auto& [graph, sign] : {std::make_pair(&before, -1), std::make_pair(&now, 1)}) {
        for (const Node& node : graph->nodes) {
            growth[node.area] += sign * measure(node);
            sum += sign * measure(node);
        }
    }
    std::vector<std::pair<int64_t, size_t>> order;
    order.reserve(growth.size());
    for (const auto& [area, more] : growth) {
        order.emplace_back(more, area);
    }
    std::sort(order.rbegin(), order.rend());
    Areas result;
    for (const auto& [more, area] : order) {
        if (more > 0 && sum > 0) {
            result.insert(area);
            sum -= more;
        }
    }
    return result;
}

Areas areasOf(const Graph& graph)
{
    Areas result;
    for (const Node& node : graph.nodes) {
        result.insert(node.area);
    }
    return result;
}

}  // namespace

// Where branches are doubled so often that the game file grows, or that there are not enough codes,
// the areas to which that is due leave them as they are; in the end all areas do.
gme::Game optimise(const gme::Game& game, const std::set<uint16_t>& inner, const Passes& passes)
{
    constexpr int kAttempts = 4;
    std::optional<Graph> plain = graphOf(game, inner);
    if (!plain) {
        return game;
    }
    const uint64_t most = passes.staysSmall ? gme::layOut(game).size : UINT64_MAX;
    gme::Game result = game;  // its kept scripts stay in each attempt
    Areas sparing;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        const Graph graph = optimised(*plain, passes, sparing);
        const bool hasCodes = putGraph(graph, inner, result);
        if (hasCodes && gme::layOut(result).size <= most) {
            return result;
        }
        const Areas grown = grownMost(*plain, graph, hasCodes ? bytesOfNode : countOfNode);
        sparing.insert(grown.begin(), grown.end());
        if (grown.empty() || attempt == kAttempts - 1) {
            sparing = areasOf(*plain);
        }
    }
    return game;
}

}  // namespace quick
