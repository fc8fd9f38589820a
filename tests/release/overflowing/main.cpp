#include <cstring>

// Copies its first argument into a buffer of 8 bytes, however long it is.
int main(int count, char** words)
{
    char buffer[8];
    std::strcpy(buffer, count > 1 ? words[1] : "");
    return buffer[0] == '!' ? 1 : 0;
}
