#include <cstdio>
#include <thread>

namespace
{

int count = 0;

void countUp()
{
    ++count;
}

} // namespace

/// Two threads that race for a number: what the thread checker has to find in every run of the tests.
int main()
{
    std::thread first(countUp);
    std::thread second(countUp);
    first.join();
    second.join();
    return std::printf("%d\n", count) > 0 ? 0 : 1;
}
