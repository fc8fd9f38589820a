// Measures the script editor and prints the tables of docs/performance.md.

#include "bench/EditorBench.h"

int main()
{
    EditorBench::measureCore();
    return 0;
}
