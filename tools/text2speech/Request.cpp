#include "tools/text2speech/Request.h"

#include <functional>
#include <map>

#include "base/TextHelpers.h"

namespace {

constexpr int kYoungest = 1;
constexpr int kOldest = 99;

void readAge(Request& request, const std::string& value)
{
    request.voice.age = toInt(value.c_str());
    if (itostr(request.voice.age) != value || request.voice.age < kYoungest ||
        request.voice.age > kOldest) {
        request.error = "the age must be a number from 1 to 99, not '" + value + "'";
    }
}

void readSex(Request& request, const std::string& value)
{
    request.voice.female = value == "f";
    if (value != "f" && value != "m") {
        request.error = "the sex must be 'f' or 'm', not '" + value + "'";
    }
}

const std::map<std::string, std::function<void(Request&)>>& switches()
{
    static const std::map<std::string, std::function<void(Request&)>> table = {
        {"-e", [](Request& request) { request.tellEngine = true; }},
        {"-h", [](Request& request) { request.help = true; }},
        {"--help", [](Request& request) { request.help = true; }},
        {"-l", [](Request& request) { request.list = true; }},
        {"-q", [](Request& request) { request.quiet = true; }},
    };
    return table;
}

using ValueReader = std::function<void(Request&, const std::string&)>;

const std::map<std::string, ValueReader>& options()
{
    static const std::map<std::string, ValueReader> table = {
        {"-v", [](Request& request, const std::string& value) { request.voice.language = value; }},
        {"-a", readAge},
        {"-g", readSex},
        {"-f", [](Request& request, const std::string& value) { request.file = value; }},
        {"-t", [](Request& request, const std::string& value) { request.text = value; }},
    };
    return table;
}

void checkComplete(Request& request)
{
    if (request.help || request.list || request.tellEngine || !request.error.empty()) {
        return;
    }
    if (request.file.empty()) {
        request.error = "no file given (-f FILE.wav)";
    } else if (request.text.empty()) {
        request.error = "no text given (-t TEXT)";
    }
}

}  // namespace

Request readRequest(const std::vector<std::string>& words)
{
    Request request;
    for (size_t i = 0; i < words.size() && request.error.empty(); ++i) {
        const auto plain = switches().find(words[i]);
        const auto option = options().find(words[i]);
        if (plain != switches().end()) {
            plain->second(request);
        } else if (option == options().end()) {
            request.error = "unknown option '" + words[i] + "'";
        } else if (i + 1 == words.size()) {
            request.error = "the option " + words[i] + " needs a value";
        } else {
            option->second(request, words[++i]);
        }
    }
    checkComplete(request);
    return request;
}
