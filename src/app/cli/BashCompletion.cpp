#include <cctype>
#include <sstream>

#include "app/cli/CommandLineHelp.h"

namespace {

// What stands in front of the branches, one for each command.
constexpr char kHead[] = R"(# bash completion of plinkett-cli, made by: plinkett-cli --completion

_plinkett_cli()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local options= values= paths= files= words= name extension
    COMPREPLY=()
)";
// What stands behind them: options, words, and files of the endings that fit.
constexpr char kTail[] = R"(    if [[ " $values " == *" $before "* ]]; then
        [[ " $paths " == *" $before "* ]] || return 0
        words= files=any
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        return 0
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
    [ -n "$files" ] || return 0
    compopt -o filenames 2>/dev/null
    while IFS= read -r name; do
        for extension in $files; do
            if [[ -d $name || $extension == any || $name == *."$extension" ]]; then
                COMPREPLY+=("$name")
                break
            fi
        done
    done < <(compgen -f -- "$word")
}
complete -F _plinkett_cli plinkett-cli
)";

bool isInCapitals(const std::string& word)
{
    return !word.empty() && std::isupper(static_cast<unsigned char>(word[0])) != 0;
}

// The words of an operand such as "FILE.gme|PROJECT" or "PROJECT list|speak|import FOLDER".
std::vector<std::string> wordsOf(std::string operand)
{
    for (char& c : operand) {
        c = c == '|' || c == '[' || c == ']' ? ' ' : c;
    }
    std::istringstream text(operand);
    std::vector<std::string> words;
    for (std::string word; text >> word;) {
        words.push_back(word);
    }
    return words;
}

// The endings of the files that a word stands for, "any" for all files; empty if it is none.
std::string endingsOf(const std::string& word)
{
    if (word == "PROJECT") {
        return "oidpro";
    }
    if (word == "FILE...") {
        return "any";
    }
    if (word.rfind("FILE.", 0) == 0 || word.rfind("OUT.", 0) == 0) {
        return word.substr(word.find('.') + 1);
    }
    if (word == "FOLDER") {
        return "folder";  // folders are there in any case
    }
    for (const char* const path : {"FILE", "IMAGE"}) {
        if (word.rfind(path, 0) == 0) {
            return "any";
        }
    }
    return "";
}

void append(std::string& list, const std::string& word)
{
    if (!word.empty()) {
        list += (list.empty() ? "" : " ") + word;
    }
}

// "    check) options=... ;;"
std::string branchOf(const Command& command)
{
    std::string options = "--help", values, paths, files, words;
    for (const Option& option : command.options) {
        append(options, option.name);
        if (option.value != nullptr) {
            append(values, option.name);
            append(paths, endingsOf(option.value).empty() ? "" : option.name);
        }
    }
    for (const std::string& word : wordsOf(command.operand)) {
        append(isInCapitals(word) ? files : words, isInCapitals(word) ? endingsOf(word) : word);
    }
    return std::string("    ") + command.name + ") options=\"" + options + "\" values=\"" + values +
           "\" paths=\"" + paths + "\" files=\"" + files + "\" words=\"" + words + "\" ;;\n";
}

}  // namespace

std::string bashCompletion(const std::vector<Command>& commands)
{
    std::string names, branches;
    for (const Command& command : commands) {
        append(names, command.name);
        branches += branchOf(command);
    }
    return kHead +
           ("    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
            "        mapfile -t COMPREPLY < <(compgen -W \"" +
            names + " " + programOptionNames() +
            "\" -- \"$word\")\n"
            "        return 0\n"
            "    fi\n"
            "    case ${COMP_WORDS[1]} in\n") +
           branches + "    esac\n" + kTail;
}
