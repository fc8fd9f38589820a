#pragma once

#include <string>

#include "play/PlayedBook.h"

// What came of a tap, for a reader: a line with the tap as it was typed, and an indented line for
// everything that was said, changed or wrong.
//
//   dog (1002)
//     says one of "Wuff", "Wau": "Wau"
//     count = 1
//     until the first sound: 3 steps, 0.21 s
//     until rest: 4 steps, 0.53 s
std::string outcomeAsLines(const std::string& tap, const play::Outcome& outcome,
                           const play::Book& book);

// The same as one JSON object on a line:
// {"tap":..,"code":..,"says":[["text",..],..],"plays":[[media index,..],..],"chose":[..],
// "variables":{..},"steps":N,"seconds":S,"stopped":reason?}
// An entry of "says", "plays" and "chose" stands for a sound in the order played: the texts and the
// media indexes that it was chosen of, and which of them it was, from 0. Without texts (those of a
// game file are not known) "says" is empty. "code" is null where nothing was touched. Only where
// there are any: "stepsToSound" and "secondsToSound", the steps and seconds until the first sound,
// and "problems", a list of sentences.
std::string outcomeAsJson(const std::string& tap, const play::Outcome& outcome,
                          const play::Book& book);
