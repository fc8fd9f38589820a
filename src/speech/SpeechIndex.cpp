#include "speech/SpeechIndex.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>

#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "speech/AudioFile.h"

namespace {

constexpr int kVersion = 1;

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

std::string hashOf(const std::string& path)
{
    QFile file;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!openInput(file, path) || !hash.addData(&file)) {
        return {};
    }
    return hash.result().toHex().toStdString();
}

std::int64_t timeOf(const QFileInfo& file)
{
    return file.lastModified().toMSecsSinceEpoch();
}

QJsonObject objectOf(const Utterance& spoken)
{
    return {{"text", text(spoken.text)},
            {"voice", text(spoken.voice)},
            {"language", text(spoken.settings.language)},
            {"sex", spoken.settings.female ? "f" : "m"},
            {"age", spoken.settings.age},
            {"engine", text(spoken.engine)}};
}

// Reads the members of an object and notes when one is not as it should be.
class Members
{
public:
    explicit Members(const QJsonValue& value) : object(value.toObject()), fine(value.isObject()) {}

    std::string text(const char* name)
    {
        const QJsonValue value = object.value(name);
        fine = fine && value.isString();
        return value.toString().toStdString();
    }
    // A whole one, and not too large.
    template <typename Number>
    Number number(const char* name)
    {
        constexpr double kExact = 1LL << 53;  // up to where a double holds all whole numbers
        constexpr double kMost = std::min<double>(kExact, std::numeric_limits<Number>::max());
        const QJsonValue value = object.value(name);
        const double found = value.toDouble();
        fine = fine && value.isDouble() && std::abs(found) <= kMost && std::floor(found) == found;
        return fine ? static_cast<Number>(found) : Number();
    }
    bool areFine() const { return fine; }

private:
    const QJsonObject object;
    bool fine;
};

Utterance readUtterance(Members& members)
{
    Utterance spoken;
    spoken.text = members.text("text");
    spoken.voice = members.text("voice");
    spoken.settings.language = members.text("language");
    spoken.settings.female = members.text("sex") == "f";
    spoken.settings.age = members.number<int>("age");
    spoken.engine = members.text("engine");
    return spoken;
}

}  // namespace

SpeechIndex::SpeechIndex(const std::string& audioFolder) : folder(Platform::nativePath(audioFolder))
{
    read();
}

std::string SpeechIndex::path() const
{
    return folder + "/" + kFileName;
}

std::string SpeechIndex::problem() const
{
    switch (now) {
    case State::damaged:
        return "The file '" + Platform::nativePath(path()) +
               "' is damaged: files that were spoken count as your own";
    case State::unreadable:
        return "Can't open file '" + Platform::nativePath(path()) +
               "': files that were spoken count as your own";
    case State::good:
        break;
    }
    return {};
}

void SpeechIndex::read()
{
    if (!Platform::fileExists(path())) {
        return;
    }
    const std::optional<QByteArray> bytes = readInput(path());
    if (!bytes) {
        now = State::unreadable;
    } else if (!readAll(bytes->toStdString())) {
        now = State::damaged;
        entries.clear();
        speech.clear();
        numbers.clear();
    }
}

bool SpeechIndex::readAll(const std::string& bytes)
{
    const QJsonObject all = QJsonDocument::fromJson(QByteArray::fromStdString(bytes)).object();
    const QJsonValue sheet = all.value("sheet");
    const QJsonValue expected = all.value("speech");
    return all.value("version").toInt() == kVersion && all.value("files").isObject() &&
           (sheet.isUndefined() || sheet.isObject()) &&
           (expected.isUndefined() || expected.isObject()) &&
           readEntries(all.value("files").toObject()) && readSpeech(expected.toObject()) &&
           readNumbers(sheet.toObject());
}

bool SpeechIndex::readEntries(const QJsonObject& files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        Members members(file.value());
        Entry& entry = entries[file.key().toStdString()];
        entry.spoken = readUtterance(members);
        entry.size = members.number<std::int64_t>("size");
        entry.time = members.number<std::int64_t>("time");
        entry.hash = members.text("sha256");
        if (!members.areFine()) {
            return false;
        }
    }
    return true;
}

bool SpeechIndex::readSpeech(const QJsonObject& files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (!file.value().isString()) {
            return false;
        }
        speech[file.key().toStdString()] = file.value().toString().toStdString();
    }
    return true;
}

bool SpeechIndex::readNumbers(const QJsonObject& sheet)
{
    std::set<int> known;
    for (auto text = sheet.begin(); text != sheet.end(); ++text) {
        const int number = text.value().toInt();
        if (number < 1 || !known.insert(number).second) {
            return false;
        }
        numbers[text.key().toStdString()] = number;
    }
    return true;
}

const Utterance* SpeechIndex::spokenInto(const std::string& audioName)
{
    return spokenInto(audioName,
                      QFileInfo(text(Platform::nativePath(audioFileIn(folder, audioName)))));
}

const Utterance* SpeechIndex::spokenInto(const std::string& audioName, const QFileInfo& file)
{
    const auto found = entries.find(audioName);
    if (found == entries.end()) {
        return nullptr;
    }
    Entry& entry = found->second;
    if (!file.isFile() || file.size() != entry.size) {
        return nullptr;
    }
    const std::int64_t time = timeOf(file);
    if (time != entry.time) {
        if (hashOf(file.filePath().toStdString()) != entry.hash) {
            return nullptr;
        }
        entry.time = time;
        changed = true;
    }
    return &entry.spoken;
}

bool SpeechIndex::remember(const std::string& audioName, const Utterance& spoken)
{
    const std::string path = Platform::nativePath(audioFileIn(folder, audioName));
    const QFileInfo file(text(path));
    Entry entry{spoken, file.size(), timeOf(file), hashOf(path)};
    if (entry.hash.empty()) {
        return false;
    }
    entries[audioName] = std::move(entry);
    speech.erase(audioName);
    changed = true;
    return true;
}

void SpeechIndex::forget(const std::string& audioName)
{
    changed = entries.erase(audioName) != 0 || changed;
}

void SpeechIndex::expectSpeech(const std::string& audioName)
{
    speech[audioName] = "";
    changed = true;
}

void SpeechIndex::rememberSpeech(const std::string& audioName)
{
    const auto found = speech.find(audioName);
    if (found == speech.end()) {
        return;
    }
    found->second = hashOf(Platform::nativePath(speechFileIn(folder, audioName)));
    if (found->second.empty()) {
        speech.erase(found);
    }
    changed = true;
}

bool SpeechIndex::isSpeechOurs(const std::string& audioName) const
{
    const auto found = speech.find(audioName);
    return found != speech.end() &&
           (found->second.empty() ||
            found->second == hashOf(Platform::nativePath(speechFileIn(folder, audioName))));
}

void SpeechIndex::takeOver(const SpeechIndex& other)
{
    for (const auto& [name, entry] : other.entries) {
        if (spokenInto(name) != nullptr) {
            continue;
        }
        const auto before = entries.find(name);
        const std::optional<Entry> own =
            before != entries.end() ? std::make_optional(before->second) : std::nullopt;
        entries[name] = entry;
        if (spokenInto(name) != nullptr) {
            changed = true;
        } else if (own) {
            entries[name] = *own;
        } else {
            entries.erase(name);
        }
    }
    takeNumbersOver(other.numbers);
}

void SpeechIndex::takeNumbersOver(const SheetNumbers& others)
{
    std::set<int> known;
    for (const auto& [name, number] : numbers) {
        known.insert(number);
    }
    for (const auto& [name, number] : others) {
        if (known.count(number) == 0 && numbers.emplace(name, number).second) {
            changed = true;
        }
    }
}

void SpeechIndex::numberTexts(const SheetNumbers& further)
{
    const size_t before = numbers.size();
    numbers.insert(further.begin(), further.end());
    changed = changed || numbers.size() != before;
}

std::string SpeechIndex::asText() const
{
    QJsonObject files;
    for (const auto& [name, entry] : entries) {
        QJsonObject object = objectOf(entry.spoken);
        object["size"] = static_cast<double>(entry.size);
        object["time"] = static_cast<double>(entry.time);
        object["sha256"] = text(entry.hash);
        files[text(name)] = object;
    }
    QJsonObject all{{"version", kVersion}, {"files", files}};
    if (!speech.empty()) {
        QJsonObject expected;
        for (const auto& [name, hash] : speech) {
            expected[text(name)] = text(hash);
        }
        all["speech"] = expected;
    }
    if (!numbers.empty()) {
        QJsonObject sheet;
        for (const auto& [name, number] : numbers) {
            sheet[text(name)] = number;
        }
        all["sheet"] = sheet;
    }
    return QJsonDocument(all).toJson().toStdString();
}

// What somebody can make sense of is not lost.
bool SpeechIndex::keepDamagedFile()
{
    const std::string kept = path() + ".damaged";
    for (int number = 1;; ++number) {
        const std::string name = number == 1 ? kept : kept + itostr(number);
        if (!Platform::fileExists(name)) {
            return Platform::renameFile(path(), name);
        }
    }
}

bool SpeechIndex::save()
{
    if (now != State::good && !keepDamagedFile()) {
        return false;
    }
    now = State::good;
    const bool isEmpty = entries.empty() && speech.empty() && numbers.empty();
    changed = !(isEmpty ? removeFile() : writeFile());
    return !changed;
}

bool SpeechIndex::removeFile() const
{
    const QString file = text(path());
    return QFile::remove(file) || !QFileInfo::exists(file);
}

bool SpeechIndex::writeFile() const
{
    Platform::FileReplacement file(path());
    const std::string bytes = asText();
    return file.file() != nullptr &&
           fwrite(bytes.data(), 1, bytes.size(), file.file()) == bytes.size() && file.commit();
}
