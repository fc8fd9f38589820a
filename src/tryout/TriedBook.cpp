#include "tryout/TriedBook.h"

#include <QRandomGenerator>

namespace {

QString reasonFor(SpokenTexts::Problem problem, const QString& words)
{
    switch (problem) {
    case SpokenTexts::Problem::tooLong:
        return TriedBook::tr("A text is too long for the speech program and is only shown.");
    case SpokenTexts::Problem::noProgram:
        return TriedBook::tr(
            "The speech program is not there: texts without an audio file are only shown.");
    case SpokenTexts::Problem::failed:
        break;
    }
    return words.isEmpty()
               ? TriedBook::tr("The speech program could not speak a text, which is only shown.")
               : TriedBook::tr("The speech program could not speak a text, which is only shown: %1")
                     .arg(words);
}

}  // namespace

TriedBook::TriedBook(Source used, const QString& speechFolder, QObject* parent)
    : QObject(parent), source(std::move(used)), speech(speechFolder)
{
    showing.setSingleShot(true);
    connect(&showing, &QTimer::timeout, this, &TriedBook::endSound);
    connect(&player, &SoundPlayer::ended, this, &TriedBook::endSound);
    connect(&player, &SoundPlayer::problem, this, &TriedBook::told);
    connect(&player, &SoundPlayer::silent, this, &TriedBook::told);
    connect(&speech, &SpokenTexts::ready, this, [this](const QString& file) { player.play(file); });
    connect(&speech, &SpokenTexts::failed, this, [this](auto problem, const QString& words) {
        const QString why = reasonFor(problem, words);
        if (why != reason) {
            reason = why;
            emit told(why);
        }
        if (const pen::Sound* const sound = played->sounding()) {
            show(played->book().texts[sound->media()]);
        }
    });
}

// --- Taps ----------------------------------------------------------------------------------------

void TriedBook::start()
{
    endTap();
    if (refresh()) {
        silence();
        played->start();
        begin({Tap::Kind::start, {}});
    }
}

void TriedBook::tapArea(const std::string& area)
{
    endTap();
    if (!refresh()) {
        return;
    }
    if (const std::optional<uint16_t> code = play::codeOf(played->book(), area)) {
        tap({Tap::Kind::area, area}, *code);
    }
}

void TriedBook::again()
{
    endTap();
    if (refresh()) {
        tap({Tap::Kind::again, {}}, played->book().game.replayCode);
    }
}

void TriedBook::stop()
{
    endTap();
    if (refresh()) {
        tap({Tap::Kind::stop, {}}, played->book().game.stopCode);
    }
}

void TriedBook::tap(const Tap& what, uint16_t code)
{
    played->tap(code);
    begin(what);
}

void TriedBook::begin(const Tap& what)
{
    emit tapped(what);
    advance();
}

void TriedBook::endTap()
{
    if (!makesTest || played == nullptr) {
        return;
    }
    if (now != State::atRest) {
        silence();
        played->runToRest();
        now = State::atRest;
        emit moved();
    }
    emit tapEnded();
}

void TriedBook::beginTest()
{
    makesTest = true;
    fresh();
}

void TriedBook::endTest()
{
    endTap();
    makesTest = false;
}

void TriedBook::fresh()
{
    forget();
    refresh();
}

void TriedBook::forget()
{
    silence();
    played.reset();
    now = State::atRest;
    emit begunAnew();
    emit moved();
}

// --- The project as it is now --------------------------------------------------------------------

bool TriedBook::refresh()
{
    const std::uint64_t revision = source.revision();
    if (played != nullptr && revision == seen) {
        return true;
    }
    std::optional<play::Book> book = newBook();
    if (!book) {
        return played != nullptr;
    }
    endTap();
    seen = revision;
    silence();
    if (played != nullptr) {
        played->takeOver(std::move(*book));
    } else {
        pen::PenOptions options;
        if (!makesTest) {
            options.seed = QRandomGenerator::global()->generate64();
        }
        played = std::make_unique<play::PlayedBook>(std::move(*book), options);
    }
    now = State::atRest;
    emit bookChanged();
    emit moved();
    return true;
}

// None when it has a mistake, of which the author is told the first.
std::optional<play::Book> TriedBook::newBook()
{
    std::optional<Diagnostic> mistake;
    std::optional<play::Book> book =
        play::bookOf(source.project(), [&mistake](const Diagnostic& found) {
            if (found.severity == Severity::error && !mistake) {
                mistake = found;
            }
        });
    if (!book && mistake) {
        const QString words = QString::fromStdString(mistake->text);
        emit told(mistake->line > 0 ? tr("The book cannot be tried as it is now. Line %1: %2")
                                          .arg(QString::number(mistake->line), words)
                                    : tr("The book cannot be tried as it is now: %1").arg(words));
    }
    return book;
}

// --- Going on ------------------------------------------------------------------------------------

void TriedBook::advance()
{
    using Pause = play::PlayedBook::Pause;
    const auto isBreakpoint = [this](int line) { return stepping || breakpoints.count(line) != 0; };
    Pause pause = played->run(isBreakpoint);
    for (; pause == Pause::newSound; pause = played->run(isBreakpoint)) {
        hear();
    }
    if (played->sounding() == nullptr) {
        silence();
    }
    switch (pause) {
    case Pause::line:
        now = State::pausing;
        break;
    case Pause::sounding:
        now = State::sounding;
        break;
    default:
        now = State::atRest;
    }
    emit moved();
}

void TriedBook::step()
{
    stepping = true;
    if (now == State::pausing) {
        advance();
    } else {
        emit moved();
    }
}

void TriedBook::goOn()
{
    stepping = false;
    if (now == State::pausing) {
        advance();
    } else {
        emit moved();
    }
}

int TriedBook::line() const
{
    if (played == nullptr) {
        return 0;
    }
    if (now == State::pausing) {
        return played->line();
    }
    const std::vector<int> lines = played->outcome().lines;
    return lines.empty() ? 0 : lines.back();
}

bool TriedBook::setVariable(const std::string& name, uint16_t value)
{
    const bool known = played != nullptr && played->setVariable(name, value);
    emit moved();
    return known;
}

// --- Sound ---------------------------------------------------------------------------------------

// What began is heard instead of what was: an audio file, or the text.
void TriedBook::hear()
{
    const pen::Sound* const sound = played->sounding();
    silence();
    if (sound == nullptr) {
        return;
    }
    const play::Text& text = played->book().texts[sound->media()];
    const auto voice = played->book().voices.find(text.voice);
    if (!text.audioFile.empty()) {
        player.play(QString::fromStdString(text.audioFile));
    } else if (voice != played->book().voices.end()) {
        speech.want(text.text, voice->second);
    } else {
        show(text);
    }
}

// For as long as it takes to speak it.
void TriedBook::show(const play::Text& text)
{
    constexpr int kCharacter = 67;  // milliseconds
    showing.start(static_cast<int>(QString::fromStdString(text.text).size()) * kCharacter);
}

void TriedBook::endSound()
{
    if (played == nullptr || played->sounding() == nullptr) {
        return;
    }
    played->soundEnded();
    if (now == State::sounding) {
        advance();
    }
}

void TriedBook::silence()
{
    speech.giveUp();
    showing.stop();
    player.stop();
}

void TriedBook::releaseSound()
{
    endTap();
    silence();
    if (played != nullptr) {
        played->stop();
    }
    now = State::atRest;
    player.release();
    emit moved();
}
