#include "editor/core/EditorBackend.h"

#include <gtest/gtest.h>

using namespace KVTextEditor;

namespace {

template <class CELL, class = void>
constexpr bool hasAnEditor = false;
template <class CELL>
constexpr bool hasAnEditor<CELL, std::void_t<EditorBackend<CELL>>> = true;

}  // namespace

TEST(TemplateNames, AreThoseOfPlainClasses)
{
    EXPECT_TRUE((std::is_same_v<Line<EdChar>, TextLine>));
    EXPECT_TRUE((std::is_same_v<Buffer<EdChar>, TextBuffer>));
    EXPECT_TRUE((std::is_same_v<EditorBackend<EdChar>, TextEditor>));
}

TEST(TemplateNames, KnowOneKindOfCells)
{
    EXPECT_TRUE(hasAnEditor<EdChar>);
    EXPECT_FALSE(hasAnEditor<char16_t>);
}
