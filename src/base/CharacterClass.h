#pragma once

// A letter or number of any script (Unicode categories L and N; marks are neither).
bool isLetterOrNumber(char32_t character);
// White space of any script, the no-break spaces and line separators included.
bool isUnicodeSpace(char32_t character);
