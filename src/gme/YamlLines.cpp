#include "gme/YamlLines.h"

#include "gme/YamlLine.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace gme {

namespace {

// What is left without comments is far below this for the largest game that can be built.
constexpr size_t kLargestYaml = 16U << 20;
// The parser counts bytes where the limit for a key is 1024 characters; a key longer than this is
// handed over in the explicit form, which has no limit.
constexpr size_t kLongestPlainKey = 1000;
// Longer than any word that is no text, such as "null".
constexpr size_t kShortestKeptEntry = 10;
constexpr char kPlaceholder = 'x';

// The line with the escapes that the parser misreads in a form that it reads right.
std::string withPlainEscapes(const YamlLine& line, std::string_view content)
{
    std::string text(content);
    for (auto at = line.misreadEscapes.rbegin(); at != line.misreadEscapes.rend(); ++at) {
        text.replace(*at, 1, text[*at] == 'N' ? "u0085" : "u00A0");
    }
    return text;
}

class YamlPreparation
{
public:
    YamlPreparation(PreparedYaml& prepared, Messages& allMessages)
        : out(prepared), messages(allMessages)
    {}

    void take(std::string_view sourceLine);
    size_t size() const { return yamlSize; }

private:
    void remember(const YamlLine& line, std::string_view sourceLine);
    void refuse(const std::string& reason, std::string_view sourceLine);
    void append(const YamlLine& line, std::string_view sourceLine);
    void keepEntry(const YamlLine& line, std::string_view sourceLine);

    PreparedYaml& out;
    Messages& messages;
    int lineNumber = 0;
    size_t yamlSize = 0;
    size_t openKeyColumn = YamlLine::kNone;  // of an explicit key that waits for its value
    std::string section;                     // the last key at column 0
};

void YamlPreparation::take(std::string_view sourceLine)
{
    ++lineNumber;
    const YamlLine line = readYamlLine(sourceLine, openKeyColumn);
    if (!line.refusal.empty()) {
        refuse(line.refusal, sourceLine);
    }
    remember(line, sourceLine);
    yamlSize += line.length;
    if (line.entryColumn != YamlLine::kNone &&
        line.length - line.entryColumn >= kShortestKeptEntry) {
        keepEntry(line, sourceLine);
    } else {
        append(line, sourceLine);
    }
}

void YamlPreparation::remember(const YamlLine& line, std::string_view sourceLine)
{
    if (line.length == 0) {
        return;
    }
    openKeyColumn = line.explicitKeyColumn;
    if (line.keyColumn == 0 && line.keyLength > 0) {
        section = sourceLine.substr(0, line.keyLength);
    }
}

void YamlPreparation::refuse(const std::string& reason, std::string_view sourceLine)
{
    const bool isInSection = !section.empty() && !sourceLine.empty() && sourceLine[0] == ' ';
    const size_t begin = std::min(sourceLine.find_first_not_of(" \t"), sourceLine.size());
    messages.error(lineNumber, (isInSection ? section + ": " : std::string()) + reason + ": " +
                                   quoted(std::string(sourceLine.substr(begin))));
}

void YamlPreparation::append(const YamlLine& line, std::string_view sourceLine)
{
    const std::string content = withPlainEscapes(line, sourceLine.substr(0, line.length));
    const bool isLongKey = line.keyLength > kLongestPlainKey &&
                           content.find_first_not_of(' ') == line.keyColumn &&
                           line.explicitKeyColumn == YamlLine::kNone && line.misreadEscapes.empty();
    if (!isLongKey) {
        out.text.append(content).append(1, '\n');
        return;
    }
    const std::string indent(line.keyColumn, ' ');
    out.text += indent + "? " + content.substr(line.keyColumn, line.keyLength) + "\n";
    out.text += indent + content.substr(line.colon) + "\n";
    const auto lines = static_cast<int>(out.insertedLines.size());
    out.insertedLines.push_back(lineNumber + lines + 1);
}

void YamlPreparation::keepEntry(const YamlLine& line, std::string_view sourceLine)
{
    const int textLine = lineNumber + static_cast<int>(out.insertedLines.size());
    out.entries.emplace_hint(out.entries.end(), textLine,
                             sourceLine.substr(line.entryColumn, line.length - line.entryColumn));
    out.text.append(sourceLine.substr(0, line.entryColumn)).append({kPlaceholder, '\n'});
}

}  // namespace

int PreparedYaml::fileLine(int line) const
{
    const auto later = std::upper_bound(insertedLines.begin(), insertedLines.end(), line);
    return line - static_cast<int>(later - insertedLines.begin());
}

std::string PreparedYaml::fileText(int line) const
{
    std::istringstream lines(text);
    std::string found;
    for (int i = 0; i < line; ++i) {
        std::getline(lines, found);
    }
    found.erase(0, found.find_first_not_of(' '));
    const auto entry = entries.find(line);
    return entry == entries.end() ? found : found.substr(0, found.size() - 1) + entry->second;
}

bool prepareYaml(const std::string& source, PreparedYaml& prepared, Messages& messages)
{
    YamlPreparation preparation(prepared, messages);
    std::string_view rest = source;
    while (!rest.empty()) {
        const size_t end = std::min(rest.find('\n'), rest.size());
        preparation.take(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (preparation.size() > kLargestYaml) {
            messages.error(0, "more than 16 MiB of YAML besides its comments");
            return false;
        }
    }
    return !messages.hasErrors();
}

}  // namespace gme
