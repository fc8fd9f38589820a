#include "bench/EditorBench.h"

namespace EditorBench {

std::u16string scriptOfLines(int lines)
{
    static const char16_t* const pattern[] = {
        u"sub cow",                                        //  7
        u"    say \"the cow says moo\" anna",              // 31
        u"    if $visits > 3",                             // 18
        u"        say \"hello again, my friend\"",         // 36
        u"\tgoto counting_the_animals",                    // 26, with a tab
        u"    endif",                                      //  9
        u"    $visits = $visits + 1 * ($x - 2)",           // 36
        u"    # what the duck says comes next, and then",  // 44
        u"voice anna lang en age 30 pitch 3 speed 2",      // 41
        u"    say 'not a text' 12.5",                      // 25
    };
    std::u16string text;
    for (int i = 0; i < lines; ++i) {
        text += i > 0 ? u"\n" : u"";
        text += pattern[i % 10];
    }
    return text;
}

}  // namespace EditorBench
