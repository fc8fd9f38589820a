#pragma once

#include "base/Diagnostic.h"
#include "gme/Description.h"
#include "gme/Yaml.h"

namespace gme {

// The description that a YAML file holds. The file, which may be empty, is for diagnostics only.
// None after an error; all of them are reported.
std::optional<Description> readDescription(const std::string& bytes, const std::string& file,
                                           const DiagnosticSink& sink);

// What is required of every description, wherever it comes from. The place is that of the section.
void checkScripts(const std::map<std::string, ScriptSource>& scripts, Place place,
                  Messages& messages);
void checkScript(const std::string& name, const ScriptSource& script, Messages& messages);
void checkWelcome(const std::vector<SourceLine>& lists, Place place, Messages& messages);

// A code under a name of its own, such as "replay"; none when it is absent (null) or wrong, which
// is reported.
std::optional<GivenCode> readSpecialCode(const YamlNode* node, Messages& messages);

// The codes of the section "scriptcodes"; every wrong one is reported.
void readScriptCodes(const YamlNode& section, std::map<std::string, GivenCode>& names,
                     Messages& messages);

// Warns when a name that stands in a mapping twice loses a value.
void warnAboutLostValue(const YamlNode& earlier, const YamlNode& last, Messages& messages);

}  // namespace gme
