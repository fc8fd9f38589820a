#include "tools/text2speech/Speech.h"

#include "speech/Engines.h"
#include "tools/text2speech/Espeak.h"
#include "tools/text2speech/OtherEngine.h"

std::string speak(const Request& request, const Engines& engines)
{
    if (!engines.problem().empty()) {
        return engines.problem();
    }
    const Engine* const engine = engines.find(request.voice.language);
    return engine != nullptr ? speakBy(*engine, request) : speakByEspeak(request);
}
