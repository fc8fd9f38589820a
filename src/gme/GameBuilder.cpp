#include "gme/GameBuilder.h"

#include "gme/GameFile.h"
#include "gme/LineParser.h"

#include "base/Utf8.h"

#include <string_view>

namespace gme {

namespace {

constexpr size_t kMostCommands = 8;         // that the pen runs in a line
constexpr uint16_t kCodesOfThePen = 15000;  // it reads those below

// A text as the header holds it: one byte per character, the low 8 bits of its code point. Warns
// about characters above U+00FF, which come out as others.
std::string headerText(const std::string& owner, const SourceLine& text, Messages& messages)
{
    std::string bytes;
    std::string garbled;
    std::string_view rest = text.text;
    char32_t c = 0;
    while (!rest.empty()) {
        const std::string_view before = rest;
        if (!Utf8::takeCharacter(rest, c)) {
            break;
        }
        bytes += static_cast<char>(c & 0xFFU);
        garbled += c > 0xFF ? before.substr(0, before.size() - rest.size()) : std::string_view();
    }
    if (!garbled.empty()) {
        messages.warning(text.line,
                         owner + ": the game file cannot hold these characters: " + garbled);
    }
    return bytes;
}

class GameBuilder
{
public:
    GameBuilder(const Description& source, const Codes& assignedCodes, Messages& allMessages)
        : description(source), codes(assignedCodes), messages(allMessages)
    {}

    Game build(const std::string& yamlFolder);

private:
    void checkCodes();
    void checkCode(const std::string& owner, uint16_t code, int line);
    void addScripts();
    std::map<uint16_t, const std::string*> scriptsByCode();
    std::vector<ScriptLine> readScript(const std::string& name, const ScriptSource& source);
    void checkLine(const std::string& owner, const ScriptLine& line, int lineNumber);
    void report(const std::string& owner, const LineResult& result, int line);
    void addWelcome();
    void addInitialValues();
    void findMedia(const std::string& yamlFolder);
    void addHeader();

    const Description& description;
    const Codes& codes;
    Messages& messages;
    Game game;
};

Game GameBuilder::build(const std::string& yamlFolder)
{
    game.productId = description.productId;
    game.replay = codes.replay;
    game.stop = codes.stop;
    game.jumpTargets = codes.scripts;
    checkCodes();
    addHeader();
    addWelcome();
    addScripts();
    addInitialValues();
    if (!game.registers.assignNumbers()) {
        messages.error(0, "the game has more than 65535 registers");
    }
    findMedia(yamlFolder);
    return std::move(game);
}

void GameBuilder::checkCodes()
{
    for (const auto& [name, given] : description.codes.names) {
        if (description.scripts.count(name) == 0) {
            checkCode("area " + name, given.code, given.line);
        }
    }
    checkCode("replay", codes.replay, 0);
    checkCode("stop", codes.stop, 0);
    for (const auto& [name, code] : codes.scripts) {
        const int line = description.scripts.at(name).line;
        checkCode("script " + name, code, line);
        for (const auto& [special, specialCode] :
             {std::make_pair("replay", codes.replay), std::make_pair("stop", codes.stop)}) {
            if (code == specialCode) {
                messages.warning(line, "script " + name + " has the code " + std::to_string(code) +
                                           ", which is also the " + special + " code");
            }
        }
    }
}

void GameBuilder::checkCode(const std::string& owner, uint16_t code, int line)
{
    if (code >= kCodesOfThePen) {
        messages.warning(line, owner + " has the code " + std::to_string(code) +
                                   ", but the pen reads only codes below 15000");
    }
}

void GameBuilder::addScripts()
{
    for (const auto& [code, name] : scriptsByCode()) {
        game.scripts[code] = readScript(*name, description.scripts.at(*name));
    }
}

// Of two scripts with the same code the greater name stays.
std::map<uint16_t, const std::string*> GameBuilder::scriptsByCode()
{
    std::map<uint16_t, const std::string*> names;
    for (const auto& [name, code] : codes.scripts) {
        const std::string*& place = names[code];
        if (place != nullptr) {
            messages.warning(description.scripts.at(*place).line,
                             "script " + *place + " is lost: script " + name +
                                 " has the same code " + std::to_string(code));
        }
        place = &name;
    }
    return names;
}

std::vector<ScriptLine> GameBuilder::readScript(const std::string& name, const ScriptSource& source)
{
    std::vector<ScriptLine> lines;
    lines.reserve(source.lines.size());
    for (const SourceLine& text : source.lines) {
        const std::string owner = "script " + name;
        ScriptLine& line = lines.emplace_back();
        const LineResult result = parseScriptLine(text.text, line);
        report(owner, result, text.line);
        if (result.failure.empty()) {
            checkLine(owner, line, text.line);
            game.registers.noteUseIn(line);
            for (const std::string& audio : line.playList) {
                game.media.addName(audio, owner);
            }
        }
    }
    return lines;
}

void GameBuilder::checkLine(const std::string& owner, const ScriptLine& line, int lineNumber)
{
    for (const Command& command : line.commands) {
        if (!command.jumpTarget.empty() && codes.scripts.count(command.jumpTarget) == 0) {
            messages.error(lineNumber, owner + ": the jump to " + command.jumpTarget +
                                           " leads nowhere, there is no such script");
        }
    }
    if (line.commands.size() > kMostCommands) {
        messages.warning(lineNumber, owner + ": the line has " +
                                         std::to_string(line.commands.size()) +
                                         " commands, but the pen runs only the first 8");
    }
}

void GameBuilder::report(const std::string& owner, const LineResult& result, int line)
{
    if (!result.failure.empty()) {
        messages.error(line, owner + ": " + result.failure);
    }
    for (const std::string& number : result.largeNumbers) {
        messages.warning(line, owner + ": the number " + quoted(number) +
                                   " is above 65535 and is taken modulo 65536");
    }
}

void GameBuilder::addWelcome()
{
    for (const SourceLine& text : description.welcome) {
        std::vector<std::string>& list = game.welcome.emplace_back();
        report("welcome", parsePlayList(text.text, list), text.line);
        for (const std::string& audio : list) {
            game.media.addName(audio, "welcome");
        }
    }
}

void GameBuilder::addInitialValues()
{
    std::vector<InitialValue> values;
    report("init", parseInit(description.init.text, values), description.init.line);
    for (const InitialValue& value : values) {
        game.registers.noteInitialValue(value);
    }
}

void GameBuilder::findMedia(const std::string& yamlFolder)
{
    MediaPath mediaPath(yamlFolder);
    if (!mediaPath.setTemplate(description.mediaPath.text)) {
        messages.error(description.mediaPath.line,
                       "media-path must hold %s once, and %% for a percent sign: " +
                           quoted(description.mediaPath.text));
        return;
    }
    game.media.findFiles(mediaPath, messages);
}

void GameBuilder::addHeader()
{
    game.comment = headerText("comment", description.comment, messages);
    game.language = headerText("gme-lang", description.language, messages);
    if (game.comment.size() > kLongestComment) {
        messages.error(description.comment.line, "the comment has " +
                                                     std::to_string(game.comment.size()) +
                                                     " characters, at most 49 are allowed");
    } else if (!fitsIntoHeader(game.comment, game.language)) {
        messages.error(description.language.line, "gme-lang is too long for the game file");
    }
}

}  // namespace

Game buildGame(const Description& description, const Codes& codes, const std::string& yamlFolder,
               Messages& messages)
{
    return GameBuilder(description, codes, messages).build(yamlFolder);
}

}  // namespace gme
