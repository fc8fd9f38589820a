#pragma once

// The door through which messages leave the core: a function of printf form. Every text ends its
// line itself. Model, compiler, renderer and build hold such a pointer, and the window points them
// at its console.
using PrintFunction = int (*)(const char* format, ...);

// The print function that a fresh project and the modules start with: one setting of the process,
// standard output unless changed. Null sets standard output again.
void setDefaultPrintf(PrintFunction function);
PrintFunction defaultPrintf();

// printf to standard output, as a plain function that the pointer above can hold.
int printToStandardOutput(const char* format, ...);
// For work of which nothing is to be heard: prints nothing.
int printNothing(const char* format, ...);
