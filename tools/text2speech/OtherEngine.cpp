#include "tools/text2speech/OtherEngine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tools/text2speech/SpeakingProgram.h"
#include "tools/text2speech/WavFile.h"

namespace {

// A folder of our own for what goes from hand to hand, with a file of the text in it. It is gone
// afterwards.
class Exchange
{
public:
    // Returns what went wrong.
    std::string begin(const std::string& text)
    {
        QFile file(folder.filePath("text.txt"));
        const auto size = static_cast<qint64>(text.size());
        const bool isWritten = folder.isValid() && file.open(QIODevice::WriteOnly) &&
                               file.write(text.data(), size) == size && file.flush();
        if (!isWritten) {
            const QString why = folder.isValid() ? file.errorString() : folder.errorString();
            return "the text cannot be written into a file: " + why.toStdString();
        }
        return {};
    }

    std::string textFile() const { return pathOf("text.txt"); }
    // Into which the engine is to speak.
    std::string wavFile() const { return pathOf("speech.wav"); }

private:
    std::string pathOf(const char* name) const
    {
        return QDir::toNativeSeparators(folder.filePath(name)).toStdString();
    }

    const QTemporaryDir folder;
};

// A file that is not there adds nothing.
std::string addFile(const std::string& path, ArrivingSound& sound)
{
    constexpr qint64 kPiece = 1 << 20;  // bytes
    QFile file(QString::fromStdString(path));
    if (!file.exists()) {
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return path + " cannot be read: " + file.errorString().toStdString();
    }
    for (QByteArray piece = file.read(kPiece); !piece.isEmpty(); piece = file.read(kPiece)) {
        sound.add(piece);
    }
    return {};
}

std::string run(const Engine& engine, const Request& request, const Exchange& exchange,
                ArrivingSound& sound)
{
    Engine::Values values = engine.valuesOf(request.voice);
    values["text"] = request.text;
    values["textfile"] = exchange.textFile();
    values["wav"] = exchange.wavFile();
    const std::vector<std::string> words = engine.filled(values);
    const bool hasText = engine.uses("text") || engine.uses("textfile");
    const bool hasFile = engine.uses("wav");
    const std::string problem =
        runSpeakingProgram(words.front(), {words.begin() + 1, words.end()},
                           hasText ? std::string() : request.text, [&](const QByteArray& piece) {
                               if (!hasFile) {
                                   sound.add(piece);
                               }
                           });
    return problem.empty() && hasFile ? addFile(exchange.wavFile(), sound) : problem;
}

}  // namespace

std::string speakBy(const Engine& engine, const Request& request)
{
    Exchange exchange;
    std::string problem = exchange.begin(request.text);
    if (problem.empty()) {
        problem = writeWav(request.file, engine.program(), [&](ArrivingSound& sound) {
            return run(engine, request, exchange, sound);
        });
    }
    return problem.empty() ? problem : engine.place + ": " + problem;
}
