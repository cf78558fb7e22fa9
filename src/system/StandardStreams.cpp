#include "system/StandardStreams.h"

#include <cerrno>

namespace
{

constexpr qsizetype Gathered = 65536;

} // namespace

OutputStream::OutputStream(int handle)
{
    outliveReader();
    m_file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered);
    QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
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

qint64 OutputStream::readData(char*, qint64)
{
    return -1;
}

qint64 OutputStream::writeData(const char* data, qint64 size)
{
    m_gathered.append(data, size);
    return m_gathered.size() < Gathered || flush() ? size : -1;
}
