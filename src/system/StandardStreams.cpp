#include "system/StandardStreams.h"

#include <cerrno>
#include <csignal>
#include <cstdio>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace
{

constexpr qsizetype Gathered = 65536;

int handleOf(std::FILE* stream)
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stream), _O_BINARY);
    return _fileno(stream);
#else
    return fileno(stream);
#endif
}

} // namespace

bool openStandardInput(QFile& file)
{
    return file.open(handleOf(stdin), QIODevice::ReadOnly);
}

OutputStream::OutputStream(int handle)
{
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
    m_file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered);
    QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

OutputStream::OutputStream() : OutputStream(handleOf(stdout))
{
}

OutputStream::~OutputStream()
{
    flush();
}

bool OutputStream::flush()
{
    if (m_error == 0 && !m_gathered.isEmpty()) {
        errno = 0;
        if (m_file.write(m_gathered) != m_gathered.size()) {
            m_error = errno == 0 ? EIO : errno;
        }
    }
    m_gathered.clear();
    return m_error == 0;
}

bool OutputStream::hasNoReader() const
{
    return m_error == EPIPE;
}

qint64 OutputStream::readData(char*, qint64)
{
    return -1;
}

qint64 OutputStream::writeData(const char* data, qint64 size)
{
    m_gathered.append(data, size);
    return m_gathered.size() < Gathered || flush() ? size : -1;
}
