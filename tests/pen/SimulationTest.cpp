// Assembled games, played: the states after each tap are in tests/gme/vectors/simulation.json.
#include "gme/DescriptionReader.h"
#include "gme/LineParser.h"
#include "gme/Registers.h"
#include "pen/GameReader.h"
#include "tests/gme/GameFolder.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/pen/PlayedSounds.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace fs = std::filesystem;

namespace {

// What the names in a YAML file are in its game file.
class GameNames
{
public:
    explicit GameNames(const std::string& yamlFile);

    std::string nonZeroRegisters(const pen::Pen& pen) const;
    std::string plays(const std::vector<pen::Sound>& sounds) const;

private:
    void note(const gme::Operand& operand);
    void note(const gme::Register& reg);
    void note(const gme::ScriptLine& line);

    std::map<std::string, gme::Register> byName;
    std::set<std::string> audio;
    gme::Registers registers;
};

GameNames::GameNames(const std::string& yamlFile)
{
    const gme::Description description =
        gme::readDescription(readFile(yamlFile), yamlFile, [](const Diagnostic&) {}).value();
    for (const auto& [name, script] : description.scripts) {
        for (const gme::SourceLine& source : script.lines) {
            gme::ScriptLine line;
            gme::parseScriptLine(source.text, line);
            note(line);
        }
    }
    std::vector<gme::InitialValue> values;
    gme::parseInit(description.init.text, values);
    for (const gme::InitialValue& value : values) {
        registers.noteInitialValue(value);
        note(value.reg);
    }
    std::vector<std::string> welcome;
    gme::parsePlayList(description.welcome.at(0).text, welcome);
    audio.insert(welcome.begin(), welcome.end());
    registers.assignNumbers();
}

void GameNames::note(const gme::ScriptLine& line)
{
    for (const gme::Condition& condition : line.conditions) {
        note(condition.left);
        note(condition.right);
    }
    for (const gme::Command& command : line.commands) {
        if (command.hasTarget) {
            note(command.target);
        }
        note(command.value);
    }
    registers.noteUseIn(line);
    audio.insert(line.playList.begin(), line.playList.end());
}

void GameNames::note(const gme::Operand& operand)
{
    if (operand.isRegister) {
        note(operand.reg);
    }
}

void GameNames::note(const gme::Register& reg)
{
    byName["$" + (reg.name.empty() ? std::to_string(reg.number) : reg.name)] = reg;
}

std::string GameNames::nonZeroRegisters(const pen::Pen& pen) const
{
    std::string text;
    for (const auto& [name, reg] : byName) {
        const unsigned value = pen.registerValue(registers.numberOf(reg));
        text += value != 0 ? name + "=" + std::to_string(value) + " " : "";
    }
    return text;
}

std::string GameNames::plays(const std::vector<pen::Sound>& sounds) const
{
    const std::vector<std::string> names(audio.begin(), audio.end());
    std::string text;
    for (const pen::Sound& sound : sounds) {
        text += "[ ";
        for (const uint16_t index : sound.choices) {
            text += names.at(index) + " ";
        }
        text += "] ";
    }
    return text;
}

const gme::YamlNode& valueOf(const gme::YamlNode& mapping, const std::string& name)
{
    static const gme::YamlNode none;
    const auto found =
        std::find_if(mapping.children.begin(), mapping.children.end(),
                     [&name](const gme::YamlNode& value) { return value.key == name; });
    return found == mapping.children.end() ? none : *found;
}

// The same texts from what is expected.
std::string expectedRegisters(const gme::YamlNode& tap)
{
    std::map<std::string, std::string> sorted;
    for (const gme::YamlNode& entry : valueOf(tap, "registers").children) {
        sorted[entry.key] = entry.text;
    }
    std::string text;
    for (const auto& [name, value] : sorted) {
        text.append(name).append("=").append(value).append(" ");
    }
    return text;
}

std::string expectedPlays(const gme::YamlNode& tap)
{
    std::string text;
    for (const gme::YamlNode& files : valueOf(tap, "plays").children) {
        text += "[ ";
        for (const gme::YamlNode& name : files.children) {
            text += name.text + " ";
        }
        text += "] ";
    }
    return text;
}

fs::path vectors()
{
    return fs::path(PLINKETT_SOURCE_DIR) / "tests/gme/vectors";
}

// Assembles a vector in a copy, so that nothing is written into the source tree.
class PlayedVector : public testing::TestWithParam<std::string>
{
protected:
    PlayedVector()
    {
        fs::copy(vectors() / GetParam(), copy.file(GetParam()), fs::copy_options::recursive);
        fs::copy(vectors() / "audio", copy.file("audio"), fs::copy_options::recursive);
        for (const fs::directory_entry& entry : fs::directory_iterator(copy.file(GetParam()))) {
            if (entry.path().filename().string()[0] != 'e' && entry.path().extension() == ".yaml") {
                yaml = entry.path().string();
            }
        }
    }

    // JSON is YAML, too.
    std::vector<gme::YamlNode> taps() const
    {
        CapturedMessages captured;
        gme::Messages messages("simulation.json", printWith(CapturedMessages::print));
        gme::YamlNode vectorList;
        gme::readYaml(readFile((vectors() / "simulation.json").string()), vectorList, messages);
        for (const gme::YamlNode& entry : vectorList.children) {
            if (valueOf(entry, "vector").text == GetParam()) {
                return valueOf(entry, "taps").children;
            }
        }
        return {};
    }

    TemporaryFolder copy;
    std::string yaml;
};

}  // namespace

TEST_P(PlayedVector, ShowsTheExpectedRegistersAndSoundsAfterEveryTap)
{
    const Assembled assembled = assembleFile(yaml);
    ASSERT_TRUE(assembled.ok);
    const GameNames names(yaml);
    std::string problem;
    const std::optional<pen::PenGame> game = pen::readGame(assembled.game, problem);
    ASSERT_TRUE(game.has_value()) << problem;
    PlayedSounds played;
    pen::Pen pen(*game, {}, played);

    ASSERT_GT(taps().size(), 0U);
    for (const gme::YamlNode& tap : taps()) {
        SCOPED_TRACE(valueOf(tap, "name").text);
        pen.tap(static_cast<uint16_t>(std::stoul(valueOf(tap, "code").text)));
        EXPECT_TRUE(pen.runToRest());
        EXPECT_EQ(names.nonZeroRegisters(pen), expectedRegisters(tap));
        EXPECT_EQ(names.plays(played.take()), expectedPlays(tap));
    }
}

INSTANTIATE_TEST_SUITE_P(Vectors, PlayedVector,
                         testing::Values("v01-first", "v02-operators", "v03-registers",
                                         "v14-simulation"),
                         [](const testing::TestParamInfo<std::string>& vector) {
                             return vector.param.substr(0, 3);
                         });
