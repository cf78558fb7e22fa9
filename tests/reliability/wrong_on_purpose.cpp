#include <climits>
#include <string_view>
#include <vector>

namespace
{

// What the optimizer cannot foresee.
volatile int one = 1;
int* volatile held = nullptr;

void loseMemory()
{
    held = new int(one);
    held = nullptr;
}

int readBeyond()
{
    const std::vector<int> numbers(static_cast<std::size_t>(one));
    const int* all = numbers.data();
    return all[one];
}

int overflow()
{
    return INT_MAX + one;
}

} // namespace

/// Makes the mistake that is named, or none: what the sanitizers have to find in every run of the tests.
int main(int argc, char** argv)
{
    const std::string_view mistake = argc > 1 ? argv[1] : "";
    if (mistake == "leak") {
        loseMemory();
    } else if (mistake == "beyond") {
        return readBeyond() == one ? 1 : 0;
    } else if (mistake == "overflow") {
        return overflow() == one ? 1 : 0;
    }
    return 0;
}
