#pragma once

#include "pen/Pen.h"

#include <string>
#include <utility>

// What a pen does, a line for each event.
class EventLog : public pen::PenListener
{
public:
    void lineChosen(uint16_t code, size_t line) override
    {
        note("line " + std::to_string(line) + " of " + std::to_string(code));
    }
    void registerChanged(uint16_t number, uint16_t before, uint16_t now) override
    {
        note("$" + std::to_string(number) + ": " + std::to_string(before) + " to " +
             std::to_string(now));
    }
    void soundStarted(const pen::Sound& sound) override
    {
        std::string event = "sound";
        for (const uint16_t media : sound.choices) {
            event += " " + std::to_string(media);
        }
        note(event + (sound.choices.size() > 1 ? ", chosen " + std::to_string(sound.media()) : ""));
    }
    void soundCutOff() override { note("cut off"); }
    void jumped(uint16_t code) override { note("jump to " + std::to_string(code)); }
    void codeWithoutScript(uint16_t code) override { note("no script " + std::to_string(code)); }
    void noLineFits(uint16_t code) override { note("no line of " + std::to_string(code)); }
    void divisionByZero(uint16_t code, size_t line) override
    {
        note("division by zero in line " + std::to_string(line) + " of " + std::to_string(code));
    }
    void wrapped(uint16_t number, int64_t result) override
    {
        note("$" + std::to_string(number) + " would be " + std::to_string(result));
    }
    void limitReached(uint64_t steps) override
    {
        note("limit after " + std::to_string(steps) + " steps");
    }
    // Everything since the last call.
    std::string take() { return std::exchange(text, {}); }

private:
    void note(const std::string& event) { text += event + "\n"; }

    std::string text;
};
