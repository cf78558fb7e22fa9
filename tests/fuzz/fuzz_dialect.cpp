#include "Require.h"
#include "store/DatabaseError.h"
#include "store/Dialect.h"

#include <cstdint>

// Any bytes as a statement: translated or refused. A statement without a date literal stays as it is, and
// what has been translated holds none any more.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view statement(reinterpret_cast<const char*>(data), size);
    try {
        const std::string translated = translateDialect(statement);
        require(statement.find('#') != std::string_view::npos || translated == statement,
            "what holds no literal stays as it is");
        require(translateDialect(translated) == translated, "what is translated holds no literal");
    } catch (const DatabaseError& error) {
        require(!error.text().isEmpty(), "a refusal says why");
    }
    return 0;
}
