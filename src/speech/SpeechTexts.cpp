#include "speech/SpeechTexts.h"

#include <QDateTime>
#include <QFileInfo>

#include <map>
#include <set>
#include <tuple>

#include "base/PlatformFiles.h"
#include "oid/OidProject.h"
#include "speech/SpeechIndex.h"
#include "ttbasic/ScriptOutline.h"

namespace {

class TextCollector
{
public:
    TextCollector(const Oid::OidProject& usedProject, const Engines& usedEngines)
        : project(usedProject), engines(usedEngines), outline(outlineOf(project.compiler.source))
    {}

    std::vector<SpeechText> collect();

private:
    void add(const ScriptOutline::Text& text);
    void tellReplaced();
    void addWelcome();

    const Oid::OidProject& project;
    const Engines& engines;
    const ScriptOutline outline;
    std::vector<SpeechText> texts;
    std::set<std::tuple<std::string, std::string, std::string>> known;  // name, voice, text
    std::map<std::string, const ScriptOutline::Text*> last;             // by audio name
};

std::vector<SpeechText> TextCollector::collect()
{
    for (const ScriptOutline::Text& text : outline.texts) {
        add(text);
    }
    tellReplaced();
    addWelcome();
    return std::move(texts);
}

void TextCollector::add(const ScriptOutline::Text& text)
{
    const auto voice = project.compiler.voices.find(text.voice);
    if (voice == project.compiler.voices.end()) {
        return;
    }
    last[text.audioName] = &text;
    const std::string said(text.text);
    if (known.emplace(text.audioName, text.voice, said).second) {
        SpeechText& added = texts.emplace_back();
        added.audioName = text.audioName;
        added.said = utteranceOf({text.voice, said}, voice->second, engines);
        added.place = text.word.place;
    }
}

// Of several texts with one audio name the pen says the last one.
void TextCollector::tellReplaced()
{
    for (SpeechText& text : texts) {
        const ScriptOutline::Text& kept = *last.at(text.audioName);
        if (kept.text != text.said.text || kept.voice != text.said.voice) {
            text.inItsPlace = kept.word.place;
        }
    }
}

void TextCollector::addWelcome()
{
    const ttbasic::TALKTEXT welcome = project.compiler.welcomeMessage(project.productName);
    SpeechText& added = texts.emplace_back();
    added.audioName = ttbasic::kWelcomeName;
    added.said = utteranceOf(welcome, project.compiler.voices.at(welcome.voice), engines);
}

Refusal refusalOf(const SpeechText& text)
{
    return text.inItsPlace.line != 0 ? Refusal::sharedName
                                     : ::refusalOf(text.audioName, text.said.text);
}

SpeechState stateOf(const SpeechText& text, const QFileInfo& file, SpeechIndex& index)
{
    const bool isThere = file.exists();
    const Utterance* const spoken = isThere ? index.spokenInto(text.audioName, file) : nullptr;
    if (isThere && spoken == nullptr) {
        return SpeechState::recorded;
    }
    if (text.refusal != Refusal::none) {
        return SpeechState::refused;
    }
    if (!isThere) {
        return SpeechState::missing;
    }
    return soundAlike(*spoken, text.said) ? SpeechState::spoken : SpeechState::stale;
}

}  // namespace

const char* nameOf(SpeechState state)
{
    switch (state) {
    case SpeechState::missing:
        return "missing";
    case SpeechState::spoken:
        return "spoken";
    case SpeechState::recorded:
        return "recorded";
    case SpeechState::stale:
        return "stale";
    case SpeechState::refused:
        return "refused";
    }
    return "";
}

std::vector<SpeechText> speechTexts(const Oid::OidProject& project, const Engines& engines)
{
    return TextCollector(project, engines).collect();
}

void lookUp(std::vector<SpeechText>& texts, const std::string& audioFolder, SpeechIndex& index)
{
    for (SpeechText& text : texts) {
        text.file = Platform::nativePath(audioFileIn(audioFolder, text.audioName));
        text.refusal = refusalOf(text);
        const QFileInfo file(QString::fromStdString(text.file));
        text.fileSize = file.exists() ? file.size() : -1;
        text.fileTime = file.exists() ? file.lastModified().toMSecsSinceEpoch() : 0;
        text.state = stateOf(text, file, index);
        if (text.state != SpeechState::refused) {
            text.refusal = Refusal::none;
        }
    }
}
