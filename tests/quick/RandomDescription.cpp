#include "tests/quick/RandomDescription.h"

#include <random>
#include <vector>

namespace {

class DescriptionWriter
{
public:
    explicit DescriptionWriter(const std::function<uint64_t()>& chance) : random(chance) {}

    std::string write();

private:
    using List = std::vector<std::string>;

    size_t below(size_t count) { return random() % count; }
    bool isOneIn(size_t count) { return below(count) == 0; }
    const std::string& oneOf(const List& list) { return list[below(list.size())]; }
    // Far more lines are like those of the compiler when a description is plain.
    bool isStrange() { return !isPlain && isOneIn(12); }

    std::string script(size_t steps, size_t next);
    std::string line(size_t steps, size_t next, size_t conditions);
    std::string condition();
    std::string calculation();
    std::string sound();
    std::string jump(size_t steps, size_t next);
    std::string strangeCommand();
    const std::string& reg();
    std::string number();
    std::string value() { return isOneIn(2) ? reg() : number(); }

    const std::function<uint64_t()>& random;
    bool isPlain = false;
};

std::string DescriptionWriter::write()
{
    isPlain = !isOneIn(3);
    const size_t steps = 4 + below(20);
    std::string text = "product-id: 900\n"
                       "welcome: hello\n"
                       "init: $_zero := 0 $rnd := 17";
    for (const char* const name : {"$a", "$b", "$c", "$7", "$_stk1", "$_stk2", "$ifexp1"}) {
        text += isOneIn(2) ? std::string(" ") + name + " := " + number() : std::string();
    }
    text += "\nscripts:\n";
    for (size_t i = 0; i < 5; ++i) {
        text += "  a" + std::to_string(i) + ":\n" + script(steps, below(steps));
    }
    for (size_t i = 0; i < steps; ++i) {
        text += "  asm" + std::to_string(i) + ":\n" + script(steps, i + 1);
    }
    // Codes of labels that nothing jumps to are free for what an optimiser makes.
    for (size_t i = 0; i < 100; ++i) {
        text += "  asm" + std::to_string(steps + i) + ":\n  - $rnd += 5\n";
    }
    text += "scriptcodes:\n";
    for (size_t i = 0; i < 5; ++i) {
        text += "  a" + std::to_string(i) + ": " + std::to_string(1001 + i) + "\n";
    }
    return text;
}

std::string DescriptionWriter::script(size_t steps, size_t next)
{
    std::string text;
    const size_t lines = 1 + (isOneIn(2) ? below(3) : 0);
    for (size_t i = 0; i < lines; ++i) {
        const bool isForAll = i + 1 == lines && !isOneIn(8);
        text += "  - " + line(steps, next, isForAll ? 0 : 1 + below(3) / 2) + "\n";
    }
    return text;
}

std::string DescriptionWriter::line(size_t steps, size_t next, size_t conditions)
{
    std::string text;
    for (size_t i = conditions; i > 0; --i) {
        text += condition() + " ? ";
    }
    List commands;
    if (!isOneIn(isPlain ? 200 : 5)) {
        commands.push_back(jump(steps, next));
    }
    for (size_t i = isOneIn(isPlain ? 8 : 3) ? below(6) : 1; i > 0; --i) {
        commands.push_back(calculation());
    }
    if (isOneIn(8)) {
        commands.push_back(sound());
    }
    constexpr int kMostStrange = 8;
    for (int i = 0; i < kMostStrange && isStrange(); ++i) {
        commands.insert(commands.begin() + static_cast<std::ptrdiff_t>(below(commands.size() + 1)),
                        strangeCommand());
    }
    for (const std::string& command : commands) {
        text += command + " ";
    }
    return text + (text.empty() ? "$a += 1" : "");
}

std::string DescriptionWriter::condition()
{
    const std::string left = isOneIn(8) ? number() : reg();
    const std::string right = isOneIn(3) ? reg() : number();
    return left + " " + oneOf({"==", "==", "==", "!=", "<", ">", "<=", ">="}) + " " + right;
}

std::string DescriptionWriter::calculation()
{
    const std::string op =
        oneOf({":=", ":=", ":=", ":=", ":=", ":=", "+=", "+=", "+=", "+=", "-=", "-=",
               "-=", "-=", "+=", "-=", ":=", "*=", "/=", "%=", "&=", "|=", "^="});
    return reg() + " " + op + " " + value();
}

std::string DescriptionWriter::sound()
{
    return oneOf({"P(moo)", "P(baa)", "P(oink)", "P(moo, baa)", "P(baa, oink, moo)"});
}

std::string DescriptionWriter::jump(size_t steps, size_t next)
{
    if (isOneIn(14)) {
        return "J(a" + std::to_string(below(5)) + ")";
    }
    return "J(asm" + std::to_string(isOneIn(isPlain ? 20 : 6) ? below(steps) : next) + ")";
}

std::string DescriptionWriter::strangeCommand()
{
    switch (below(7)) {
    case 0:
        return "Neg(" + reg() + ")";
    case 1:
        return "T(" + reg() + ", " + value() + ")";
    case 2:
        return oneOf({"PA(moo, baa)", "P?(moo)", "P*(moo, oink)", "PA*(baa)"});
    case 3:
        return oneOf({"J(4000)", "J(1003)", "C", "AT(5)", "SP(3)"});
    case 4:
        return isOneIn(6) ? "J(" + reg() + ")" : "J(a1)";
    case 5:
        return sound();
    default:
        return calculation();
    }
}

const std::string& DescriptionWriter::reg()
{
    static const List names = {"$a",      "$b",      "$b",     "$a",     "$a",
                               "$_stk1",  "$_stk1",  "$_stk1", "$_stk2", "$_stk2",
                               "$ifexp1", "$ifexp2", "$7",     "$rnd"};
    return oneOf(names);
}

std::string DescriptionWriter::number()
{
    return isOneIn(16) ? std::to_string(below(65536))
                       : oneOf({"0", "0", "1", "1", "2", "3", "4", "65535", "32768"});
}

}  // namespace

std::string randomDescription(uint64_t seed)
{
    return randomDescription(std::mt19937_64(seed));
}

std::string randomDescription(const std::function<uint64_t()>& chance)
{
    return DescriptionWriter(chance).write();
}
