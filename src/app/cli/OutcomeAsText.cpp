#include "app/cli/OutcomeAsText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

#include "base/TextHelpers.h"

namespace {

// --- Lines ---------------------------------------------------------------------------------------

std::string shown(std::uint16_t media, const play::Book& book)
{
    return book.texts.empty() ? std::to_string(media) : "\"" + book.texts[media].text + "\"";
}

// "  says one of "Moo", "Muh": "Muh"", or "  plays 3" where the text is not known.
std::string lineOf(const pen::Sound& sound, const play::Book& book)
{
    std::string line = book.texts.empty() ? "  plays " : "  says ";
    if (sound.choices.size() > 1) {
        std::string separator = "one of ";
        for (const std::uint16_t media : sound.choices) {
            line += separator + shown(media, book);
            separator = ", ";
        }
        line += ": ";
    }
    return line + shown(sound.media(), book) + "\n";
}

std::string stepsAndSeconds(std::uint64_t steps, double seconds)
{
    return std::to_string(steps) + (steps == 1 ? " step, " : " steps, ") + formatFixed(seconds, 2) +
           " s\n";
}

std::string headline(const std::string& tap, const play::Outcome& outcome)
{
    const std::string code = outcome.code ? std::to_string(*outcome.code) : std::string();
    return code.empty() || code == tap ? tap + "\n" : tap + " (" + code + ")\n";
}

// --- JSON ----------------------------------------------------------------------------------------

QString utf8(const std::string& text)
{
    return QString::fromStdString(text);
}

// Without the traces of binary fractions.
double inMilliseconds(double seconds)
{
    return std::round(seconds * 1000) / 1000;
}

std::string jsonOf(const QJsonValue& value)
{
    const std::string list =
        QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
    return list.substr(1, list.size() - 2);
}

// Members stay in their order, for those who read along.
class JsonObject
{
public:
    void add(const char* name, const QJsonValue& value)
    {
        text += (text.empty() ? "{\"" : ",\"") + std::string(name) + "\":" + jsonOf(value);
    }
    std::string line() const { return text + "}\n"; }

private:
    std::string text;
};

QJsonArray says(const play::Outcome& outcome, const play::Book& book)
{
    QJsonArray all;
    if (book.texts.empty()) {
        return all;
    }
    for (const play::Heard& heard : outcome.heard) {
        QJsonArray texts;
        for (const std::uint16_t media : heard.sound.choices) {
            texts << utf8(book.texts[media].text);
        }
        all << texts;
    }
    return all;
}

QJsonArray plays(const play::Outcome& outcome)
{
    QJsonArray all;
    for (const play::Heard& heard : outcome.heard) {
        QJsonArray indexes;
        for (const std::uint16_t media : heard.sound.choices) {
            indexes << media;
        }
        all << indexes;
    }
    return all;
}

QJsonArray chose(const play::Outcome& outcome)
{
    QJsonArray all;
    for (const play::Heard& heard : outcome.heard) {
        all << static_cast<int>(heard.sound.chosen);
    }
    return all;
}

QJsonObject variables(const play::Outcome& outcome)
{
    QJsonObject all;
    for (const auto& [name, change] : outcome.variables) {
        all[utf8(name)] = change.now;
    }
    return all;
}

// Why the pen was stopped; nothing if it was not.
std::string stopReason(const play::Outcome& outcome)
{
    for (const play::Incident& incident : outcome.incidents) {
        if (incident.kind == play::Incident::Kind::noEnd) {
            return wordsOf(incident);
        }
    }
    return {};
}

QJsonArray problems(const play::Outcome& outcome)
{
    QJsonArray all;
    for (const play::Incident& incident : outcome.incidents) {
        if (incident.kind != play::Incident::Kind::noEnd) {
            all << utf8(wordsOf(incident));
        }
    }
    return all;
}

}  // namespace

std::string outcomeAsLines(const std::string& tap, const play::Outcome& outcome,
                           const play::Book& book)
{
    std::string text = headline(tap, outcome);
    for (const play::Heard& heard : outcome.heard) {
        text += lineOf(heard.sound, book);
    }
    for (const auto& [name, change] : outcome.variables) {
        text += "  " + name + " = " + std::to_string(change.now) + "\n";
    }
    for (const play::Incident& incident : outcome.incidents) {
        const bool isStop = incident.kind == play::Incident::Kind::noEnd;
        text += (isStop ? "  stopped: " : "  ") + wordsOf(incident) + "\n";
    }
    if (!outcome.heard.empty()) {
        text += "  until the first sound: " +
                stepsAndSeconds(outcome.heard[0].steps, outcome.heard[0].seconds);
    }
    return text + "  until rest: " + stepsAndSeconds(outcome.steps, outcome.seconds);
}

std::string outcomeAsJson(const std::string& tap, const play::Outcome& outcome,
                          const play::Book& book)
{
    JsonObject object;
    object.add("tap", utf8(tap));
    object.add("code", outcome.code ? QJsonValue(*outcome.code) : QJsonValue());
    object.add("says", says(outcome, book));
    object.add("plays", plays(outcome));
    object.add("chose", chose(outcome));
    object.add("variables", variables(outcome));
    object.add("steps", static_cast<qint64>(outcome.steps));
    object.add("seconds", inMilliseconds(outcome.seconds));
    if (!outcome.heard.empty()) {
        object.add("stepsToSound", static_cast<qint64>(outcome.heard[0].steps));
        object.add("secondsToSound", inMilliseconds(outcome.heard[0].seconds));
    }
    const std::string reason = stopReason(outcome);
    if (!reason.empty()) {
        object.add("stopped", utf8(reason));
    }
    if (!problems(outcome).isEmpty()) {
        object.add("problems", problems(outcome));
    }
    return object.line();
}
