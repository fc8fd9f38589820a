#include "tests/helpers/Environment.h"

#include "base/PlatformProcess.h"

ChangedVariable::ChangedVariable(const std::string& variable, const std::string& value)
    : name(variable), before(Platform::environmentVariable(variable))
{
    Platform::setEnvironmentVariable(name, value);
}

ChangedVariable::~ChangedVariable()
{
    Platform::setEnvironmentVariable(name, before);
}
