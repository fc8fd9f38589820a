#include "gme/CodesFile.h"

#include "base/PlatformFiles.h"
#include "gme/DescriptionReader.h"

#include <algorithm>
#include <set>
#include <vector>

namespace gme {

namespace {

void readContent(const YamlNode& root, GivenCodes& codes, Messages& messages)
{
    YamlMapping values;
    if (root.kind == YamlNode::Kind::Mapping) {
        values = lastValues(root, [&messages](const YamlNode& earlier, const YamlNode& last) {
            warnAboutLostValue(earlier, last, messages);
        });
    }
    const auto section = values.find("scriptcodes");
    if (section == values.end()) {
        messages.error({}, "scriptcodes-missing", "the codes file has no scriptcodes");
        return;
    }
    readScriptCodes(*section->second, codes.names, messages);
    const auto special = [&values](const char* name) {
        const auto found = values.find(name);
        return found == values.end() ? nullptr : found->second;
    };
    codes.replay = readSpecialCode(special("replay"), messages);
    codes.stop = readSpecialCode(special("stop"), messages);
}

bool isSameCode(const std::optional<GivenCode>& one, const std::optional<GivenCode>& other)
{
    return one.has_value() == other.has_value() && (!one || one->code == other->code);
}

bool isEmpty(const GivenCodes& codes)
{
    return codes.names.empty() && !codes.replay && !codes.stop;
}

bool isSameContent(const GivenCodes& one, const GivenCodes& other)
{
    const auto isSameEntry = [](const auto& left, const auto& right) {
        return left.first == right.first && left.second.code == right.second.code;
    };
    return isSameCode(one.replay, other.replay) && isSameCode(one.stop, other.stop) &&
           std::equal(one.names.begin(), one.names.end(), other.names.begin(), other.names.end(),
                      isSameEntry);
}

std::set<int> numbersOf(const std::map<std::string, int>& areas)
{
    std::set<int> numbers;
    for (const auto& area : areas) {
        numbers.insert(area.second);
    }
    return numbers;
}

std::string withCode(const std::string& name, uint16_t code)
{
    return name + " (" + std::to_string(code) + ")";
}

// Returns what was taken out: "cow (4028)".
std::vector<std::string> takeOut(GivenCodes& codes, const std::map<std::string, int>& areas)
{
    const std::set<int> numbers = numbersOf(areas);
    std::vector<std::string> taken;
    for (auto entry = codes.names.begin(); entry != codes.names.end();) {
        const auto& [name, code] = *entry;
        if (areas.count(name) == 0 && numbers.count(code.code) == 0) {
            ++entry;
            continue;
        }
        taken.push_back(withCode(name, code.code));
        entry = codes.names.erase(entry);
    }
    const auto takeSpecial = [&](const char* name, std::optional<GivenCode>& special) {
        if (special && numbers.count(special->code) > 0) {
            taken.push_back(withCode(name, special->code));
            special.reset();
        }
    };
    takeSpecial("replay", codes.replay);
    takeSpecial("stop", codes.stop);
    return taken;
}

// "a, b, c"; of many only the first.
std::string inOneText(const std::vector<std::string>& items)
{
    constexpr size_t kMostShown = 10;
    const size_t count = std::min(items.size(), kMostShown);
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        text += (i > 0 ? ", " : "") + items[i];
    }
    const size_t left = items.size() - count;
    return left > 0 ? text + " and " + std::to_string(left) + " more" : text;
}

}  // namespace

bool CodesFile::read(Messages& messages)
{
    exists = Platform::fileExists(path);
    if (!exists) {
        return true;
    }
    if (!readBytes(path, oldBytes, messages)) {
        return false;
    }
    YamlNode root;
    if (readYaml(oldBytes, root, messages)) {
        readContent(root, known, messages);
    }
    return !messages.hasErrors();
}

// Scripts whose code stands in the YAML file need no entry, nor do those whose name is their code.
GivenCodes CodesFile::newContent(const Description& description, const Codes& codes) const
{
    GivenCodes content;
    for (const auto& [name, code] : codes.scripts) {
        const bool isFixed = numericName(name) == code || description.codes.names.count(name) > 0;
        if (!isFixed) {
            content.names[name] = {code, {}};
        }
    }
    if (!description.codes.replay) {
        content.replay = GivenCode{codes.replay, {}};
    }
    if (!description.codes.stop) {
        content.stop = GivenCode{codes.stop, {}};
    }
    return content;
}

bool CodesFile::update(const Description& description, const Codes& codes) const
{
    const GivenCodes content = newContent(description, codes);
    const bool isCurrent = exists && !isEmpty(content) && isSameContent(content, known);
    return isCurrent || replaceBy(content);
}

bool CodesFile::makeRoomFor(const std::map<std::string, int>& areas, Messages& messages) const
{
    GivenCodes content = known;
    const std::vector<std::string> taken = takeOut(content, areas);
    if (taken.empty()) {
        return true;
    }
    if (!replaceBy(content)) {
        messages.error({}, "file-unwritable", "the codes file cannot be written");
        return false;
    }
    messages.note("codes-dropped",
                  "no longer holds " + inOneText(taken) + ", whose name or number an area has now");
    return true;
}

bool CodesFile::replaceBy(const GivenCodes& content) const
{
    if (isEmpty(content)) {
        return !exists || Platform::removeFile(path);
    }
    return write(codesText(content));
}

void CodesFile::restore() const
{
    if (exists) {
        write(oldBytes);
    } else {
        Platform::removeFile(path);
    }
}

bool CodesFile::write(const std::string& bytes) const
{
    Platform::FileReplacement file(path);
    return file.file() != nullptr &&
           fwrite(bytes.data(), 1, bytes.size(), file.file()) == bytes.size() && file.commit();
}

}  // namespace gme
