#pragma once

#include <map>
#include <string>
#include <vector>

// Blank, tab, CR and LF only.
bool isSpace(char c);
// A to Z, a to z, 0 to 9 only (not even "_").
bool isReadableAscii(char c);
// True when the first character is a digit.
bool isNumber(const std::string& text);

// A tokenizer over zero-terminated text: tokens are separated by isSpace characters.
const char* skipWhite(const char* text);
const char* skipChars(const char* text);
std::string peekString(const char* text);
// These take the next token and leave the position just behind it. A malformed number is 0;
// integers beyond the range of int saturate; decimals have a point whatever the locale.
std::string parseString(const char*& text);
int parseInt(const char*& text);
double parseFlt(const char*& text);

// atoi and atof that do not depend on the locale and never overflow.
int toInt(const char* text);
double toDouble(const char* text);
// "%.*f" with a point whatever the locale; width as in "%8.2f".
std::string formatFixed(double value, int decimals, int width = 0);

std::string toLower(std::string text);
std::string replaceNonAscii(std::string text);
// Replaces every occurrence, going on behind each replacement; true when there was one.
bool strReplace(std::string& text, const std::string& search, const std::string& replacement);
std::string itostr(int value);

// Splits at blank, tab, LF and CR outside double quotes. With removeQuotes, words of more than two
// characters that begin and end with a quote lose both. Returns the number of words.
// Intended: an empty text leaves out as it is.
int SplitStringKeepQuotes(const std::string& text, std::vector<std::string>& out,
                          bool removeQuotes);

// The words of this process's command line, the program first.
std::vector<std::string> commandLineArguments();
// Options with their values; "executable_path" is the program, the empty key the one free argument,
// "parse_error" is "1" when there was a second one.
std::map<std::string, std::string>
parseCommandLineOptions(const std::map<std::string, std::string>& defaults,
                        const std::vector<std::string>& arguments);
