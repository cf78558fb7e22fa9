#include "TemporaryFile.h"
#include "help/window/HelpBook.h"

#include <cstdint>

// Any bytes as a help file: whatever the tables say, what is kept of them is bounded.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFile file(QStringLiteral("a.chm"));
    file.write(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    const auto book = HelpBook::open(file.path());
    if (book == nullptr) {
        return 0;
    }
    require(book->topics().size() <= CompiledHelpFile::MostObjects, "there are only so many topics");
    require(book->contexts().size() <= 4096, "there are only so many contexts");
    for (const QString& topic : book->contexts()) {
        require(topic.size() <= 513, "the topic of a context has a usual name");
    }
    for (const QString& name : book->file().names()) {
        const auto object = book->file().read(name, 1000);
        require(!object || object->size() <= 1000, "an object is no larger than was asked for");
    }
    return 0;
}
