#include "system/StandardStreams.h"

#include <cerrno>
#include <csignal>
#include <cstdio>

bool openStandardInput(QFile& file)
{
    return file.open(fileno(stdin), QIODevice::ReadOnly);
}

OutputStream::OutputStream() : OutputStream(fileno(stdout))
{
}

void OutputStream::outliveReader()
{
    std::signal(SIGPIPE, SIG_IGN);
}

bool OutputStream::hasNoReader() const
{
    return m_error == EPIPE;
}
