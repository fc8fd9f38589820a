#include "tests/play/ScriptPair.h"

#include "tests/play/Books.h"

namespace {

pen::PenOptions patientPen()
{
    pen::PenOptions options;
    options.mostSteps = Interpreter::kMostStatements;  // a statement is a step at least
    return options;
}

std::string shown(const std::vector<Interpreter::Say>& says,
                  const std::map<std::string, uint16_t>& variables)
{
    std::string text;
    for (const Interpreter::Say& choices : says) {
        for (const std::string& choice : choices) {
            text += "[" + choice + "]";
        }
        text += "\n";
    }
    for (const auto& [name, value] : variables) {
        text += value != 0 ? name + "=" + std::to_string(value) + " " : "";
    }
    return text;
}

std::vector<Interpreter::Say> saidBy(const play::Outcome& outcome, const play::Book& book)
{
    std::vector<Interpreter::Say> says;
    for (const play::Heard& heard : outcome.heard) {
        Interpreter::Say& choices = says.emplace_back();
        for (const uint16_t media : heard.sound.choices) {
            choices.push_back(book.texts.at(media).voice + ": " + book.texts.at(media).text);
        }
    }
    return says;
}

}  // namespace

ScriptPair::ScriptPair(const RandomScript& script)
    : played(bookWith(script.text, script.subs), patientPen()), interpreter(script.text)
{}

bool ScriptPair::tap(const std::string& sub)
{
    played.tap(played.book().areas.at(sub));
    played.runToRest();
    const bool hasEnd = interpreter.tap(sub);
    return hasEnd && !penWasStopped();
}

std::string ScriptPair::ofPen() const
{
    return shown(saidBy(played.outcome(), played.book()), played.variables());
}

std::string ScriptPair::ofInterpreter() const
{
    return shown(interpreter.said(), interpreter.variables());
}
