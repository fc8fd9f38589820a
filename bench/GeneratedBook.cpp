#include "bench/GeneratedBook.h"

#include <random>

namespace {

class BookWriter
{
public:
    explicit BookWriter(uint64_t seed) : random(seed) {}

    void addPage(size_t number);
    GeneratedBook take() { return std::move(book); }

private:
    size_t below(size_t count) { return random() % count; }
    bool isOneIn(size_t count) { return below(count) == 0; }
    std::string number(size_t least, size_t most);
    // The name is of this page.
    std::string named(const std::string& word) const { return word + page; }

    void line(const std::string& text) { book.script += "    " + text + "\n"; }
    void say();
    void beginSub(const std::string& name);
    void endSub() { book.script += "end sub\n\n"; }

    void addThing(const std::string& name);
    void addTalk();
    void addCounter(const std::string& name);
    void addDoor(const std::string& name);
    void addGears(const std::string& name);
    void addJumper(const std::string& name);
    void addQuiz(size_t questions);
    void addAnswer(size_t question);
    void addStar();

    std::mt19937_64 random;
    GeneratedBook book;
    std::string page;
    size_t texts = 0;
};

std::string BookWriter::number(size_t least, size_t most)
{
    return std::to_string(least + below(most - least + 1));
}

void BookWriter::addPage(size_t pageNumber)
{
    page = pageNumber == 0 ? std::string() : std::to_string(pageNumber);
    if (pageNumber == 0) {
        book.script = "voice anna lang en age 30 sex f\n"
                      "voice tom lang en age 9 sex m speed 4 pitch 4\n\n"
                      "sub power\nend sub\n\n";
        book.areas.emplace_back("power");
    }
    const size_t questions = 2 + below(3);
    for (size_t i = 0; i < questions; ++i) {
        addAnswer(i + 1);
    }
    addQuiz(questions);
    addStar();
    const size_t things = 6 + below(12);
    for (size_t i = 0; i < things; ++i) {
        addThing("thing" + std::to_string(i) + "x");
    }
}

// About half of the things only talk.
void BookWriter::addThing(const std::string& name)
{
    switch (below(8)) {
    case 0:
        return addCounter(name);
    case 1:
        return addDoor(name);
    case 2:
        return addGears(name);
    case 3:
        return addJumper(name);
    default:
        beginSub(name);
        say();
        return endSub();
    }
}

void BookWriter::say()
{
    const std::string text = " \"Text number " + std::to_string(texts++) + "\"";
    const std::string voice = isOneIn(2) ? " anna" : " tom";
    line("say" + voice + text + (isOneIn(8) ? " \"Or this " + std::to_string(texts) + "\"" : ""));
}

void BookWriter::beginSub(const std::string& name)
{
    book.areas.push_back(named(name));
    book.script += "sub " + named(name) + "\n";
}

void BookWriter::addCounter(const std::string& name)
{
    const std::string counter = named(name + "count");
    const std::string most = number(4, 9);
    beginSub(name);
    line(counter + " = (" + counter + " + " + number(1, 3) + ") % " + most);
    line("if " + counter + " >= " + number(2, 3));
    say();
    if (isOneIn(2)) {
        line("if " + counter + " == " + most);
        say();
        line("end if");
    }
    line("else");
    say();
    line("end if");
    endSub();
}

void BookWriter::addDoor(const std::string& name)
{
    const std::string door = named(name + "open");
    beginSub(name);
    line(door + " = 1 - " + door);
    line("if " + door);
    say();
    line("else");
    say();
    line("end if");
    endSub();
}

void BookWriter::addGears(const std::string& name)
{
    const std::string gear = named(name + "gear");
    const size_t gears = 2 + below(3);
    beginSub(name);
    line(gear + " = " + gear + " + 1 - (" + gear + " == " + std::to_string(gears + 1) + ") * " +
         std::to_string(gears + 1));
    line("select " + gear);
    for (size_t i = 1; i <= gears; ++i) {
        line("case " + std::to_string(i));
        say();
    }
    line("default");
    say();
    line("end select");
    endSub();
}

void BookWriter::addJumper(const std::string& name)
{
    const std::string jumps = named(name + "jumps");
    beginSub(name);
    line(jumps + " = " + jumps + " + 1");
    line("if " + jumps + " & 1");
    say();
    line("else");
    say();
    line("goto " + named("quiz"));
    line("end if");
    endSub();
}

void BookWriter::addQuiz(size_t questions)
{
    const std::string round = named("round");
    beginSub("quiz");
    line(round + " = " + round + " + 1");
    line("if (" + round + " > " + std::to_string(questions) + ") & (" + round + " != 0)");
    line(round + " = 1");
    line("end if");
    line(named("asked") + " = " + round);
    line("select " + round);
    for (size_t i = 1; i <= questions; ++i) {
        line("case " + std::to_string(i));
        say();
    }
    line("end select");
    endSub();
}

void BookWriter::addAnswer(size_t question)
{
    const std::string asked = named("asked");
    const std::string points = named("points");
    beginSub("animal" + std::to_string(question) + "x");
    line("if " + asked + " == " + std::to_string(question));
    line(asked + " = 0");
    line(points + " = " + points + " + 1");
    say();
    line("goto " + named("star"));
    const bool hasElse = isOneIn(2);
    line(hasElse ? "else" : "end if");
    say();
    if (hasElse) {
        line("end if");
    }
    endSub();
}

void BookWriter::addStar()
{
    const std::string points = named("points");
    const std::string stars = named("stars");
    beginSub("star");
    line(stars + " = " + points + " / 2");
    line("if (" + stars + " * 2 < " + points + ") | (" + points + " <= 0)");
    say();
    line("else");
    say();
    line("end if");
    endSub();
}

}  // namespace

GeneratedBook generatedBook(uint64_t seed, size_t pages)
{
    BookWriter writer(seed);
    for (size_t page = 0; page < pages; ++page) {
        writer.addPage(page);
    }
    return writer.take();
}
