// The code taken apart again, for those who want the game without its text.
#include <algorithm>

#include "ttbasic/ttbasic.h"

namespace {

constexpr std::string_view kCommand = "        - ";
constexpr std::string_view kEcho = "        # ";
constexpr std::string_view kName = "    ";
constexpr std::string_view kLineEnd = "\r\n";

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

// Without the comment that ends a sub's last command.
std::string_view commandIn(std::string_view line)
{
    line.remove_prefix(kCommand.size());
    return line.substr(0, line.find(" #"));
}

// Between the indentation and the colon.
std::string_view nameIn(std::string_view line)
{
    return line.substr(kName.size(), line.size() - kName.size() - 1);
}

}  // namespace

std::vector<ttbasic::Step> ttbasic::steps() const
{
    std::vector<Step> all;
    auto origin = origins.begin();
    auto definition = definitions.begin();
    Place place;
    const std::string_view text = code;
    std::size_t end = 0;
    for (std::size_t at = 0; at < text.size(); at = end + kLineEnd.size()) {
        end = std::min(text.find(kLineEnd, at), text.size());
        const std::string_view line = text.substr(at, end - at);
        for (; origin != origins.end() && origin->offset <= at; ++origin) {
            place = origin->place;
        }
        if (startsWith(line, kCommand)) {
            if (all.empty()) {
                all.emplace_back();
            }
            all.back().commands.push_back({commandIn(line), place});
        } else if (startsWith(line, kName) && !startsWith(line, kEcho)) {
            const std::string_view name = nameIn(line);
            const bool isSub = definition != definitions.end() && definition->name == name &&
                               definition->place.line == place.line;
            all.push_back({name, isSub ? (definition++)->place : place, {}});
        }
    }
    return all;
}
