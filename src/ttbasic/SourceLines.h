#pragma once

// Takes a zero-terminated text apart into its lines, in place. A line loses its "\n" and one "\r"
// before it.
class LineSplitter
{
public:
    // The text has to outlive the splitter; null is a text without lines.
    explicit LineSplitter(char* text) : position(text) {}

    // Null at the end of the text, and from then on.
    char* next();

private:
    char* position;
};

// The same in the manner of strtok, with one splitter for the whole process: the first call gets
// the text, each further one nullptr.
char* nextLine(char* text);

// Cuts the line at the first marker; with respectQuotes, at the first one outside double quotes.
// White space at the end of the line is removed before the cut, so what stands in front of the
// marker keeps its blanks. Returns where the marker stood, null when there is none.
char* CutComment(char* line, char marker, bool respectQuotes);

// Cuts the comment of a line of a script. Returns where it began, null without one.
char* CutComments(char* line);
