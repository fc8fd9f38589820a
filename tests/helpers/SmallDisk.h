#pragma once

// No file of this process can grow beyond a size while this lives: writing on fails as on a full
// disk.
class SmallDisk
{
public:
    explicit SmallDisk(unsigned long bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    unsigned long before;
    void (*handlerBefore)(int);
};
