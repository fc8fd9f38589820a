#include "app/cli/SpeechProgress.h"

#include <cstdio>
#include <string>

bool showSpeechProgress(int done, int total)
{
    if (done < total) {
        printf("%d/%d\r", done + 1, total);
    } else {
        printf("%*s\r", 2 * static_cast<int>(std::to_string(total).size()) + 1, "");
    }
    fflush(stdout);
    return true;
}
