#pragma once

namespace KVTextEditor {

// A run of line numbers that follows its lines when others are inserted or erased above them.
class LineRange
{
public:
    int first() const { return from; }
    int end() const { return to; }  // exclusive
    bool empty() const { return from >= to; }

    void clear() { from = to = 0; }
    void include(int first, int end);
    // Leaves these lines out where they stand at an end of the run.
    void exclude(int first, int end);

    void linesInserted(int at, int n);
    void linesErased(int first, int n);

private:
    int from = 0;
    int to = 0;
};

}  // namespace KVTextEditor
