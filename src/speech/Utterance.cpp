#include "speech/Utterance.h"

#include <QString>

#include <tuple>

#include "speech/Engines.h"

namespace {

// As programs get it: what is no UTF-8 is not heard.
QString words(const std::string& text)
{
    return QString::fromStdString(text);
}

auto heard(const Utterance& utterance)
{
    const ttbasic::VOICE& settings = utterance.settings;
    return std::tuple(words(utterance.text), words(settings.language), settings.female,
                      settings.age);
}

bool mayBeAlike(const std::string& engine, const std::string& other)
{
    return engine.empty() || other.empty() || words(engine) == words(other);
}

}  // namespace

Utterance utteranceOf(const ttbasic::TALKTEXT& text, const ttbasic::VOICE& settings,
                      const Engines& engines)
{
    return {text.text, text.voice, settings, engines.identity(settings)};
}

bool soundAlike(const Utterance& one, const Utterance& other)
{
    return heard(one) == heard(other) && mayBeAlike(one.engine, other.engine);
}
