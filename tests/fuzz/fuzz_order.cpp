#include "Require.h"
#include "data/NameOrder.h"
#include "store/UnicodeCollation.h"

#include <cstdint>

namespace
{

int sign(int value)
{
    return (value > 0) - (value < 0);
}

} // namespace

// Any bytes as three texts, separated by zero bytes: the order must be consistent, or an index of the data
// file would be corrupted by its own rows.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    const auto next = [&rest] {
        const std::string_view part = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(part.size() < rest.size() ? part.size() + 1 : rest.size());
        return part;
    };
    const std::string_view a = next();
    const std::string_view b = next();
    const std::string_view c = next();
    require(compareIgnoringCase(a, a) == 0, "a text equals itself");
    require(sign(compareIgnoringCase(a, b)) == -sign(compareIgnoringCase(b, a)), "both ways say the same");
    if (compareIgnoringCase(a, b) <= 0 && compareIgnoringCase(b, c) <= 0) {
        require(compareIgnoringCase(a, c) <= 0, "what comes before stays before");
    }
    // Names that SQLite takes for equal have one place in a list.
    static const NameOrder order;
    if (compareIgnoringCase(a, b) == 0) {
        require(order.key(a).compare(order.key(b)) == 0, "equal names have one place");
    }
    return 0;
}
