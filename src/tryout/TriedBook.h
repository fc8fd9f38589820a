#pragma once

#include "oid/OidProject.h"
#include "play/PlayedBook.h"
#include "sound/SoundPlayer.h"
#include "speech/SpokenTexts.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

// The book that is being written, in the hands of its author: taps are answered in real time, and
// heard. Nothing has to be built or saved: what was changed is taken over with the next tap, and
// variables keep their values.
class TriedBook : public QObject
{
    Q_OBJECT

public:
    struct Source
    {
        // Another number once the project is another one in anything.
        std::function<std::uint64_t()> revision;
        // With all that the author has written up to now.
        std::function<Oid::OidProject()> project;
    };
    enum class State {
        atRest,
        sounding,  // something is heard, or shown for as long as it would be
        pausing    // in front of a line of the script
    };
    // What the author did.
    struct Tap
    {
        enum class Kind { start, area, again, stop };
        Kind kind = Kind::area;
        std::string area;  // its name
    };

    // The files of spoken texts come into the folder.
    TriedBook(Source source, const QString& speechFolder, QObject* parent = nullptr);

    // --- Taps. Each is told by tapped, unless the project has a mistake and there is no book.
    void start();
    void tapArea(const std::string& area);
    void again();
    void stop();
    // All as in the beginning: first values, nothing was tapped.
    void fresh();
    // The same; another project comes.
    void forget();
    // Takes over what was changed, without a tap. False when there is no book.
    bool refresh();

    // From a fresh beginning on, as book tests are run: chance is that of their seed, and what a
    // tap has begun is run to its end before the next one, or whatever else would end it.
    void beginTest();
    // The last tap of these comes to its end. The test can go on afterwards as if nothing was.
    void endTest();
    void goOnWithTest() { makesTest = true; }

    // --- Step by step
    // Goes on by one line of the script; where nothing is to be run, the next tap will begin so.
    void step();
    // Goes on to the next breakpoint.
    void goOn();
    bool isStepping() const { return stepping; }
    // Lines of the script, from 1.
    void setBreakpoints(std::set<int> lines) { breakpoints = std::move(lines); }

    // --- What is known. Null as long as there is no book.
    const play::PlayedBook* book() const { return played.get(); }
    State state() const { return now; }
    // Where it pauses, or the last one that was run in this tap; 0 if none.
    int line() const;
    bool setVariable(const std::string& name, uint16_t value);

    // To be heard without delay; or not at all.
    void prepareSound() { player.prepare(); }
    void releaseSound();
    // 0 to 1.
    void setVolume(double volume) { player.setVolume(volume); }

signals:
    // The outcome is that of another tap from now on.
    void tapped(const TriedBook::Tap& tap);
    // While a test is made: this was the whole outcome of the last tap, or of none.
    void tapEnded();
    // Outcome, state, line or variables are others.
    void moved();
    // The book is another one, or there is one.
    void bookChanged();
    // All is as in the beginning.
    void begunAnew();
    // For the author.
    void told(const QString& text);

private:
    void tap(const Tap& what, uint16_t code);
    void begin(const Tap& what);
    void endTap();
    void advance();
    void hear();
    void show(const play::Text& text);
    void endSound();
    void silence();
    std::optional<play::Book> newBook();

    const Source source;
    std::uint64_t seen = 0;  // the revision that the book has
    std::unique_ptr<play::PlayedBook> played;
    SoundPlayer player;
    SpokenTexts speech;
    QTimer showing;  // a text that nobody speaks
    QString reason;  // why texts are not spoken, as it was told
    std::set<int> breakpoints;
    bool stepping = false;
    bool makesTest = false;
    State now = State::atRest;
};
