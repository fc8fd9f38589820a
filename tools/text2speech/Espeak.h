#pragma once

#include <functional>
#include <string>

#include <QByteArray>
#include <QStringList>

// Runs espeak-ng to its end, without a shell, and hands on what it writes to standard output piece
// by piece. The text goes to its standard input, so that it may hold anything and be of any length.
// Returns what went wrong, in one line; empty when nothing did.
std::string runEspeak(const QStringList& arguments, const std::string& text,
                      const std::function<void(const QByteArray&)>& receive);
