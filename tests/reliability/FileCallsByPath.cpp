#include "reliability/WatchedCall.h"

#include <cstdio>
#include <dirent.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

int removeWatched(const char* path, FileCall kind, int (*remove)(const char*))
{
    const WatchedCall call(path);
    if (call.refused(kind)) {
        return -1;
    }
    const int result = remove(path);
    if (call && result == 0) {
        call->removed(call.path());
    }
    return result;
}

} // namespace

extern "C" {

int unlink(const char* path) noexcept
{
    static const auto unlink = libraryFunction<int(const char*)>("unlink");
    return removeWatched(path, FileCall::Remove, unlink);
}

int rename(const char* from, const char* to) noexcept
{
    static const auto rename = libraryFunction<int(const char*, const char*)>("rename");
    const WatchedCall call(from);
    if (call.refused(FileCall::Rename)) {
        return -1;
    }
    const int result = rename(from, to);
    if (call && result == 0) {
        call->renamed(call.path(), std::filesystem::path(to).lexically_normal().string());
    }
    return result;
}

int link(const char* file, const char* name) noexcept
{
    static const auto link = libraryFunction<int(const char*, const char*)>("link");
    const WatchedCall call(name);
    if (call.refused(FileCall::Link)) {
        return -1;
    }
    const int result = link(file, name);
    if (call && result == 0) {
        call->linked(std::filesystem::path(file).lexically_normal().string(), call.path());
    }
    return result;
}

int symlink(const char* target, const char* name) noexcept
{
    static const auto symlink = libraryFunction<int(const char*, const char*)>("symlink");
    const WatchedCall call(name);
    if (call.refused(FileCall::Link)) {
        return -1;
    }
    const int result = symlink(target, name);
    if (call && result == 0) {
        call->symbolicLinkMade(call.path(), target);
    }
    return result;
}

DIR* opendir(const char* path)
{
    static const auto opendir = libraryFunction<DIR*(const char*)>("opendir");
    const WatchedCall call(path);
    return call.refused(FileCall::List) ? nullptr : opendir(path);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static const auto mkdir = libraryFunction<int(const char*, mode_t)>("mkdir");
    const WatchedCall call(path);
    if (call.refused(FileCall::MakeFolder)) {
        return -1;
    }
    const int result = mkdir(path, mode);
    if (call && result == 0) {
        call->folderMade(call.path());
    }
    return result;
}

int rmdir(const char* path) noexcept
{
    static const auto rmdir = libraryFunction<int(const char*)>("rmdir");
    return removeWatched(path, FileCall::RemoveFolder, rmdir);
}

int stat64(const char* path, struct stat64* status) noexcept
{
    static const auto stat = libraryFunction<int(const char*, struct stat64*)>("stat64");
    return passWatched(path, FileCall::Status, [&] { return stat(path, status); });
}

int stat(const char* path, struct stat* status) noexcept
{
    static const auto stat = libraryFunction<int(const char*, struct stat*)>("stat");
    return passWatched(path, FileCall::Status, [&] { return stat(path, status); });
}

int lstat64(const char* path, struct stat64* status) noexcept
{
    static const auto stat = libraryFunction<int(const char*, struct stat64*)>("lstat64");
    return passWatched(path, FileCall::Status, [&] { return stat(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept
{
    static const auto stat = libraryFunction<int(const char*, struct stat*)>("lstat");
    return passWatched(path, FileCall::Status, [&] { return stat(path, status); });
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept
{
    static const auto stat = libraryFunction<int(int, const char*, int, unsigned, struct statx*)>("statx");
    return passWatched(path, FileCall::Status, [&] { return stat(folder, path, flags, mask, status); });
}

int access(const char* path, int mode) noexcept
{
    static const auto access = libraryFunction<int(const char*, int)>("access");
    return passWatched(path, FileCall::Status, [&] { return access(path, mode); });
}

int chmod(const char* path, mode_t mode) noexcept
{
    static const auto chmod = libraryFunction<int(const char*, mode_t)>("chmod");
    return passWatched(path, FileCall::ChangeMode, [&] { return chmod(path, mode); });
}

} // extern "C"
