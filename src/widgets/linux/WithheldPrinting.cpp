#include "widgets/printing/WithheldPrinting.h"

#include <QLibrary>

namespace
{

/// Sets the print server for jobs; null for the usual one.
void setPrintServer(const char* address)
{
    // The library that Qt's printing has loaded; without printers it may be missing.
    QLibrary cups(QStringLiteral("cups"), 2);
    using Set = void (*)(const char*);
    if (const auto set = reinterpret_cast<Set>(cups.resolve("cupsSetServer"))) {
        set(address);
    }
}

} // namespace

WithheldPrinting::WithheldPrinting()
{
    // Nothing listens there.
    setPrintServer("127.0.0.1:1");
}

WithheldPrinting::~WithheldPrinting()
{
    setPrintServer(nullptr);
}
