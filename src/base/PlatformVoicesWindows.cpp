#include "base/PlatformVoices.h"

#include "base/Unicode.h"

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <windows.h>

#include <mmreg.h>
#include <sapi.h>

namespace Platform {

namespace {

constexpr wchar_t kVoices[] = SPCAT_VOICES;
// Where Windows 10 keeps most of its voices; the speech interface speaks by them, too.
constexpr wchar_t kNewVoices[] = L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Speech_OneCore\\Voices";

// The format of samples that WAVEFORMATEX describes.
constexpr GUID kWaveFormat = {
    0xC31ADBAE, 0x527F, 0x4FF5, {0xA2, 0x30, 0xF6, 0x2B, 0xB6, 0x1F, 0xF7, 0x0C}};

constexpr WORD kBytesPerSample = 2;
constexpr DWORD kRate = 22050;  // Hz

// An object of the system, which is released at the end.
template <typename T>
class Com
{
public:
    Com() = default;
    ~Com()
    {
        if (object != nullptr) {
            object->Release();
        }
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    Com(Com&& other) noexcept : object(other.object) { other.object = nullptr; }

    template <typename Class>
    bool create()
    {
        return SUCCEEDED(CoCreateInstance(__uuidof(Class), nullptr, CLSCTX_ALL, __uuidof(T),
                                          reinterpret_cast<void**>(&object)));
    }
    T** place() { return &object; }
    T* get() const { return object; }
    T* operator->() const { return object; }

private:
    T* object = nullptr;
};

// The system's objects can be used on this thread while it lives.
class ComLibrary
{
public:
    ComLibrary() : ready(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComLibrary()
    {
        if (ready) {
            CoUninitialize();
        }
    }
    ComLibrary(const ComLibrary&) = delete;
    ComLibrary& operator=(const ComLibrary&) = delete;

private:
    bool ready;
};

// A text that the system hands out.
std::string taken(wchar_t* text)
{
    std::string utf8 = text != nullptr ? toUtf8(text) : std::string();
    CoTaskMemFree(text);
    return utf8;
}

std::string attribute(ISpDataKey& attributes, const wchar_t* name)
{
    wchar_t* value = nullptr;
    return SUCCEEDED(attributes.GetStringValue(name, &value)) ? taken(value) : std::string();
}

// "407;9": numbers of languages in hexadecimal digits.
std::vector<std::string> languageNames(const std::string& numbers)
{
    std::vector<std::string> names;
    const char* rest = numbers.c_str();
    while (*rest != '\0') {
        char* end = nullptr;
        const unsigned long number = std::strtoul(rest, &end, 16);
        wchar_t name[LOCALE_NAME_MAX_LENGTH];
        if (end != rest && LCIDToLocaleName(number, name, LOCALE_NAME_MAX_LENGTH,
                                            LOCALE_ALLOW_NEUTRAL_NAMES) > 0) {
            names.push_back(toUtf8(name));
        }
        rest = *end != '\0' ? end + 1 : end;
    }
    return names;
}

SystemVoice::Sex sexOf(const std::string& gender)
{
    return gender == "Female" ? SystemVoice::Sex::female
           : gender == "Male" ? SystemVoice::Sex::male
                              : SystemVoice::Sex::unknown;
}

SystemVoice describe(ISpObjectToken& token)
{
    SystemVoice voice;
    wchar_t* text = nullptr;
    voice.id = SUCCEEDED(token.GetId(&text)) ? taken(text) : std::string();
    voice.title = attribute(token, nullptr);
    Com<ISpDataKey> attributes;
    if (SUCCEEDED(token.OpenKey(L"Attributes", attributes.place()))) {
        voice.languages = languageNames(attribute(*attributes.get(), L"Language"));
        voice.sex = sexOf(attribute(*attributes.get(), L"Gender"));
        voice.age = attribute(*attributes.get(), L"Age");
    }
    return voice;
}

using Token = Com<ISpObjectToken>;

std::vector<Token> tokensOf(const wchar_t* categoryName)
{
    std::vector<Token> tokens;
    Com<ISpObjectTokenCategory> category;
    Com<IEnumSpObjectTokens> list;
    if (!category.create<SpObjectTokenCategory>() || FAILED(category->SetId(categoryName, FALSE)) ||
        FAILED(category->EnumTokens(nullptr, nullptr, list.place()))) {
        return tokens;
    }
    while (true) {
        Token token;
        if (list->Next(1, token.place(), nullptr) != S_OK) {
            return tokens;
        }
        tokens.push_back(std::move(token));
    }
}

std::vector<Token> allTokens()
{
    std::vector<Token> tokens = tokensOf(kVoices);
    for (Token& token : tokensOf(kNewVoices)) {
        tokens.push_back(std::move(token));
    }
    return tokens;
}

WAVEFORMATEX sampleFormat()
{
    WAVEFORMATEX format = {};
    format.wFormatTag = WAVE_FORMAT_PCM;
    format.nChannels = 1;
    format.nSamplesPerSec = kRate;
    format.nAvgBytesPerSec = kRate * kBytesPerSample;
    format.nBlockAlign = kBytesPerSample;
    format.wBitsPerSample = 8 * kBytesPerSample;
    return format;
}

template <typename Number>
void append(std::string& bytes, Number number)
{
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

std::string wavOf(const std::string& samples)
{
    constexpr DWORD kFormatBytes = 16;  // without the field for extensions at the end
    const WAVEFORMATEX format = sampleFormat();
    const DWORD size = static_cast<DWORD>(samples.size());
    std::string wav = "RIFF";
    append(wav, DWORD{4 + 8 + kFormatBytes + 8} + size);
    wav += "WAVEfmt ";
    append(wav, kFormatBytes);
    wav.append(reinterpret_cast<const char*>(&format), kFormatBytes);
    wav += "data";
    append(wav, size);
    return wav + samples;
}

std::string bytesOf(IStream& stream)
{
    std::string bytes;
    char piece[4096];
    ULONG count = 0;
    stream.Seek({}, STREAM_SEEK_SET, nullptr);
    while (SUCCEEDED(stream.Read(piece, sizeof piece, &count)) && count > 0) {
        bytes.append(piece, count);
    }
    return bytes;
}

std::string failed(const char* what, HRESULT result)
{
    char text[100];
    std::snprintf(text, sizeof text, "the voices of Windows %s (0x%08lX)", what,
                  static_cast<unsigned long>(result));
    return text;
}

std::string speakInto(std::string& wav, ISpObjectToken& token, const std::string& text)
{
    Com<ISpVoice> voice;
    Com<IStream> memory;
    Com<ISpStream> samples;
    const WAVEFORMATEX format = sampleFormat();
    if (!voice.create<SpVoice>() || !samples.create<SpStream>() ||
        FAILED(CreateStreamOnHGlobal(nullptr, TRUE, memory.place()))) {
        return "the voices of Windows cannot be used";
    }
    HRESULT result = samples->SetBaseStream(memory.get(), kWaveFormat, &format);
    result = SUCCEEDED(result) ? voice->SetVoice(&token) : result;
    result = SUCCEEDED(result) ? voice->SetOutput(samples.get(), TRUE) : result;
    if (FAILED(result)) {
        return failed("cannot be used", result);
    }
    result = voice->Speak(fromUtf8(text).c_str(), SPF_IS_NOT_XML, nullptr);
    if (FAILED(result)) {
        return failed("could not say it", result);
    }
    wav = wavOf(bytesOf(*memory.get()));
    return {};
}

}  // namespace

std::vector<SystemVoice> systemVoices()
{
    const ComLibrary library;
    std::vector<SystemVoice> voices;
    for (const Token& token : allTokens()) {
        SystemVoice voice = describe(*token.get());
        if (!voice.languages.empty()) {  // else nobody could ask for it
            voices.push_back(std::move(voice));
        }
    }
    return voices;
}

std::string speakBySystemVoice(const std::string& id, const std::string& text, std::string& wav)
{
    const ComLibrary library;
    for (const Token& token : allTokens()) {
        if (describe(*token.get()).id == id) {
            return speakInto(wav, *token.get(), text);
        }
    }
    return "Windows has no voice '" + id + "'";
}

}  // namespace Platform
