#include "help/window/CompiledHelpFile.h"

#include <QFile>
#include <QFileInfo>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <mspack.h>

namespace
{

// For what libmspack holds at a time: the directory, a chunk of it, the decompression window.
constexpr std::size_t MostMemory = std::size_t{8} * 1024 * 1024;
// To reach a compressed object everything before it has to be decompressed.
constexpr qint64 FarthestObject = qint64{64} * 1024 * 1024;

/// A file that is read or a buffer that is written.
struct Stream : mspack_file {
    QFile input;
    QByteArray* output = nullptr;
};

Stream* streamOf(mspack_file* file)
{
    return static_cast<Stream*>(file);
}

void closeStream(mspack_file* file)
{
    delete streamOf(file);
}

int readStream(mspack_file* file, void* buffer, int bytes)
{
    return static_cast<int>(streamOf(file)->input.read(static_cast<char*>(buffer), bytes));
}

int writeStream(mspack_file* file, void* buffer, int bytes)
{
    QByteArray* output = streamOf(file)->output;
    if (output == nullptr || output->size() + bytes > CompiledHelpFile::LargestObject) {
        return -1;
    }
    output->append(static_cast<const char*>(buffer), bytes);
    return bytes;
}

int seekStream(mspack_file* file, off_t offset, int mode)
{
    QFile& input = streamOf(file)->input;
    qint64 position = offset;
    if (mode == MSPACK_SYS_SEEK_CUR) {
        position += input.pos();
    } else if (mode == MSPACK_SYS_SEEK_END) {
        position += input.size();
    }
    return position >= 0 && position <= input.size() && input.seek(position) ? 0 : -1;
}

off_t positionOfStream(mspack_file* file)
{
    // Small on Windows, as the library is built there: no help file has two gigabytes.
    return static_cast<off_t>(streamOf(file)->input.pos());
}

void ignoreMessage(mspack_file* /*file*/, const char* /*format*/, ...)
{
}

/// Header in front of each block of memory given to libmspack.
struct alignas(std::max_align_t) Allocation {
    std::size_t* taken;
    std::size_t bytes;
};

void* allocate(std::size_t& taken, std::size_t bytes)
{
    if (bytes > MostMemory || bytes + sizeof(Allocation) > MostMemory - taken) {
        return nullptr;
    }
    const std::size_t all = bytes + sizeof(Allocation);
    auto* allocation = static_cast<Allocation*>(std::malloc(all));
    if (allocation == nullptr) {
        return nullptr;
    }
    *allocation = {&taken, all};
    taken += all;
    return allocation + 1;
}

void release(void* memory)
{
    if (memory != nullptr) {
        Allocation* allocation = static_cast<Allocation*>(memory) - 1;
        *allocation->taken -= allocation->bytes;
        std::free(allocation);
    }
}

void copyBytes(void* source, void* destination, std::size_t bytes)
{
    std::memcpy(destination, source, bytes);
}

} // namespace

struct CompiledHelpFile::System : mspack_system {
    explicit System(const QString& file) : path(file)
    {
        open = openStream;
        close = closeStream;
        read = readStream;
        write = writeStream;
        seek = seekStream;
        tell = positionOfStream;
        message = ignoreMessage;
        alloc = [](mspack_system* system, std::size_t bytes) {
            return allocate(static_cast<System*>(system)->taken, bytes);
        };
        free = release;
        copy = copyBytes;
        null_ptr = nullptr;
    }

    // libmspack reads the one file and writes to one buffer, whatever name it asks for.
    static mspack_file* openStream(mspack_system* system, const char* /*name*/, int mode)
    {
        auto* self = static_cast<System*>(system);
        auto stream = std::make_unique<Stream>();
        if (mode == MSPACK_SYS_OPEN_WRITE) {
            stream->output = &self->output;
        } else {
            stream->input.setFileName(self->path);
            if (mode != MSPACK_SYS_OPEN_READ || !stream->input.open(QIODevice::ReadOnly)) {
                return nullptr;
            }
        }
        return stream.release();
    }

    QString path;
    QByteArray output;
    std::size_t taken = 0;
};

std::unique_ptr<CompiledHelpFile> CompiledHelpFile::open(const QString& path)
{
    const QFileInfo info(path);
    // Opening a pipe would wait for its writer.
    if (!info.isFile() || info.size() > LargestFile) {
        return nullptr;
    }
    std::unique_ptr<CompiledHelpFile> file(new CompiledHelpFile(path));
    return file->load() ? std::move(file) : nullptr;
}

CompiledHelpFile::CompiledHelpFile(const QString& path)
    : m_system(std::make_unique<System>(path)),
      m_decompressor(mspack_create_chm_decompressor(m_system.get())), m_path(QFile::encodeName(path))
{
}

CompiledHelpFile::~CompiledHelpFile()
{
    if (m_header != nullptr) {
        m_decompressor->close(m_decompressor, m_header);
    }
    if (m_decompressor != nullptr) {
        mspack_destroy_chm_decompressor(m_decompressor);
    }
}

bool CompiledHelpFile::load()
{
    if (m_decompressor == nullptr) {
        return false;
    }
    m_header = m_decompressor->open(m_decompressor, m_path.constData());
    if (m_header == nullptr) {
        return false;
    }
    for (mschmd_file* file = m_header->files; file != nullptr; file = file->next) {
        if (m_names.size() == MostObjects || std::strlen(file->filename) > LongestName) {
            return false;
        }
        const QString name = QString::fromUtf8(file->filename);
        m_objects.insert(name.toCaseFolded(), file);
        m_names.append(name);
    }
    return !m_names.isEmpty();
}

bool CompiledHelpFile::contains(const QString& name) const
{
    return m_objects.contains(name.toCaseFolded());
}

mschmd_file* CompiledHelpFile::readable(const QString& name, qint64 largest) const
{
    mschmd_file* file = m_objects.value(name.toCaseFolded());
    const bool isReadable = file != nullptr && file->length >= 0 && file->length <= largest
        && file->length <= LargestObject && file->offset >= 0
        && (file->section->id == 0 || file->offset <= FarthestObject);
    return isReadable ? file : nullptr;
}

qint64 CompiledHelpFile::effortOf(const QString& name) const
{
    const mschmd_file* file = readable(name, LargestObject);
    return file == nullptr ? 0 : file->length + (file->section->id == 0 ? 0 : file->offset);
}

std::optional<QByteArray> CompiledHelpFile::read(const QString& name, qint64 largest) const
{
    mschmd_file* file = readable(name, largest);
    if (file == nullptr) {
        return std::nullopt;
    }
    m_system->output.clear();
    const int failure = m_decompressor->extract(m_decompressor, file, "");
    QByteArray bytes;
    bytes.swap(m_system->output);
    // A truncated file yields fewer bytes without an error.
    if (failure != MSPACK_ERR_OK || bytes.size() != file->length) {
        return std::nullopt;
    }
    return bytes;
}
