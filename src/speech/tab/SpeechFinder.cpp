#include "speech/tab/SpeechFinder.h"

#include "base/PlatformFiles.h"
#include "base/PrintFunction.h"
#include "speech/Engines.h"

#include <QDateTime>
#include <QFileInfo>

#include <tuple>

bool isSameText(const SpeechRow& one, const SpeechRow& other)
{
    const auto text = [](const SpeechRow& row) {
        return std::tie(row.text.audioName, row.text.said.voice, row.text.said.text);
    };
    return text(one) == text(other);
}

bool looksAlike(const SpeechRow& one, const SpeechRow& other)
{
    const auto looks = [](const SpeechRow& row) {
        return std::tie(row.text.place.line, row.text.inItsPlace.line, row.text.state,
                        row.text.refusal, row.text.file, row.seconds);
    };
    return isSameText(one, other) && looks(one) == looks(other);
}

SpeechFindings SpeechSearch::find(BookState& state, const std::atomic<bool>& isCancelled)
{
    if (state.project) {
        book = std::move(*state.project);
        book.print = printNothing;
    }
    book.compiler = ttbasic();
    book.compiler.source = state.script.toStdString();
    book.compiler.reportTo([](const Diagnostic&) {});

    SpeechFindings findings;
    compileScript(book.compiler, false);
    findings.voices = book.compiler.voices;
    std::vector<SpeechText> texts = speechTexts(book, currentEngines());
    if (!book.projectPath.empty()) {
        const std::string folder = audioFolder(book);
        SpeechIndex& remembered = indexOf(folder);
        lookUp(texts, folder, remembered);
        findings.problem = QString::fromStdString(remembered.problem());
        findings.audioFolder = QFileInfo(QString::fromStdString(remembered.path())).path();
    }
    findings.rows.reserve(texts.size());
    for (SpeechText& text : texts) {
        if (isCancelled) {
            break;
        }
        addRow(std::move(text), findings);
    }
    return findings;
}

// Of thousands of texts it is large, so it is read again only when it has changed. What was written
// just now may be written again without another time.
SpeechIndex& SpeechSearch::indexOf(const std::string& folder)
{
    constexpr qint64 kJustNow = 2000;  // ms
    const QFileInfo file(QString::fromStdString(Platform::nativePath(folder)) + '/' +
                         SpeechIndex::kFileName);
    const qint64 time = file.exists() ? file.lastModified().toMSecsSinceEpoch() : 0;
    const qint64 size = file.exists() ? file.size() : -1;
    const bool isSame = index && index->state() == SpeechIndex::State::good &&
                        file.filePath() == indexFile.path && time == indexFile.time &&
                        size == indexFile.size;
    if (!isSame) {
        index.emplace(folder);
        const bool isOld = QDateTime::currentMSecsSinceEpoch() - time > kJustNow;
        indexFile = {file.filePath(), isOld ? size : -2, time};
    }
    return *index;
}

void SpeechSearch::addRow(SpeechText text, SpeechFindings& findings) const
{
    double seconds = 0;
    if (text.fileSize >= 0) {
        const std::optional<double> known = lengths.known(text);
        seconds = known.value_or(0);
        if (!known) {
            findings.unread.push_back(text.file);
        }
    }
    findings.rows.push_back({std::move(text), seconds});
}
