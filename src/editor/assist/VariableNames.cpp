#include "editor/assist/VariableNames.h"

#include "base/TextHelpers.h"
#include "base/Unicode.h"

#include <algorithm>

namespace {

bool isLettersAndDigits(std::string_view name)
{
    while (!name.empty()) {
        char32_t c = 0;
        if (!Utf8::takeCharacter(name, c) || (c != '_' && !isLetterOrNumber(c))) {
            return false;
        }
    }
    return true;
}

bool isTaken(const ScriptOutline& outline, NameKind kind, const std::string& name)
{
    const std::vector<const char*>& voices = ScriptLanguage::builtInVoices();
    const bool isBuiltIn =
        kind == NameKind::voice && std::find(voices.begin(), voices.end(), name) != voices.end();
    return isBuiltIn || !usesOf(outline, kind, name).empty();
}

}  // namespace

QString VariableNames::problemOf(const ScriptOutline& outline, NameKind kind, const QString& name)
{
    const std::string bytes = name.toStdString();
    if (bytes.empty() || !isLettersAndDigits(bytes) || isNumber(bytes)) {
        return tr("Take letters, digits and \"_\", and begin with a letter.");
    }
    if (toLower(bytes) != bytes) {
        return tr("Take small letters: a name with capitals is not found when it is read.");
    }
    if (kind == NameKind::variable && bytes.front() == ScriptLanguage::kReservedStart) {
        return tr("Names that begin with \"_\" belong to the compiler.");
    }
    const StatementKind statement = readStatement((bytes + " =").c_str()).kind;
    if (kind == NameKind::variable && statement != StatementKind::assignment) {
        return tr("This is a word of the language. Choose another name.");
    }
    if (isTaken(outline, kind, bytes)) {
        return tr("This name is taken already. Choose another name.");
    }
    return {};
}
