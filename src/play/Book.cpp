#include "play/Book.h"

#include <QString>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/TextHelpers.h"
#include "gme/Game.h"
#include "gme/LineParser.h"
#include "oid/OidProject.h"
#include "pen/GameReader.h"
#include "pen/SoundLength.h"
#include "publish/DescribeGame.h"
#include "ttbasic/ScriptOutline.h"

namespace play {

namespace {

constexpr double kCharactersInASecond = 15;  // that a voice speaks

class BookMaker
{
public:
    BookMaker(DescribedBook& described, const gme::Game& compiledGame, const std::string& script)
        : description(described.game),
          texts(described.texts),
          game(compiledGame),
          outline(outlineOf(script))
    {
        book.voices = std::move(described.voices);
        book.script = script;
    }

    Book make();

private:
    void addAreas();
    void addTexts();
    void addText(const std::string& audioName);
    void addRegisters();
    void addVariable(const std::string& name);
    void addOrigins();
    std::vector<Origin> originsOf(const gme::ScriptSource& source,
                                  const std::vector<gme::ScriptLine>& lines) const;
    int conditionOf(const gme::ScriptLine& line, int scriptLine) const;

    const gme::Description& description;
    const std::map<std::string, ttbasic::TALKTEXT>& texts;
    const gme::Game& game;
    const ScriptOutline outline;
    Book book;
};

Book BookMaker::make()
{
    book.game = pen::gameForPen(game);
    addAreas();
    addTexts();
    addRegisters();
    addOrigins();
    return std::move(book);
}

void BookMaker::addAreas()
{
    for (const auto& [name, given] : description.codes.names) {
        book.areas[name] = given.code;
    }
}

void BookMaker::addTexts()
{
    book.texts.resize(game.media.files().size());
    for (const std::vector<std::string>& list : game.welcome) {
        for (const std::string& audioName : list) {
            addText(audioName);
        }
    }
    for (const auto& [code, lines] : game.scripts) {
        for (const gme::ScriptLine& line : lines) {
            for (const std::string& audioName : line.playList) {
                addText(audioName);
            }
        }
    }
}

void BookMaker::addText(const std::string& audioName)
{
    const uint16_t media = game.media.indexOf(audioName);
    const ttbasic::TALKTEXT& text = texts.at(audioName);
    book.texts[media] = {text.text, text.voice, game.media.files()[media].path};
}

// The author knows the variables that the script names; the others are the compiler's.
void BookMaker::addRegisters()
{
    std::vector<gme::InitialValue> values;
    gme::parseInit(description.init.text, values);
    for (const gme::InitialValue& value : values) {
        const gme::Register& reg = value.reg;
        const uint16_t number = game.registers.numberOf(reg);
        book.registers[reg.name.empty() ? std::to_string(reg.number) : reg.name] = number;
        if (number >= book.game.registers.size()) {  // no script uses it
            book.game.registers.resize(size_t{number} + 1);
            book.game.registers[number] = value.value;
        }
    }
    for (const ScriptOutline::Variable& variable : outline.variables) {
        addVariable(variable.access == ScriptOutline::Access::selected ? toLower(variable.name)
                                                                       : variable.name);
    }
}

void BookMaker::addVariable(const std::string& name)
{
    if (book.registers.count(name) != 0) {
        book.variables.insert(name);
    }
}

// Of two scripts with one code the later name's is in the game.
void BookMaker::addOrigins()
{
    for (const auto& [name, code] : game.codes.scripts) {
        if (book.origins.size() <= code) {
            book.origins.resize(size_t{code} + 1);
        }
        book.origins[code] = originsOf(description.scripts.at(name), game.scripts.at(code));
    }
}

// A jump to the next step that is not the script's first line leads over the statement: the first
// line is the statement itself, under the conditions of the blocks around it.
bool onlyPasses(const gme::ScriptLine& line, size_t index)
{
    return index > 0 && line.commands.size() == 2 &&
           line.commands[0].opcode == gme::Opcode::kJump &&
           line.commands[1].opcode == gme::Opcode::kAdd;
}

std::vector<Origin> BookMaker::originsOf(const gme::ScriptSource& source,
                                         const std::vector<gme::ScriptLine>& lines) const
{
    std::vector<Origin> origins;
    origins.reserve(lines.size());
    for (size_t i = 0; i < lines.size() && i < source.lines.size(); ++i) {
        Origin& origin = origins.emplace_back();
        origin.line = source.lines[i].place.line;
        // A step within a statement was made by that statement, its first one by what is above.
        origin.begins = origin.line != source.place.line;
        origin.passes = onlyPasses(lines[i], i);
        origin.condition = conditionOf(lines[i], origin.line);
    }
    return origins;
}

// A statement with a block keeps what chooses the branch in "$ifexp1" and so on.
int BookMaker::conditionOf(const gme::ScriptLine& line, int scriptLine) const
{
    const ScriptOutline::Statement* statement = outline.statementOn(scriptLine);
    const bool opensBlock =
        statement != nullptr && (statement->kind == StatementKind::ifBlock ||
                                 statement->kind == StatementKind::caseBranch ||
                                 statement->kind == StatementKind::defaultBranch);
    for (const gme::Command& command : line.commands) {
        if (opensBlock && command.opcode == gme::Opcode::kAssign && command.value.isRegister &&
            command.target.name.rfind("ifexp", 0) == 0) {
            return game.registers.numberOf(command.value.reg);
        }
    }
    return Origin::kNone;
}

}  // namespace

std::optional<Book> bookOf(const Oid::OidProject& project, const DiagnosticSink& sink)
{
    std::optional<DescribedBook> described = describeBook(project, sink);
    if (!described) {
        return std::nullopt;
    }
    gme::MediaLookup audio;
    if (!project.projectPath.empty()) {
        audio = gme::mediaIn(FileSystem::getDirectoryOfPath(project.projectPath));
    }
    audio.isLenient = true;
    const std::optional<gme::Game> game = gme::compileGame(described->game, audio, sink);
    return game ? std::make_optional(BookMaker(*described, *game, project.compiler.source).make())
                : std::nullopt;
}

void measureSounds(Book& book)
{
    for (size_t i = 0; i < book.texts.size(); ++i) {
        const Text& text = book.texts[i];
        const std::optional<QByteArray> sound =
            text.audioFile.empty() ? std::nullopt : readInput(text.audioFile);
        const double seconds = sound ? pen::soundSeconds(sound->toStdString()) : 0;
        book.game.soundSeconds[i] =
            seconds > 0 ? seconds : QString::fromStdString(text.text).size() / kCharactersInASecond;
    }
}

std::optional<uint16_t> codeOf(const Book& book, const std::string& name)
{
    constexpr int kMost = 65535;
    constexpr size_t kMostDigits = 5;
    const auto area = book.areas.find(name);
    if (area != book.areas.end()) {
        return area->second;
    }
    const bool isNumber = !name.empty() && name.size() <= kMostDigits &&
                          name.find_first_not_of("0123456789") == std::string::npos;
    const int number = isNumber ? toInt(name.c_str()) : kMost + 1;
    return number <= kMost ? std::make_optional(static_cast<uint16_t>(number)) : std::nullopt;
}

std::optional<Book> bookOfGameFile(const std::string& path, std::string& problem)
{
    std::optional<pen::PenGame> game = pen::readGameFile(path, problem);
    if (!game) {
        return std::nullopt;
    }
    Book book;
    for (size_t i = 0; i < game->registers.size(); ++i) {
        const std::string name = "$" + std::to_string(i);
        book.registers[name] = static_cast<uint16_t>(i);
        book.variables.insert(name);
    }
    book.game = std::move(*game);
    return book;
}

}  // namespace play
