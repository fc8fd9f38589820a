#include "tests/helpers/FakeProgram.h"

#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>

namespace fs = std::filesystem;

FakeProgram::FakeProgram(const std::string& folder, const std::string& programName,
                         const std::string& planned)
    : program(folder + "/" + programName)
{
    fs::create_directories(fs::u8path(folder));
    fs::copy_file(PLINKETT_FAKE_PROGRAM, fs::u8path(programFile(program)),
                  fs::copy_options::overwrite_existing);
    plan(planned);
}

void FakeProgram::plan(const std::string& planned) const
{
    writeFile(program + ".plan", planned);
}

std::string FakeProgram::calls() const
{
    const std::string file = program + ".calls";
    return fs::exists(fs::u8path(file)) ? readFile(file) : std::string();
}

int FakeProgram::callCount() const
{
    const std::string text = calls();
    int count = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool lineIsEmpty = text[i] == '\n' && (i == 0 || text[i - 1] == '\n');
        count += lineIsEmpty ? 1 : 0;
    }
    return count;
}
