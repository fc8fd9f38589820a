#include "base/TextHelpers.h"
#include "ttbasic/ttbasic.h"

namespace {

std::string yamlVoice(const std::string& name, const ttbasic::VOICE& voice)
{
    // Intended: no blank between "/5" and "pitch".
    return "    #    name: " + name + " language: " + voice.language +
           " sex: " + (voice.female ? "female" : "male") + " age: " + itostr(voice.age) +
           " speed: " + itostr(voice.speed) + "/5" + "pitch: " + itostr(voice.pitch) + "/5\r\n";
}

}  // namespace

std::string ttbasic::yaml(int productId, const std::string& productName)
{
    const std::string id = itostr(productId);
    std::string text = "# --- Product ---\r\n";
    text += "product-id: " + id + "\r\n";
    text += "comment:    \"" + productName + "\"\r\n";
    text += "media-path: \"" + id + "-audio/%s\"\r\n";  // "%s" is for the assembler
    text += "welcome:   " + prepareWelcomeMessage(productName) + "\r\n";
    text += yamlRegisters();
    const std::string speech = yamlVoices() + yamlTalkTexts();
    text.reserve(text.size() + code.size() + speech.size());
    text += code;
    return text += speech;
}

std::string ttbasic::yamlRegisters()
{
    const std::string values = initialValues();
    return "init:" + (values.empty() ? "" : "  " + values) + "\r\n";
}

std::string ttbasic::initialValues()
{
    std::string text;
    for (const std::string& name : variables) {
        text += (text.empty() ? "" : "  ") + name + " := ";
        text += name == "$rnd" ? randomSummand() : "0";
    }
    return text;
}

std::string ttbasic::yamlVoices() const
{
    std::string text = "# speak:\r\n"
                       "    # voices\r\n";
    for (const auto& [name, voice] : voices) {
        text += yamlVoice(name, voice);
    }
    return text;
}

// The texts by language, a comment for the reader: the speech is made by the build.
std::string ttbasic::yamlTalkTexts() const
{
    std::map<std::string, std::string> linesOfLanguage;
    for (const auto& [name, spoken] : talkTexts) {
        const auto voice = voices.find(spoken.voice);
        if (voice != voices.end()) {
            linesOfLanguage[voice->second.language] +=
                "    # " + name + ": '" + escapeYamlString(spoken.text) + "'\r\n";
        }
    }
    std::string text;
    for (const auto& [language, lines] : linesOfLanguage) {
        text += lines;
    }
    return text;
}

std::string escapeYamlString(const std::string& text)
{
    std::string escaped = text;
    strReplace(escaped, "'", "''");
    return escaped;
}
