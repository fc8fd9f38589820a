#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QByteArray>

// Whether a program that speaks is installed.
bool isSpeakerThere(const std::string& program);

// Runs a program that speaks to its end, without a shell, and hands on what it writes to standard
// output piece by piece. Its standard input is the given text, which may hold anything and be of
// any length. Returns what went wrong, in one line that names the program; empty when nothing did.
std::string runSpeakingProgram(const std::string& program,
                               const std::vector<std::string>& arguments, const std::string& input,
                               const std::function<void(const QByteArray&)>& receive);
