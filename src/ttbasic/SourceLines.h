#pragma once

// Takes a zero-terminated text apart into its lines, in place: the first call gets the text, each
// further one nullptr. A line loses its "\n" and one "\r" before it; null at the end of the text.
// As with strtok there is one position for the whole process.
char* nextLine(char* text);

// Cuts the line at the first marker; with respectQuotes, at the first one outside double quotes.
// White space at the end of the line is removed before the cut, so what stands in front of the
// marker keeps its blanks.
void CutComment(char* line, char marker, bool respectQuotes);
