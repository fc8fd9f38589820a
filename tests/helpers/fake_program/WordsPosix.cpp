#include "tests/helpers/fake_program/Words.h"

Words utf8Words(int count, char** words)
{
    return {words, words + count};
}
