#include "reliability/WatchedCall.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace
{

thread_local FileCallObserver* currentObserver = nullptr;
thread_local std::map<int, std::string>* observedHandles = nullptr;

int openWatched(const char* path, int flags, va_list arguments)
{
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    static const auto open = libraryFunction<int(const char*, int, ...)>("open64");
    static const auto present = libraryFunction<int(const char*, int)>("access");
    const WatchedCall call(path);
    if (call.refused(FileCall::Open)) {
        return -1;
    }
    const bool existed = call && present(path, F_OK) == 0;
    const int handle = open(path, flags, mode);
    if (call && handle >= 0) {
        observedHandles->insert_or_assign(handle, call.path());
        if (!existed) {
            call->created(call.path());
        } else if ((flags & O_TRUNC) != 0) {
            call->truncated(call.path(), 0);
        }
    }
    return handle;
}

template <typename Write> ssize_t writeWatched(int handle, const void* bytes, std::size_t size, Write write)
{
    const WatchedCall call(handle);
    std::size_t accepted = size;
    if (call) {
        const ssize_t answer = call->accepted(call.path(), size);
        if (answer < 0) {
            errno = static_cast<int>(-answer);
            return -1;
        }
        accepted = static_cast<std::size_t>(answer);
    }
    return write(accepted, [&](off_t offset, ssize_t written) {
        if (call && written > 0) {
            call->written(
                call.path(), offset, static_cast<const char*>(bytes), static_cast<std::size_t>(written));
        }
        return written;
    });
}

int syncWatched(int handle)
{
    const WatchedCall call(handle);
    if (call.refused(FileCall::Sync)) {
        return -1;
    }
    if (call) {
        call->synced(call.path());
    }
    return 0;
}

int truncateWatched(int handle, off_t size)
{
    static const auto truncate = libraryFunction<int(int, off_t)>("ftruncate64");
    const WatchedCall call(handle);
    if (call.refused(FileCall::Truncate)) {
        return -1;
    }
    const int result = truncate(handle, size);
    if (call && result == 0) {
        call->truncated(call.path(), size);
    }
    return result;
}

int controlWatched(int handle, int command, void* argument)
{
    static const auto control = libraryFunction<int(int, int, ...)>("fcntl64");
    const WatchedCall call(handle);
    if (command == F_SETLK || command == F_SETLKW || command == F_GETLK) {
        const auto* lock = static_cast<const struct flock*>(argument);
        const bool unlocks = command != F_GETLK && lock->l_type == F_UNLCK;
        if (call.refused(unlocks ? FileCall::Unlock : FileCall::Lock)) {
            return -1;
        }
    }
    return control(handle, command, argument);
}

} // namespace

WatchedCall::WatchedCall(const char* path) : m_observer(std::exchange(currentObserver, nullptr))
{
    if (m_observer != nullptr && path != nullptr) {
        m_path = std::filesystem::path(path).lexically_normal().string();
        m_watches = m_observer->watches(m_path);
    }
}

WatchedCall::WatchedCall(int handle) : m_observer(std::exchange(currentObserver, nullptr))
{
    if (m_observer != nullptr) {
        const auto found = observedHandles->find(handle);
        m_watches = found != observedHandles->end();
        m_path = m_watches ? found->second : std::string();
    }
}

WatchedCall::~WatchedCall()
{
    currentObserver = m_observer;
}

bool WatchedCall::refused(FileCall call) const
{
    const int error = m_watches ? m_observer->refuse(call, m_path) : 0;
    if (error != 0) {
        errno = error;
    }
    return error != 0;
}

void observeFileCalls(FileCallObserver* observer)
{
    if (observedHandles == nullptr) {
        // Never destroyed: files are closed to the very end of the process.
        observedHandles = new std::map<int, std::string>;
    }
    currentObserver = observer;
}

std::size_t openObservedHandles()
{
    return observedHandles == nullptr ? 0 : observedHandles->size();
}

extern "C" {

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int handle = openWatched(path, flags, arguments);
    va_end(arguments);
    return handle;
}

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int handle = openWatched(path, flags, arguments);
    va_end(arguments);
    return handle;
}

int close(int handle)
{
    static const auto close = libraryFunction<int(int)>("close");
    const WatchedCall call(handle);
    const bool refused = call.refused(FileCall::Close);
    const int error = errno;
    if (observedHandles != nullptr) {
        observedHandles->erase(handle);
    }
    const int result = close(handle);
    if (refused) {
        errno = error;
        return -1;
    }
    return result;
}

ssize_t read(int handle, void* bytes, size_t size)
{
    static const auto read = libraryFunction<ssize_t(int, void*, size_t)>("read");
    return passWatched(handle, FileCall::Read, [&] { return read(handle, bytes, size); });
}

ssize_t pread64(int handle, void* bytes, size_t size, off64_t offset)
{
    static const auto read = libraryFunction<ssize_t(int, void*, size_t, off64_t)>("pread64");
    return passWatched(handle, FileCall::Read, [&] { return read(handle, bytes, size, offset); });
}

ssize_t pread(int handle, void* bytes, size_t size, off_t offset)
{
    return pread64(handle, bytes, size, offset);
}

ssize_t write(int handle, const void* bytes, size_t size)
{
    static const auto write = libraryFunction<ssize_t(int, const void*, size_t)>("write");
    return writeWatched(handle, bytes, size, [&](std::size_t accepted, auto note) {
        const off_t offset = lseek(handle, 0, SEEK_CUR);
        return note(offset, write(handle, bytes, accepted));
    });
}

ssize_t pwrite64(int handle, const void* bytes, size_t size, off64_t offset)
{
    static const auto write = libraryFunction<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
    return writeWatched(handle, bytes, size, [&](std::size_t accepted, auto note) {
        return note(offset, write(handle, bytes, accepted, offset));
    });
}

ssize_t pwrite(int handle, const void* bytes, size_t size, off_t offset)
{
    return pwrite64(handle, bytes, size, offset);
}

int fsync(int handle)
{
    return syncWatched(handle);
}

int fdatasync(int handle)
{
    return syncWatched(handle);
}

int ftruncate(int handle, off_t size) noexcept
{
    return truncateWatched(handle, size);
}

int ftruncate64(int handle, off64_t size) noexcept
{
    return truncateWatched(handle, size);
}

int fcntl64(int handle, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    return controlWatched(handle, command, argument);
}

int fcntl(int handle, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    const int result = fcntl64(handle, command, va_arg(arguments, void*));
    va_end(arguments);
    return result;
}

int flock(int handle, int operation) noexcept
{
    static const auto lock = libraryFunction<int(int, int)>("flock");
    const WatchedCall call(handle);
    const bool unlocks = (operation & LOCK_UN) != 0;
    return call.refused(unlocks ? FileCall::Unlock : FileCall::Lock) ? -1 : lock(handle, operation);
}

int fstat64(int handle, struct stat64* status) noexcept
{
    static const auto stat = libraryFunction<int(int, struct stat64*)>("fstat64");
    return passWatched(handle, FileCall::Status, [&] { return stat(handle, status); });
}

int fchmod(int handle, mode_t mode) noexcept
{
    static const auto chmod = libraryFunction<int(int, mode_t)>("fchmod");
    return passWatched(handle, FileCall::ChangeMode, [&] { return chmod(handle, mode); });
}

int usleep(useconds_t microseconds)
{
    static const auto sleep = libraryFunction<int(useconds_t)>("usleep");
    return currentObserver != nullptr ? 0 : sleep(microseconds);
}

} // extern "C"
