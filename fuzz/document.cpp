// Any edits of a project: undo and redo lead to the very states that were there.
#include "fuzz/Fuzzing.h"

#include "tests/document/RandomAuthor.h"
#include "tests/document/Snapshot.h"

namespace {

// The steps of a document, and what it was like before and after each.
class Steps
{
public:
    explicit Steps(Document& edited)
        : document(edited), done{snapshot(edited)}, revision(edited.revision())
    {}

    // Equal areas can change their order, which is a step that cannot be seen.
    void edited()
    {
        document.endGesture();
        const std::string now = snapshot(document);
        if (document.revision() != revision) {
            done.push_back(now);
            undone.clear();
            revision = document.revision();
        }
        fuzzing::requireEqual(now, done.back(), "what changes is a step");
    }
    void undo() { go(document.undo(), done.size() > 1, done, undone); }
    void redo() { go(document.redo(), !undone.empty(), undone, done); }

private:
    void go(bool went, bool could, std::vector<std::string>& from, std::vector<std::string>& to)
    {
        fuzzing::require(went == could, "a step can be undone or redone when there is one");
        if (went) {
            to.push_back(from.back());
            from.pop_back();
            revision = document.revision();
        }
        fuzzing::requireEqual(snapshot(document), done.back(), "the state that was there");
    }

    Document& document;
    std::vector<std::string> done;  // the last one is now
    std::vector<std::string> undone;
    std::uint64_t revision;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    fuzzing::clearFolder();
    constexpr int kMostSteps = 60;
    fuzzing::Choices choices(data, size);
    Document document;
    document.projectRecord().projectPath = fuzzing::folder() + "/book.oidpro";
    document.projectRecord().print = printNothing;
    document.projectRecord().pictures.resize(1);
    document.restart();
    RandomAuthor author(document, [&choices] { return choices.number(); });
    Steps steps(document);
    for (int i = 0; i < kMostSteps && !choices.isAtEnd(); ++i) {
        switch (choices.byte() % 9) {
        case 0:
            steps.redo();
            break;
        case 1:
        case 2:
            steps.undo();
            break;
        case 3:
            author.gesture();
            steps.edited();
            break;
        case 4:
            author.movePage();
            steps.edited();
            break;
        case 5:
            fuzzing::require(author.save(), "it can be saved");
            steps.edited();
            break;
        default:
            author.edit();
            steps.edited();
        }
    }
    return 0;
}
