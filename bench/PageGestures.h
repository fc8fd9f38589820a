#pragma once

// What mouse and wheel do to a large page with many areas, in the whole window with its lists: each
// must be on the screen before the next picture of the screen is shown. Prints a row for each;
// false when a limit is missed.
bool measureGestures();
