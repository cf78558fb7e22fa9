#include "Require.h"
#include "settings/SkinFile.h"

#include <cstdint>

// Any bytes as a skin: read or refused with an error that names the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const SkinFile skin =
            SkinFile::parse(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)),
                QStringLiteral("X.skf"));
        require(
            !skin.info.name.isEmpty() && !skin.info.name.contains(u'/'), "the name could be that of a file");
        require(!skin.styleSheet.contains(u'$'), "every token has become a colour");
    } catch (const SkinError& error) {
        require(error.text().startsWith(QLatin1String("X.skf")), "a refusal names the file");
    }
    return 0;
}
