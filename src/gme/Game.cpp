#include "gme/Game.h"

#include "base/Unicode.h"
#include "gme/DescriptionReader.h"
#include "gme/GameFile.h"
#include "gme/LineParser.h"

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
            messages.error(text.place, "text-encoding", owner + ": the text is not valid UTF-8");
            break;
        }
        bytes += static_cast<char>(c & 0xFFU);
        garbled += c > 0xFF ? before.substr(0, before.size() - rest.size()) : std::string_view();
    }
    if (!garbled.empty()) {
        messages.warning(text.place, "characters-lost",
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

    Game build(const MediaLookup& media);

private:
    void checkCodes();
    void checkCode(const std::string& kind, const std::string& name, uint16_t code, Place place);
    void addScripts();
    std::map<uint16_t, const std::string*> scriptsByCode();
    std::vector<ScriptLine> readScript(const std::string& name, const ScriptSource& source);
    void checkLine(const std::string& script, const ScriptLine& line, const SourceLine& source);
    void report(const std::string& owner, const LineResult& result, const SourceLine& line,
                const std::string& script = {});
    void addWelcome();
    void addInitialValues();
    void findMedia(const MediaLookup& media);
    void addHeader();

    const Description& description;
    const Codes& codes;
    Messages& messages;
    Game game;
};

Game GameBuilder::build(const MediaLookup& media)
{
    game.productId = description.productId;
    game.codes = codes;
    checkCodes();
    addHeader();
    addWelcome();
    addScripts();
    addInitialValues();
    if (!game.registers.assignNumbers()) {
        messages.error({}, "registers-used-up", "the game has more than 65535 registers");
    }
    findMedia(media);
    return std::move(game);
}

void GameBuilder::checkCodes()
{
    for (const auto& [name, given] : description.codes.names) {
        if (description.scripts.count(name) == 0) {
            checkCode("area ", name, given.code, given.place);
        }
    }
    checkCode("", "replay", codes.replay, {});
    checkCode("", "stop", codes.stop, {});
    for (const auto& [name, code] : codes.scripts) {
        const Place place = description.scripts.at(name).place;
        checkCode("script ", name, code, place);
        for (const auto& [special, specialCode] :
             {std::make_pair("replay", codes.replay), std::make_pair("stop", codes.stop)}) {
            if (code == specialCode) {
                messages.warning(place, "code-special",
                                 "script " + name + " has the code " + std::to_string(code) +
                                     ", which is also the " + special + " code",
                                 name);
            }
        }
    }
}

void GameBuilder::checkCode(const std::string& kind, const std::string& name, uint16_t code,
                            Place place)
{
    if (code >= kCodesOfThePen) {
        messages.warning(place, "code-unreadable",
                         kind + name + " has the code " + std::to_string(code) +
                             ", but the pen reads only codes below 15000",
                         name);
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
            messages.warning(description.scripts.at(*place).place, "script-lost",
                             "script " + *place + " is lost: script " + name +
                                 " has the same code " + std::to_string(code),
                             *place);
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
        report(owner, result, text, name);
        if (result.failure.empty()) {
            checkLine(name, line, text);
            game.registers.noteUseIn(line);
            for (const std::string& audio : line.playList) {
                game.media.addName(audio, owner);
            }
        }
    }
    return lines;
}

void GameBuilder::checkLine(const std::string& script, const ScriptLine& line,
                            const SourceLine& source)
{
    for (const Command& command : line.commands) {
        const std::string& target = command.jumpTarget;
        if (!target.empty() && codes.scripts.count(target) == 0) {
            messages.error(placeIn(source, command.jumpTargetAt, target.size()), "jump-undefined",
                           "script " + script + ": the jump to " + target +
                               " leads nowhere, there is no such script",
                           script);
        }
    }
    if (line.commands.size() > kMostCommands) {
        messages.warning(source.place, "commands-too-many",
                         "script " + script + ": the line has " +
                             std::to_string(line.commands.size()) +
                             " commands, but the pen runs only the first 8",
                         script);
    }
}

void GameBuilder::report(const std::string& owner, const LineResult& result, const SourceLine& line,
                         const std::string& script)
{
    if (!result.failure.empty()) {
        messages.error(placeIn(line, result.failureAt, 0), "line-syntax",
                       owner + ": " + result.failure, script);
    }
    for (const Word& number : result.largeNumbers) {
        messages.warning(placeIn(line, number.at, number.text.size()), "number-large",
                         owner + ": the number " + quoted(number.text) +
                             " is above 65535 and is taken modulo 65536",
                         script);
    }
}

void GameBuilder::addWelcome()
{
    for (const SourceLine& text : description.welcome) {
        std::vector<std::string>& list = game.welcome.emplace_back();
        report("welcome", parsePlayList(text.text, list), text);
        for (const std::string& audio : list) {
            game.media.addName(audio, "welcome");
        }
    }
}

void GameBuilder::addInitialValues()
{
    std::vector<InitialValue> values;
    report("init", parseInit(description.init.text, values), description.init);
    for (const InitialValue& value : values) {
        game.registers.noteInitialValue(value);
    }
}

void GameBuilder::findMedia(const MediaLookup& media)
{
    MediaPath mediaPath;
    if (!mediaPath.setTemplate(description.mediaPath.text)) {
        messages.error(description.mediaPath.place, "media-path",
                       "media-path must hold %s once, and %% for a percent sign: " +
                           quoted(description.mediaPath.text));
        return;
    }
    game.media.findFiles(mediaPath, media, messages);
}

void GameBuilder::addHeader()
{
    game.comment = headerText("comment", description.comment, messages);
    game.language = headerText("gme-lang", description.language, messages);
    if (game.comment.size() > kLongestComment) {
        messages.error(description.comment.place, "comment-long",
                       "the comment has " + std::to_string(game.comment.size()) +
                           " characters, at most 49 are allowed");
    } else if (!fitsIntoHeader(game.comment, game.language)) {
        messages.error(description.language.place, "language-long",
                       "gme-lang is too long for the game file");
    }
}

void checkDescription(const Description& description, Messages& messages)
{
    checkScripts(description.scripts, {}, messages);
    for (const auto& [name, script] : description.scripts) {
        checkScript(name, script, messages);
    }
    checkWelcome(description.welcome, {}, messages);
}

}  // namespace

std::optional<Game> compileGame(const Description& description, const MediaLookup& media,
                                const DiagnosticSink& sink, const GivenCodes& keptCodes)
{
    Messages messages(description.file, sink);
    checkDescription(description, messages);
    if (messages.hasErrors()) {
        return std::nullopt;
    }
    const GivenCodes given = mergeCodes(description.codes, keptCodes, messages);
    const Codes codes = assignCodes(description, given, messages);
    if (messages.hasErrors()) {
        return std::nullopt;
    }
    Game game = GameBuilder(description, codes, messages).build(media);
    return messages.hasErrors() ? std::nullopt : std::make_optional(std::move(game));
}

std::optional<Game> compileGame(const std::string& yaml, const MediaLookup& media,
                                const DiagnosticSink& sink, const GivenCodes& keptCodes)
{
    const std::optional<Description> description = readDescription(yaml, {}, sink);
    return description ? compileGame(*description, media, sink, keptCodes) : std::nullopt;
}

}  // namespace gme
