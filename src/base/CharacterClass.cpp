#include "base/CharacterClass.h"

#include <QChar>

bool isLetterOrNumber(char32_t character)
{
    return QChar::isLetterOrNumber(static_cast<uint>(character));
}

bool isUnicodeSpace(char32_t character)
{
    return QChar::isSpace(static_cast<uint>(character));
}
