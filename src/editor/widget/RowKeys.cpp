#include "editor/widget/RowKeys.h"

#include <algorithm>

using namespace KVTextEditor;

namespace {

// Each number changes the key in a way that depends on all numbers before it.
class Mixer
{
public:
    explicit Mixer(quint64 start = 0) : key(start) {}

    void add(quint64 number)
    {
        key = (key ^ number) * Q_UINT64_C(0x9E3779B97F4A7C15);
        key ^= key >> 29;
    }
    void add(CARET caret) { add((quint64(quint32(caret.line)) << 32) | quint32(caret.column)); }

    quint64 key;
};

}  // namespace

RowKeys::RowKeys(const EditorOptions& options, const TextPainter::BACKEND& backend,
                 const TextView& part)
    : editor(backend),
      view(part),
      selection(backend.selection.normalized()),
      has_selection(backend.selection.has_range())
{
    Mixer mixer;
    for (const QColor& color : options.colors) {
        mixer.add(color.rgba());
    }
    mixer.add((options.show_line_numbers ? 1 : 0) + (options.show_whitespace ? 2 : 0));
    mixer.add(CARET{view.first_column, view.columns});
    mixer.add(CARET{view.gutter_digits, view.text_left});
    frame = mixer.key;
}

// A selection and the brackets change only the rows that they lie in.
quint64 RowKeys::of_row(int row) const
{
    const int number = view.first_line + row;
    const KVTextEditor::TextBuffer& text = *editor.buffer;
    if (number >= text.line_count()) {
        return frame;
    }
    const TextPainter::LINE& line = text.line(number);
    Mixer mixer(frame);
    mixer.add(quint64(number) * 2 + (line.bookmark ? 1 : 0) + 1);
    if (has_selection && number >= selection.start.line && number <= selection.end.line) {
        mixer.add(selection.start);
        mixer.add(selection.end);
        mixer.add(selection.block ? 1 : 0);
    }
    for (const CARET bracket : view.brackets) {
        if (bracket.line == number) {
            mixer.add(bracket);
        }
    }
    if (view.marks != nullptr) {
        for (auto [mark, end] = view.marks->of(number); mark != end; ++mark) {
            mixer.add(quint64(mark->kind) + 1);
            mixer.add(CARET{mark->column, mark->length});
        }
    }
    // Beside the cells in view, a neighbour may be the other half of a character.
    const int end = std::min(view.first_column + view.columns + 1, line.length());
    for (int column = std::max(0, view.first_column - 1); column < end; ++column) {
        const EdChar cell = line.begin()[column];
        mixer.add((quint64(quint32(cell.color)) << 16) | cell.ch);
    }
    return mixer.key;
}
