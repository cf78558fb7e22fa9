#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>

/// What a program asks of the file system.
enum class FileCall {
    Open,
    Read,
    Write,
    Sync,
    Truncate,
    Remove,
    Rename,
    Link,
    MakeFolder,
    RemoveFolder,
    Lock,
    Unlock,
    List,
    Status,
    ChangeMode,
    Close
};

/// Sees the file system calls of one thread, before and after they run, and may refuse them. The executable
/// defines the functions of the C library itself, so that SQLite and Qt call it as they are. Flushing to the
/// disk is only noted, never done, and sleeping takes no time.
class FileCallObserver
{
public:
    FileCallObserver() = default;
    virtual ~FileCallObserver() = default;
    FileCallObserver(const FileCallObserver&) = delete;
    FileCallObserver& operator=(const FileCallObserver&) = delete;

    /// Whether calls on that absolute path are to be seen.
    virtual bool watches(const std::string& path) const = 0;
    /// The error number that the call is to fail with, before it has done anything; 0 lets it through.
    virtual int refuse(FileCall call, const std::string& path) = 0;
    /// How many of `size` bytes are written; a negative error number refuses the call.
    virtual ssize_t accepted(const std::string& path, std::size_t size) = 0;

    // What has been done.
    virtual void created(const std::string& path) = 0;
    virtual void written(const std::string& path, off_t offset, const char* bytes, std::size_t size) = 0;
    virtual void truncated(const std::string& path, off_t size) = 0;
    /// A file or a folder.
    virtual void synced(const std::string& path) = 0;
    virtual void removed(const std::string& path) = 0;
    virtual void renamed(const std::string& from, const std::string& to) = 0;
    /// A second name for a file.
    virtual void linked(const std::string& file, const std::string& name) = 0;
    /// A link to a path.
    virtual void symbolicLinkMade(const std::string& path, const std::string& target) = 0;
    virtual void folderMade(const std::string& path) = 0;
};

/// From now on `observer` sees the calls of this thread; null ends that. It outlives its observing.
void observeFileCalls(FileCallObserver* observer);

/// Handles of watched files that were opened while observed and not closed since, by path.
std::size_t openObservedHandles();
