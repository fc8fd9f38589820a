#include "document/Document.h"

#include "tests/document/RandomAuthor.h"
#include "tests/document/Snapshot.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace {

std::string all(Document& document)
{
    return snapshot(document) + savedBytes(document);
}

// What the author did not ask for by itself.
void follow(Document& document)
{
    document.orientAreas(0);
    document.numberAllAreas();
}

}  // namespace

// Every state that an undo or a redo leads to is, to the last bit, the one that was there before:
// also after what the author did not ask for (orientation, numbers), and after new steps on top of
// undone ones.
TEST(RandomEdits, AreUndoneAndRedoneExactly)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        const TemporaryFolder folder;
        Document document;
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().print = CapturedMessages::print;
        document.projectRecord().pictures.resize(1);
        document.restart();
        RandomAuthor author(document, std::mt19937(seed));
        std::vector<std::string> done{all(document)};  // the last one is now
        std::vector<std::string> undone;
        for (int i = 0; i < 100; ++i) {
            if (undone.empty() &&
                author.below(4) == 0) {  // what was undone would know of the old one
                author.select();
                done.back() = all(document);
            }
            const int what = author.below(10);
            if (author.below(12) == 0) {
                ASSERT_TRUE(author.save());
                ASSERT_EQ(all(document), done.back()) << "after " << i;
                continue;
            }
            if (what < 7) {
                what < 3   ? author.edit()
                : what < 4 ? author.movePage()
                : what < 6 ? author.gesture()
                           : follow(document);
                document.endGesture();
                if (const std::string now = all(document); now != done.back()) {
                    what < 6 ? done.push_back(now) : void(done.back() = now);
                    undone.clear();
                }
                continue;
            }
            const bool forward = what == 9;
            ASSERT_EQ(forward ? document.redo() : document.undo(),
                      forward ? !undone.empty() : done.size() > 1);
            if (forward && !undone.empty()) {
                done.push_back(undone.back());
                undone.pop_back();
            } else if (!forward && done.size() > 1) {
                undone.push_back(done.back());
                done.pop_back();
            }
            ASSERT_EQ(all(document), done.back()) << "after " << i;
        }
    }
}

TEST(RandomEdits, ThatAreGivenUpLeaveNothing)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        const TemporaryFolder folder;
        Document document;
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().print = CapturedMessages::print;
        document.projectRecord().pictures.resize(2);
        document.restart();
        RandomAuthor author(document, std::mt19937(seed));
        for (int i = 0; i < 30; ++i) {
            author.edit();
            author.select();
            const std::string before = all(document);
            const Gesture gesture = document.newGesture();
            for (int count = author.below(6); count > 0; --count) {
                author.edit(gesture);
            }
            document.takeBack(gesture);
            ASSERT_EQ(all(document), before);
        }
    }
}
