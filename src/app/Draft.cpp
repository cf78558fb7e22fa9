#include "app/Draft.h"

#include "system/FileError.h"
#include "system/StandardStreams.h"

namespace
{

constexpr qint64 Chunk = 65536;
constexpr qint64 MostInput = qint64(1024) * 1024 * 1024;

} // namespace

Draft::Draft()
{
    if (!m_file.open()) {
        throw FileError(m_file.fileTemplate(), m_file.errorString());
    }
}

void Draft::copyTo(OutputStream& output)
{
    flush();
    fromItsBeginning();
    for (QByteArray bytes = m_file.read(Chunk); !bytes.isEmpty() && output.error() == 0;
         bytes = m_file.read(Chunk)) {
        output.write(bytes);
    }
}

void Draft::takeFrom(QIODevice& input)
{
    for (QByteArray bytes = input.read(Chunk); !bytes.isEmpty(); bytes = input.read(Chunk)) {
        if (m_file.size() > MostInput) {
            throw RuntimeError(tr("The input is too large. Nothing was stored."));
        }
        m_file.write(bytes);
    }
    flush();
}

QIODevice& Draft::fromItsBeginning()
{
    if (!m_file.seek(0)) {
        throw FileError(m_file.fileTemplate(), m_file.errorString());
    }
    return m_file;
}

void Draft::flush()
{
    m_file.flush();
    if (m_file.error() != QFileDevice::NoError) {
        throw FileError(m_file.fileTemplate(), m_file.errorString());
    }
}
