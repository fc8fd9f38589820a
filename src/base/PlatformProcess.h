#pragma once

#include <cstddef>
#include <string>
#include <vector>

// The running process, its environment, and the programs it can start.
namespace Platform {

// The folder of the running program in our form on Windows and native on POSIX; empty if unknown.
std::string exeDirectory();
// The words this process was started with, the program first.
std::vector<std::string> commandLineArguments();
bool standardOutputIsTerminal();

// UTF-8; empty when the variable is not set (an empty one counts as not set, as on Windows).
std::string environmentVariable(const std::string& name);
// For this process and the programs that it starts from now on; an empty value removes it.
void setEnvironmentVariable(const std::string& name, const std::string& value);

// Between the folders of PATH.
extern const char searchPathSeparator;
// The folders in which programs are searched: PATH, or the system's own list where it is not set.
std::string searchPath();

// The native path of a program as starting it would find it, on PATH unless the name has a folder;
// empty when there is none. Folders of PATH without a name do not count.
std::string findProgram(const std::string& name);
// What to start for a program word: its native path. Where programs have no suffix, X.exe that is
// not found becomes X. A program that is not there at all keeps its name.
std::string programToStart(const std::string& word);
// The folder of a tool that no variable announces: on Windows its own folder below ProgramFiles,
// elsewhere the first folder of PATH that holds it; empty when it is not there.
std::string installedToolFolder(const std::string& tool);
// Where an author puts programs of their own: ProgramFiles, or the system's folder of that kind.
std::string programsFolder();
// The longest word, in bytes, that the system hands to a program.
extern const std::size_t longestArgument;

// Has Qt, and on Windows the console while this program runs, take texts as UTF-8 whatever the
// locale, as all of ours are. Called before the first program is started.
void useUtf8ForSystemTexts();

}  // namespace Platform
