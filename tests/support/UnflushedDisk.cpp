#include <unistd.h>

// Makes flushing do nothing in the executable that it is linked into: a test that writes much would mostly
// wait for the disk. Power cuts have tests of their own.

extern "C" int fsync(int)
{
    return 0;
}

extern "C" int fdatasync(int)
{
    return 0;
}
