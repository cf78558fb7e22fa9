#include "system/StandardStreams.h"

#include "system/windows/Api.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>

namespace
{

// Static, because a handler at the end of the process can reach nothing else.
UINT formerCodePage = 0;

/// A program with windows has no console of its own, and no streams where nobody has given it any: it
/// writes to the console of the command prompt that has started it.
void borrowConsole()
{
    if (_fileno(stdout) >= 0 || !AttachConsole(ATTACH_PARENT_PROCESS)) {
        return;
    }
    std::freopen("CONIN$", "r", stdin);
    std::freopen("CONOUT$", "w", stdout);
    std::freopen("CONOUT$", "w", stderr);
    // It is lent: whoever uses it next finds it as it was.
    formerCodePage = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(formerCodePage); });
}

int bytesOf(std::FILE* stream)
{
    _setmode(_fileno(stream), _O_BINARY);
    return _fileno(stream);
}

} // namespace

bool openStandardInput(QFile& file)
{
    borrowConsole();
    return file.open(bytesOf(stdin), QIODevice::ReadOnly);
}

OutputStream::OutputStream() : OutputStream((borrowConsole(), bytesOf(stdout)))
{
}

void OutputStream::outliveReader()
{
    // A lost reader is an error of the write, no more.
}

bool OutputStream::hasNoReader() const
{
    // The second one stands for a pipe that its reader is closing.
    return m_error == EPIPE || m_error == EINVAL;
}
