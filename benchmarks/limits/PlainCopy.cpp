#include "limits/PlainCopy.h"

#include <QFile>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>
#include <vector>

void plainCopy(const QString& source, const QString& target)
{
    const int from = open(QFile::encodeName(source).constData(), O_RDONLY | O_CLOEXEC);
    const int to =
        open(QFile::encodeName(target).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    std::vector<char> chunk(1024UL * 1024);
    ssize_t size = from < 0 || to < 0 ? -1 : read(from, chunk.data(), chunk.size());
    while (size > 0) {
        size = write(to, chunk.data(), static_cast<std::size_t>(size)) == size
            ? read(from, chunk.data(), chunk.size())
            : -1;
    }
    const bool done = size == 0 && fsync(to) == 0;
    close(from);
    close(to);
    if (!done) {
        throw std::runtime_error("the file could not be copied");
    }
}
